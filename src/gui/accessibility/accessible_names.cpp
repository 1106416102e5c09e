#include "gui/accessibility/accessible_names.h"

#include <algorithm>

#include "gui/window/windows1252.h"
#include "pictures/pictures.h"
#include "screen/form.h"

namespace veridraw::gui {

namespace {

const ReaderDesign& readerOf(const Control& control) {
  return control.design().reader;
}

// The words that a control shows: a text box's text, else its caption.
QString wordsOf(const Control& control) {
  if (control.kind() == ControlKind::TextBox) return fromWindows1252(control.text()).simplified();
  return spokenCaption(fromWindows1252(control.caption()));
}

// The control of the form that the design names as a partner, while it is
// loaded; null for none.
const Control* partner(const Control& control, const std::string& name) {
  if (name.empty()) return nullptr;
  return control.form().find(name);
}

// Whether `other` is named or described, by the design, by a control that is
// shown and read on its own: its words are then heard with that control.
bool partnerOfShownControl(const Control& other) {
  // Partners are named singly, never as an element of an array.
  if (other.isArrayElement()) return false;
  const auto& controls = other.form().controls();
  return std::any_of(controls.begin(), controls.end(), [&](const auto& control) {
    const ReaderDesign& reader = readerOf(*control);
    return control->visible() && reader.reading != Reading::Decoration &&
           (reader.labelledBy == other.name() || reader.describedBy == other.name());
  });
}

bool holdsNothing(const Control& control) {
  return fromWindows1252(control.text()).trimmed().isEmpty();
}

}  // namespace

QString spokenCaption(const QString& caption) {
  QString spoken;
  for (qsizetype i = 0; i < caption.size(); ++i) {
    if (caption[i] == '&' && i + 1 < caption.size()) ++i;
    spoken += caption[i];
  }
  return spoken.simplified();
}

QString accessKeyShortcut(const Control& control) {
  if (control.kind() != ControlKind::CommandButton) return {};
  const char key = control.accessKey();
  if (key == 0) return {};
  return QStringLiteral("Alt+") + fromWindows1252(std::string_view(&key, 1));
}

QString accessibleName(const Control& control) {
  const ReaderDesign& reader = readerOf(control);
  if (const Control* label = partner(control, reader.labelledBy)) return wordsOf(*label);
  if (!reader.name.empty()) return fromWindows1252(reader.name);
  switch (control.kind()) {
    case ControlKind::CommandButton:
      if (const QString caption = wordsOf(control); !caption.isEmpty()) return caption;
      break;
    case ControlKind::Label:
    case ControlKind::TextBox:
      return wordsOf(control);
    case ControlKind::ListBox:
      if (const QString tip = fromWindows1252(control.toolTipText()).simplified(); !tip.isEmpty())
        return tip;
      break;
    case ControlKind::Image:
    case ControlKind::Document:
      break;
  }
  // A picture is named by what it shows.
  if (control.picture() != Picture::None)
    return fromWindows1252(pictures::pictureSubject(control.picture()));
  return QString::fromStdString(control.name());
}

QString accessibleDescription(const Control& control) {
  const ReaderDesign& reader = readerOf(control);
  if (reader.reading == Reading::Result) {
    if (holdsNothing(control)) return {};
    for (const Meaning& meaning : reader.meanings)
      if (meaning.backColor == kDefault || meaning.backColor == control.backColor())
        return fromWindows1252(meaning.words);
    return {};
  }
  if (const Control* describing = partner(control, reader.describedBy);
      describing != nullptr && describing->visible())
    return wordsOf(*describing);
  const QString tip = fromWindows1252(control.toolTipText()).simplified();
  return tip == accessibleName(control) ? QString() : tip;
}

bool readOnItsOwn(const Control& control) {
  switch (readerOf(control).reading) {
    case Reading::Decoration:
      return false;
    case Reading::Result:
      return !holdsNothing(control);
    default:
      break;
  }
  if (control.kind() == ControlKind::Label && wordsOf(control).isEmpty()) return false;
  return !partnerOfShownControl(control);
}

bool readAsText(const Control& control) {
  if (control.kind() != ControlKind::TextBox) return false;
  return readerOf(control).reading != Reading::AsItsKind;
}

bool announcesItself(const Control& control) {
  const Reading reading = readerOf(control).reading;
  return reading == Reading::Prompt || reading == Reading::Alert;
}

bool describesFocus(const Control& control) {
  const Control* focus = control.form().focus();
  return focus != nullptr && focus->visible() && !control.isArrayElement() &&
         readerOf(*focus).describedBy == control.name();
}

}  // namespace veridraw::gui

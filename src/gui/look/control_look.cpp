#include "gui/look/control_look.h"

#include "gui/look/appearance.h"
#include "gui/window/windows1252.h"

namespace veridraw::gui {

QString shownText(const ControlLook& look) {
  if (look.kind == ControlKind::TextBox || !look.text.contains(u'&')) return look.text;
  QString shown;
  for (qsizetype at = 0; at < look.text.size(); ++at) {
    if (look.text[at] == u'&' && ++at == look.text.size()) break;
    shown += look.text[at];
  }
  return shown;
}

ControlLook lookOf(const Control& control, bool focused) {
  ControlLook look;
  LookSources sources;
  updateLook(look, sources, control, focused);
  return look;
}

void updateLook(ControlLook& look, LookSources& sources, const Control& control, bool focused) {
  const std::string& text =
      control.kind() == ControlKind::TextBox ? control.text() : control.caption();
  if (!sources.converted || text != sources.text) {
    look.text = fromWindows1252(text);
    sources.text = text;
  }
  if (!sources.converted || control.items() != sources.items) {
    look.items.clear();
    for (const std::string& item : control.items())
      look.items.append(fromWindows1252(item));
    sources.items = control.items();
  }
  sources.converted = true;
  look.kind = control.kind();
  look.background = modelColor(control.backColor());
  look.foreground = modelColor(control.foreColor());
  look.font = look.kind == ControlKind::ListBox
                  ? modelFont(control.fontSize(), control.fontBold())
                  : textFont(control.fontSize(), control.fontBold(), shownText(look));
  look.borderStyle = control.borderStyle();
  look.alignment = control.alignment();
  look.picture = control.picture();
  look.listIndex = control.listIndex();
  look.topIndex = control.topIndex();
  look.caret = control.caret();
  look.selectionLength = control.selectionLength();
  look.enabled = control.enabled();
  look.focused = focused;
}

}  // namespace veridraw::gui

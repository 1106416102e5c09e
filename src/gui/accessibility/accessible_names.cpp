#include "gui/accessibility/accessible_names.h"

#include <algorithm>
#include <array>
#include <optional>
#include <string>

#include "gui/window/windows1252.h"
#include "pictures/pictures.h"
#include "screen/form.h"

namespace veridraw::gui {

namespace {

// A label stands beside a box when it shares the box's row and leaves at most
// this much room between them.
constexpr int kBesideGap = 1000;  // twips

const ControlDesign* designOf(const Form& form, std::string_view name, int index) {
  for (const ControlDesign& design : form.design().controls)
    if (design.name == name && design.index == index) return &design;
  return nullptr;
}

// The letters of a grid stand in boxes "A.", "B.", ... before its lines, in
// `letters`; the letter of a line is read from there, so that a grid without
// them has no lettered lines.
std::optional<QString> lineLetter(const Form& form, std::string_view letters, int line) {
  const ControlDesign* box = designOf(form, letters, line);
  if (box == nullptr) return std::nullopt;
  QString text = fromWindows1252(box->text).trimmed();
  if (text.endsWith('.')) text.chop(1);
  if (text.size() != 1 || !text.front().isLetter()) return std::nullopt;
  return text;
}

// The cells of a grid on one line: those that stand level with its first.
int cellsPerLine(const Form& form, const std::string& array) {
  const ControlDesign* first = designOf(form, array, 1);
  if (first == nullptr) return 1;
  const auto& controls = form.design().controls;
  return static_cast<int>(std::count_if(controls.begin(), controls.end(), [&](const auto& design) {
    return design.name == array && design.index != kNotInArray && design.top == first->top;
  }));
}

// The grids of a ticket, a row to a line of the ticket: "Line B, number 3",
// "Prize grid, line B, PowerBall".
struct TicketGrid {
  std::string_view array;
  std::string_view letters;  // the array of the letters of its lines
  const char* prefix;
};

constexpr std::array<TicketGrid, 5> kTicketGrids{{
    {"LineA", "TextATxt", ""},
    {"TxtStrike", "TextATxt", ""},
    {"TxtPowerBall", "TextATxt", ""},
    {"IntResult", "TextBTxt", "Prize grid, "},
    {"TxtPwrBall", "TextBTxt", "Prize grid, "},
}};

// The rows of numbers of the draw screen, and the single PowerBall box of the
// PowerBall screen: each element named by its place, the last ones by what
// they hold.
struct NumberRow {
  std::string_view array;
  const char* numbers;  // element k up to `count`: numbers + " k"
  int count;
  const char* bonus;      // element count + 1, if any
  const char* powerBall;  // element count + 2, if any
};

constexpr std::array<NumberRow, 6> kNumberRows{{
    {"TxtDrawnNumbers", "Lotto number", 6, "Bonus number", "PowerBall number"},
    {"TxtDrawnNumbers2", "Drawn Lotto number", 6, "Drawn Bonus number", "Drawn PowerBall number"},
    {"TxtDrawnNumeric", "Lotto number in numeric order", 6, nullptr, nullptr},
    {"TxtStrikeNumbers", "Strike number", 4, nullptr, nullptr},
    {"TxtStrikeNumbers2", "Drawn Strike number", 4, nullptr, nullptr},
    {"TxtPwrBallNumber", nullptr, 0, "PowerBall number for all lines", nullptr},
}};

const QString kSpareCell = QStringLiteral("Spare cell");

std::optional<QString> gridCellName(const Control& control) {
  const auto grid = std::find_if(kTicketGrids.begin(), kTicketGrids.end(),
                                 [&](const TicketGrid& g) { return g.array == control.name(); });
  if (grid == kTicketGrids.end() || !control.isArrayElement()) return std::nullopt;
  const Form& form = control.form();
  // The results panel of the draw screen shares a name with the prize grid,
  // but has no lettered lines: it is named by its labels.
  if (!lineLetter(form, grid->letters, 1)) return std::nullopt;
  const int perLine = cellsPerLine(form, control.name());
  const int line = (control.index() - 1) / perLine + 1;
  const std::optional<QString> letter = lineLetter(form, grid->letters, line);
  if (!letter) return kSpareCell;
  QString name = QString::fromLatin1(grid->prefix);
  name += name.isEmpty() ? "Line " : "line ";
  name += *letter + ", ";
  if (perLine == 1) return name + "PowerBall";
  return name + "number " + QString::number((control.index() - 1) % perLine + 1);
}

std::optional<QString> numberRowName(const Control& control) {
  const auto row = std::find_if(kNumberRows.begin(), kNumberRows.end(),
                                [&](const NumberRow& r) { return r.array == control.name(); });
  if (row == kNumberRows.end() || !control.isArrayElement()) return std::nullopt;
  const int index = control.index();
  if (index <= row->count) return QString::fromLatin1(row->numbers) + " " + QString::number(index);
  if (index == row->count + 1 && row->bonus != nullptr) return QString::fromLatin1(row->bonus);
  if (index == row->count + 2 && row->powerBall != nullptr)
    return QString::fromLatin1(row->powerBall);
  return kSpareCell;
}

// A locked box that holds words, not a number, is a caption of the form: a
// heading, a prompt, the letter of a line.
bool isCaptionBox(const Control& control) {
  if (control.kind() != ControlKind::TextBox || !control.locked()) return false;
  const QString text = fromWindows1252(control.text());
  return std::any_of(text.begin(), text.end(), [](QChar c) { return c.isLetter(); });
}

QString captionOf(const Control& control) {
  if (control.kind() == ControlKind::TextBox) return fromWindows1252(control.text()).simplified();
  return spokenCaption(fromWindows1252(control.caption()));
}

// The caption on the control's row nearest to it, to its left or else to its
// right; then the nearest one just above it.
std::optional<QString> captionBeside(const Control& control) {
  const int middle = control.top() + control.height() / 2;
  const Control* best = nullptr;
  int bestGap = kBesideGap + 1;
  for (const auto& other : control.form().controls()) {
    if (other.get() == &control) continue;
    if (other->kind() != ControlKind::Label && !isCaptionBox(*other)) continue;
    if (captionOf(*other).isEmpty()) continue;
    int gap = kBesideGap + 1;
    if (other->top() <= middle && middle < other->top() + other->height()) {
      // A label may reach a little under the box that it names.
      const int labelRight = other->left() + other->width();
      if (other->left() < control.left() && labelRight <= control.left() + control.width() / 2)
        gap = std::max(0, control.left() - labelRight);
      else if (other->left() >= control.left() + control.width())
        gap = other->left() - (control.left() + control.width()) + 1;  // left wins a tie
    } else if (other->top() + other->height() <= control.top() &&
               other->left() < control.left() + control.width() &&
               control.left() < other->left() + other->width()) {
      gap = control.top() - (other->top() + other->height()) + kBesideGap / 2;
    }
    if (gap < bestGap) {
      best = other.get();
      bestGap = gap;
    }
  }
  if (best == nullptr) return std::nullopt;
  return captionOf(*best);
}

// The label that the designer named after the box, "LblDivision1" for
// "TxtDivision1": two such pairs may share one place, shown in turn.
std::optional<QString> partnerLabel(const Control& control) {
  const std::string& name = control.name();
  if (control.isArrayElement() || name.rfind("Txt", 0) != 0) return std::nullopt;
  const Control* label = control.form().find("Lbl" + name.substr(3));
  if (label == nullptr || label->kind() != ControlKind::Label) return std::nullopt;
  return captionOf(*label);
}

QString textBoxName(const Control& control) {
  if (auto name = gridCellName(control)) return *name;
  if (auto name = numberRowName(control)) return *name;
  if (isCaptionBox(control)) return captionOf(control);
  if (auto name = partnerLabel(control)) return *name;
  if (auto name = captionBeside(control)) return *name;
  return QStringLiteral("Text box");
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
  // A picture is named by what it shows; its tool-tip, if any, is read after
  // the name as its description.
  if (control.picture() != Picture::None && control.caption().empty())
    return fromWindows1252(pictures::pictureSubject(control.picture()));
  switch (control.kind()) {
    case ControlKind::TextBox:
      return textBoxName(control);
    case ControlKind::Label:
      // A label without a caption has nothing to say.
      return spokenCaption(fromWindows1252(control.caption()));
    case ControlKind::CommandButton:
      if (const QString caption = spokenCaption(fromWindows1252(control.caption()));
          !caption.isEmpty())
        return caption;
      break;
    case ControlKind::ListBox:
      if (const QString tip = fromWindows1252(control.toolTipText()).simplified(); !tip.isEmpty())
        return tip;
      if (auto label = captionBeside(control)) return *label;
      break;
    case ControlKind::Image:
    case ControlKind::Document:
      break;
  }
  return QString::fromStdString(control.name());
}

}  // namespace veridraw::gui

// The design tables of the three ticket screens, control by control and field
// by field, against the tables written down in tests/tickets/data/. Whatever way
// the tables come to be built, the controls they hand to the screen model stay
// the same: name, index, kind, place, text, colours, font, state, tab order.
//
// To write the recorded tables anew after a deliberate change of a design, run
// the test with VERIDRAW_RECORD_DESIGNS=1 and read the difference before
// committing it.
#include <gtest/gtest.h>

#include <cstdint>
#include <cstdlib>
#include <fstream>
#include <iomanip>
#include <sstream>
#include <string>
#include <vector>

#include "lotto/veridraw7b.h"
#include "powerball/veridraw7e.h"
#include "strike/veridraw7c.h"

namespace veridraw::testing {
namespace {

const char* kindName(ControlKind kind) {
  switch (kind) {
    case ControlKind::TextBox:
      return "TextBox";
    case ControlKind::Label:
      return "Label";
    case ControlKind::CommandButton:
      return "CommandButton";
    case ControlKind::ListBox:
      return "ListBox";
    case ControlKind::Image:
      return "Image";
    case ControlKind::Document:
      return "Document";
  }
  return "?";
}

const char* alignmentName(Alignment alignment) {
  switch (alignment) {
    case Alignment::Left:
      return "Left";
    case Alignment::Right:
      return "Right";
    case Alignment::Center:
      return "Center";
  }
  return "?";
}

std::string colour(std::int32_t value) {
  if (value == kDefault) return "default";
  std::ostringstream out;
  out << "&H" << std::uppercase << std::hex << std::setw(6) << std::setfill('0') << value;
  return out.str();
}

std::string quoted(const std::string& text) {
  return "\"" + text + "\"";
}

// One line for the form, then one line a control, in the order of the table.
std::string dump(const FormDesign& form) {
  std::ostringstream out;
  out << "form " << form.name << " " << form.clientWidth << "x" << form.clientHeight
      << " back=" << colour(form.backColor) << " controls=" << form.controls.size() << "\n";
  int row = 0;
  for (const ControlDesign& c : form.controls) {
    out << row++ << " " << kindName(c.kind) << " " << c.name << "(" << c.index << ")"
        << " left=" << c.left << " top=" << c.top << " width=" << c.width << " height=" << c.height
        << " text=" << quoted(c.text) << " tip=" << quoted(c.toolTip)
        << " back=" << colour(c.backColor) << " fore=" << colour(c.foreColor)
        << " font=" << c.fontSize << (c.fontBold ? " bold" : " regular") << " visible=" << c.visible
        << " enabled=" << c.enabled << " locked=" << c.locked << " tabStop=" << c.tabStop
        << " tabIndex=" << c.tabIndex << " border=" << c.borderStyle
        << " align=" << alignmentName(c.alignment)
        << " picture=" << quoted(std::string(pictureName(c.picture)))
        << " focusOnClick=" << c.focusOnClick << "\n";
  }
  return out.str();
}

std::string recordedPath(const std::string& form) {
  return std::string(VERIDRAW_DESIGN_RECORDS) + "/" + form + "_design.txt";
}

std::string readFile(const std::string& path) {
  std::ifstream in(path, std::ios::binary);
  std::ostringstream text;
  text << in.rdbuf();
  return text.str();
}

std::vector<std::string> lines(const std::string& text) {
  std::vector<std::string> result;
  std::istringstream in(text);
  for (std::string line; std::getline(in, line);)
    result.push_back(line);
  return result;
}

void expectRecorded(const FormDesign& form) {
  const std::string actual = dump(form);
  const std::string path = recordedPath(form.name);
  if (std::getenv("VERIDRAW_RECORD_DESIGNS") != nullptr) {
    std::ofstream(path, std::ios::binary) << actual;
    GTEST_SKIP() << "recorded " << path;
  }
  const std::string expected = readFile(path);
  ASSERT_FALSE(expected.empty()) << "no recorded design in " << path;
  const std::vector<std::string> want = lines(expected);
  const std::vector<std::string> got = lines(actual);
  for (std::size_t k = 0; k < want.size() && k < got.size(); ++k)
    ASSERT_EQ(got[k], want[k]) << "first difference at line " << k + 1 << " of " << path;
  EXPECT_EQ(got.size(), want.size()) << path;
  EXPECT_EQ(actual, expected);
}

TEST(TicketDesigns, TheLottoScreenIsLaidOutAsRecorded) {
  expectRecorded(veridraw7bDesign());
}

TEST(TicketDesigns, TheStrikeScreenIsLaidOutAsRecorded) {
  expectRecorded(veridraw7cDesign());
}

TEST(TicketDesigns, ThePowerBallScreenIsLaidOutAsRecorded) {
  expectRecorded(veridraw7eDesign());
}

}  // namespace
}  // namespace veridraw::testing

#include "decoration/sample_ticket.h"

#include <string>

namespace veridraw {

namespace {

constexpr int kColumnStep = 300;
constexpr int kLineStep = 255;

std::string twoDigits(int number) {
  std::string digits = number < 10 ? "0" : "";
  digits += std::to_string(number);
  return digits;
}

// Lines of a ticket are lettered A to O with no letter I.
std::string lineLetter(int line) {
  const int skipI = line >= 'I' - 'A' ? 1 : 0;
  return std::string(1, static_cast<char>('A' + line + skipI)) + ".";
}

ControlDesign besideLine(int index, int left, int top, std::string text) {
  return textBox("TextATxt", {left, top, 300, 240}, std::move(text))
      .at(index)
      .border(0)
      .back(colors::kButtonFace)
      .lockedBox()
      .noTabStop()
      .decoration();
}

}  // namespace

void addSampleTicket(std::vector<ControlDesign>& controls, const SampleTicketLayout& layout) {
  for (int line = 0; line < layout.lines; ++line) {
    const int top = layout.top + line * kLineStep;
    for (int column = 0; column < layout.numbersPerLine; ++column) {
      const int cell = line * layout.numbersPerLine + column + 1;
      const int number = line * layout.lineStep + column * layout.columnStep + 1;
      controls.push_back(
          textBox("LineA", {layout.left + column * kColumnStep, top, 285, 240}, twoDigits(number))
              .at(cell)
              .centred()
              .lockedBox()
              .noTabStop()
              .decoration());
    }
    controls.push_back(besideLine(line + 1, layout.left - 360, top, lineLetter(line)));
    if (layout.lineNumbers)
      controls.push_back(
          besideLine(line + 1 + layout.lines, layout.left - 660, top, std::to_string(line + 1)));
  }
}

}  // namespace veridraw

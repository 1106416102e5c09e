#include "shell/sample_ticket.h"

#include <string>

namespace veridraw {

namespace {

constexpr int kLines = 5;
constexpr int kNumbersPerLine = 6;
constexpr int kFirstLeft = 1575;
constexpr int kColumnStep = 300;
constexpr int kFirstTop = 2220;
constexpr int kLineStep = 255;

std::string twoDigits(int number) { return (number < 10 ? "0" : "") + std::to_string(number); }

}  // namespace

void addSampleTicket(std::vector<ControlDesign>& controls) {
  for (int line = 0; line < kLines; ++line) {
    const int top = kFirstTop + line * kLineStep;
    for (int column = 0; column < kNumbersPerLine; ++column) {
      const int cell = line * kNumbersPerLine + column + 1;
      controls.push_back(textBox("LineA", {kFirstLeft + column * kColumnStep, top, 285, 240},
                                 twoDigits(line * 3 + column * 5 + 1))
                             .at(cell)
                             .centred()
                             .lockedBox()
                             .noTabStop());
    }
    const std::string letter(1, static_cast<char>('A' + line));
    controls.push_back(textBox("TextATxt", {kFirstLeft - 360, top, 300, 240}, letter + ".")
                           .at(line + 1)
                           .border(0)
                           .back(colors::kButtonFace)
                           .lockedBox()
                           .noTabStop());
    controls.push_back(textBox("TextATxt", {kFirstLeft - 660, top, 300, 240}, std::to_string(line + 1))
                           .at(line + 1 + kLines)
                           .border(0)
                           .back(colors::kButtonFace)
                           .lockedBox()
                           .noTabStop());
  }
}

}  // namespace veridraw

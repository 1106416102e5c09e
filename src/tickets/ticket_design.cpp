#include "tickets/ticket_design.h"

#include <string>
#include <utility>

namespace veridraw::tickets {

void addGrid(std::vector<ControlDesign>& controls, const ControlDesign& cell, int lines,
             int perLine, GridLayout layout) {
  for (int k = 1; k <= lines * perLine; ++k) {
    ControlDesign element = cell;
    element.index = k;
    element.left = layout.left + (k - 1) % perLine * layout.columnStep;
    element.top = layout.top + (k - 1) / perLine * layout.rowStep;
    controls.push_back(std::move(element));
  }
}

void addLineLetters(std::vector<ControlDesign>& controls, const ControlDesign& letter, int lines,
                    int rowStep) {
  for (int line = 1; line <= lines; ++line) {
    ControlDesign element = letter;
    element.index = line;
    element.top = letter.top + (line - 1) * rowStep;
    element.text = std::string(1, LineLetter(line)) + ".";
    controls.push_back(std::move(element));
  }
}

void addLineButtons(std::vector<ControlDesign>& controls, const ControlDesign& button,
                    const std::vector<LineButton>& buttons, int rowStep) {
  for (const LineButton& line : buttons) {
    ControlDesign element = button;
    element.name = line.name;
    element.top = button.top + (line.lines - 1) * rowStep;
    element.text = std::string("Line &") + LineLetter(line.lines);
    controls.push_back(std::move(element));
  }
}

}  // namespace veridraw::tickets

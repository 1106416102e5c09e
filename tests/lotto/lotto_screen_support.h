// A Lotto screen started on its own, with a draw on disk, dialogs answered from
// a queue and a stand-in for the draw screen that Main Menu goes back to.
#pragma once

#include <string>
#include <vector>

#include "lotto/veridraw7b.h"
#include "support/ticket_screen_support.h"

namespace veridraw::testing {

class LottoScreen : public TicketScreenTest {
 protected:
  // Draw 705: 03 08 17 22 39 40, bonus 12.
  static constexpr const char* kDraw705 = "X0308172239401202";

  LottoScreen() : TicketScreenTest("Veridraw7b", "Btn1Lotto") {}
  void SetUp() override { writeDraw("705", kDraw705); }

  // A ticket file as the screen writes one, from lines of six pairs.
  void writeTicket(const std::string& number, const std::vector<std::string>& lines) {
    dir.write("Lotto # " + number, ticketFile("Lotto # " + number, lines));
  }

  void open(const std::string& currentDraw = "705") { openScreen<Veridraw7b>(currentDraw); }

  void typeTicket(const std::vector<std::string>& lines) {
    chooseLines(static_cast<int>(lines.size()));
    for (const std::string& line : lines)
      type(line);
  }
};

}  // namespace veridraw::testing

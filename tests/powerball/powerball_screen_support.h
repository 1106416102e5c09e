// A PowerBall screen started on its own, on a draw of the PowerBall game, with
// the ways of typing a ticket and of loading a saved one.
#pragma once

#include <string>
#include <vector>

#include "powerball/veridraw7e.h"
#include "support/ticket_screen_support.h"

namespace veridraw::testing {

class PowerBallScreen : public TicketScreenTest {
 protected:
  // Draw 720: 03 08 17 22 39 40, bonus 12, PowerBall 05.
  static constexpr const char* kDraw720 = "X0308172239401205";

  PowerBallScreen() : TicketScreenTest("Veridraw7e", "BtnPowerBall") {}
  void SetUp() override { writeDraw("720", kDraw720); }

  void open(const std::string& currentDraw = "720") { openScreen<Veridraw7e>(currentDraw); }

  // A ticket file of four records, as the screen writes one: lines of six
  // pairs, and one PowerBall pair a line.
  void writeTicket(const std::string& number, const std::vector<std::string>& lines,
                   const std::vector<std::string>& powerBalls) {
    std::string pairs;
    for (const std::string& line : lines)
      pairs += line;
    std::string powerBallPairs;
    for (const std::string& powerBall : powerBalls)
      powerBallPairs += powerBall;
    const std::string name = "P-Ball # " + number;
    dir.write(name, " " + std::to_string(lines.size()) + " \r\n" + name + "\r\n " + pairs + "\r\n" +
                        powerBallPairs + "\r\n");
  }

  // The six numbers of each line typed in, up to the question.
  void typeLines(const std::vector<std::string>& lines) {
    chooseLines(static_cast<int>(lines.size()));
    for (const std::string& line : lines)
      type(line);
  }
  // No to the question, and a PowerBall number a line.
  void typeLineByLine(const std::vector<std::string>& powerBalls) {
    click("BtnNo");
    for (const std::string& powerBall : powerBalls)
      type(powerBall);
  }
  // Yes to the question, and the one number for all lines.
  void typeForAllLines(const std::string& powerBall) {
    click("BtnYes");
    type(powerBall);
  }
  void checkSaved(const std::string& number) {
    if (c("BtnCheckSavedTickets").visible()) click("BtnCheckSavedTickets");
    pick("LstLottoTicket", "P-Ball # " + number);
  }
};

}  // namespace veridraw::testing

// The Strike screen of the whole program, shown first, with draw 705 (Strike
// numbers 07 15 22 31 in drawn order) on disk. Tickets are typed in, or written
// as "Strike # 1" and clicked.
#pragma once

#include <filesystem>
#include <memory>
#include <string>
#include <vector>

#include "support/screen_fixture.h"
#include "tickets/ticket_game.h"

namespace veridraw::testing {

class StrikeScreen : public ScreenFixture {
 protected:
  StrikeScreen() : ScreenFixture("Veridraw7c") {}

  // The Strike numbers of draw 705, in the order in which they were drawn.
  static constexpr int kDrawn[] = {7, 15, 22, 31};
  static constexpr const char* kSavedName = "Strike # 1";

  void SetUp() override {
    writeDraw("705", "Z07152231");
    dir.write(kSavedName, ticketFile(kSavedName, {"01020304"}));
    dir.write("DrawNumber", "705\r\n");
    app = makeProgram(dialogs, dir.path());
    app->start("Veridraw7c");
    ASSERT_TRUE(app->running());
  }

  void writeDraw(const std::string& number, const std::string& strikeLine) {
    dir.write(number, number + "\r\nX0308172239401202\r\n" + strikeLine + "\r\n");
  }
  // Writes "Strike # 1" anew and clicks it in the list of saved tickets, which
  // loads it and checks it against the draw on display.
  void checkSaved(const std::vector<std::string>& lines) {
    // New files rather than files cut short and written again, which the file
    // system flushes to the disk at once: the loops of the tests stay fast.
    std::filesystem::remove(dir.path() / kSavedName);
    std::filesystem::remove(dir.path() / "TicketNumber");
    dir.write(kSavedName, ticketFile(kSavedName, lines));
    if (!c("LstLottoTicket").visible()) click("BtnCheckSavedTickets");
    pick("LstLottoTicket", kSavedName);
  }
  // Main Menu, then the Strike screen again: a new opening of the form.
  void reopen() {
    click("BtnRestart");
    Form& draws = app->form("Veridraw7f");
    app->click(draws.control("BtnCheckTickets"));
    app->click(draws.control("Btn2Strike"));
    ASSERT_EQ(app->activeForm(), &screen());
  }
  // The new-ticket road: the letter of the last line, then every line typed.
  void typeTicket(const std::vector<std::string>& lines) {
    click("BtnCheckNewTicket");
    click(std::string("BtnLine") + tickets::LineLetter(static_cast<int>(lines.size())));
    for (const std::string& line : lines)
      type(line);
  }
};

}  // namespace veridraw::testing

// The Strike screen of the whole program, shown first, with draw 705 (Strike
// numbers 07 15 22 31 in drawn order) on disk and dialogs answered from a
// queue. Tickets are typed in, or written as "Strike # 1" and clicked.
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <memory>
#include <string>
#include <vector>

#include "screen/application.h"
#include "shell/program.h"
#include "tickets/ticket_game.h"
#include "unit/test_support.h"

namespace veridraw::testing {

class StrikeScreen : public ::testing::Test {
 protected:
  // The Strike numbers of draw 705, in the order in which they were drawn.
  static constexpr int kDrawn[] = {7, 15, 22, 31};
  static constexpr const char* kSavedName = "Strike # 1";

  void SetUp() override {
    writeDraw("705", "Z07152231");
    writeSaved({"01020304"});
    dir.write("DrawNumber", "705\r\n");
    addVeridrawForms(*app);
    app->start("Veridraw7c");
    ASSERT_TRUE(app->running());
  }

  void writeDraw(const std::string& number, const std::string& strikeLine) {
    dir.write(number, number + "\r\nX0308172239401202\r\n" + strikeLine + "\r\n");
  }
  // The ticket "Strike # 1" as the screen writes one, from lines of four pairs.
  void writeSaved(const std::vector<std::string>& lines) {
    std::string pairs;
    for (const std::string& line : lines)
      pairs += line;
    dir.write(kSavedName,
              " " + std::to_string(lines.size()) + " \r\n" + kSavedName + "\r\n " + pairs + "\r\n");
  }
  // Writes the ticket anew and clicks it in the list of saved tickets, which
  // loads it and checks it against the draw on display.
  void checkSaved(const std::vector<std::string>& lines) {
    // New files rather than files cut short and written again, which the file
    // system flushes to the disk at once: the loops of the tests stay fast.
    std::filesystem::remove(dir.path() / kSavedName);
    std::filesystem::remove(dir.path() / "TicketNumber");
    writeSaved(lines);
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

  Form& screen() const { return app->form("Veridraw7c"); }
  Control& c(const std::string& name) const { return screen().control(name); }
  Control& c(const std::string& name, int index) const { return screen().control(name, index); }
  bool hasFocus(const std::string& name, int index = kNotInArray) const {
    return app->focus() == screen().find(name, index);
  }

  void click(const std::string& name) { app->click(c(name)); }
  void pick(const std::string& list, const std::string& item) {
    const auto& items = c(list).items();
    const auto found = std::find(items.begin(), items.end(), item);
    ASSERT_NE(found, items.end()) << item;
    app->selectItem(c(list), static_cast<int>(found - items.begin()));
  }
  void type(const std::string& keys) {
    for (const char key : keys)
      app->typeCharacter(key);
  }
  // The new-ticket road: the letter of the last line, then every line typed.
  void typeTicket(const std::vector<std::string>& lines) {
    click("BtnCheckNewTicket");
    click(std::string("BtnLine") + tickets::LineLetter(static_cast<int>(lines.size())));
    for (const std::string& line : lines)
      type(line);
  }

  TemporaryDirectory dir;
  QueuedDialogs dialogs;
  std::unique_ptr<Application> app = std::make_unique<Application>(dialogs, dir.path());
};

}  // namespace veridraw::testing

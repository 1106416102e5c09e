// A Lotto screen started on its own, with a draw on disk, dialogs answered from
// a queue and a stand-in for the draw screen that Main Menu goes back to.
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <string>
#include <vector>

#include "screen/application.h"
#include "tickets/veridraw7b.h"
#include "unit/screen_fixture.h"

namespace veridraw::testing {

// Stands in for the draw screen: Btn1Lotto opens the Lotto screen again.
class DrawScreenStandIn : public Form {
 public:
  explicit DrawScreenStandIn(Application& application)
      : Form(application, FormDesign{"Veridraw7f",
                                     11880,
                                     8595,
                                     colors::kButtonFace,
                                     {button("Btn1Lotto", {0, 0, 100, 100}, "Lotto")}}) {
    on("Btn1Lotto", Event::Click, [this] {
      Show("Veridraw7b");
      Unload();
    });
  }
};

class LottoScreen : public ScreenFixture {
 protected:
  LottoScreen() : ScreenFixture("Veridraw7b") {}

  // Draw 705: 03 08 17 22 39 40, bonus 12.
  static constexpr const char* kDraw705 = "X0308172239401202";

  void SetUp() override { writeDraw("705", kDraw705); }

  void writeDraw(const std::string& number, const std::string& lottoLine) {
    dir.write(number, number + "\r\n" + lottoLine + "\r\n\r\n");
  }
  // A ticket file as the screen writes one, from lines of six pairs.
  void writeTicket(const std::string& number, const std::vector<std::string>& lines) {
    dir.write("Lotto # " + number, ticketFile("Lotto # " + number, lines));
  }

  void open(const std::string& currentDraw = "705") {
    dir.write("DrawNumber", currentDraw + "\r\n");
    app = std::make_unique<Application>(dialogs, dir.path());
    app->addForm<Veridraw7b>();
    app->addForm<DrawScreenStandIn>();
    app->start("Veridraw7b");
    ASSERT_TRUE(app->running());
  }

  // Main Menu, then the Lotto screen again: a second opening of the form.
  void reopen() {
    click("BtnRestart");
    app->click(app->form("Veridraw7f").control("Btn1Lotto"));
  }

  std::string text(int cell) const { return c("LineA", cell).text(); }

  // The new-ticket road up to the first cell of a ticket of `lines` lines.
  void chooseLines(int lines) {
    click("BtnCheckNewTicket");
    click(std::string("BtnLine") + tickets::LineLetter(lines));
  }
  void typeTicket(const std::vector<std::string>& lines) {
    chooseLines(static_cast<int>(lines.size()));
    for (const std::string& line : lines)
      type(line);
  }
  std::vector<std::string> messages() const {
    std::vector<std::string> prompts;
    for (const auto& shown : dialogs.shown)
      prompts.push_back(shown.prompt);
    return prompts;
  }
};

}  // namespace veridraw::testing

// A ticket screen started on its own, with draws on disk, dialogs answered from
// a queue and a stand-in for the draw screen that Main Menu goes back to.
#pragma once

#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "support/screen_fixture.h"
#include "tickets/ticket_game.h"

namespace veridraw::testing {

// Stands in for the draw screen: the button of the game opens its screen again.
class DrawScreenStandIn : public Form {
 public:
  DrawScreenStandIn(Application& application, const std::string& gameButton, std::string screenName)
      : Form(application, FormDesign{"Veridraw7f",
                                     11880,
                                     8595,
                                     colors::kButtonFace,
                                     {button(gameButton, {0, 0, 100, 100}, "Game")}}) {
    on(gameButton, Event::Click, [this, screenName = std::move(screenName)] {
      Show(screenName);
      Unload();
    });
  }
};

class TicketScreenTest : public ScreenFixture {
 protected:
  TicketScreenTest(std::string screenName, std::string gameButton)
      : ScreenFixture(screenName),
        screenName_(std::move(screenName)),
        gameButton_(std::move(gameButton)) {}

  void writeDraw(const std::string& number, const std::string& lottoLine) {
    dir.write(number, number + "\r\n" + lottoLine + "\r\n\r\n");
  }

  template <class Screen>
  void openScreen(const std::string& currentDraw) {
    dir.write("DrawNumber", currentDraw + "\r\n");
    app = std::make_unique<Application>(dialogs, dir.path());
    app->addForm<Screen>();
    app->addForm<DrawScreenStandIn>(gameButton_, screenName_);
    app->start(screenName_);
    ASSERT_TRUE(app->running());
  }

  // Main Menu, then the screen again: a second opening of the form.
  void reopen() {
    click("BtnRestart");
    app->click(app->form("Veridraw7f").control(gameButton_));
  }

  std::string text(int cell) const { return c("LineA", cell).text(); }
  // The new-ticket road up to the first cell of a ticket of `lines` lines.
  void chooseLines(int lines) { user().chooseLines(lines); }
  std::vector<std::string> messages() const {
    std::vector<std::string> prompts;
    for (const auto& shown : dialogs.shown)
      prompts.push_back(shown.prompt);
    return prompts;
  }

 private:
  std::string screenName_;
  std::string gameButton_;
};

}  // namespace veridraw::testing

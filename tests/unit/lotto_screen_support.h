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
#include "unit/test_support.h"

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

class LottoScreen : public ::testing::Test {
 protected:
  // Draw 705: 03 08 17 22 39 40, bonus 12.
  static constexpr const char* kDraw705 = "X0308172239401202";

  void SetUp() override { writeDraw("705", kDraw705); }

  void writeDraw(const std::string& number, const std::string& lottoLine) {
    dir.write(number, number + "\r\n" + lottoLine + "\r\n\r\n");
  }
  // A ticket file as the screen writes one, from lines of six pairs.
  void writeTicket(const std::string& number, const std::vector<std::string>& lines) {
    std::string pairs;
    for (const std::string& line : lines)
      pairs += line;
    dir.write("Lotto # " + number, " " + std::to_string(lines.size()) + " \r\nLotto # " + number +
                                       "\r\n " + pairs + "\r\n");
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

  Form& screen() const { return app->form("Veridraw7b"); }
  Control& c(const std::string& name) const { return screen().control(name); }
  Control& c(const std::string& name, int index) const { return screen().control(name, index); }
  std::string text(int cell) const { return c("LineA", cell).text(); }
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

  TemporaryDirectory dir;
  QueuedDialogs dialogs;
  std::unique_ptr<Application> app;
};

}  // namespace veridraw::testing

// A small form for the tests of the screen model: a few controls of each kind,
// handlers that a test installs, and form-level variables that outlive Unload.
#pragma once

#include <functional>
#include <string>
#include <utility>

#include <gtest/gtest.h>

#include "screen/application.h"
#include "screen/form.h"
#include "support/test_support.h"

namespace veridraw::testing {

// Tab order: Box, Other, BtnGo, BtnHidden (hidden), List, Fixed (locked);
// then the label and the cells Cell(1), Cell(2), Cell(3), Cell(5), which have
// no tab stop.
FormDesign probeDesign(std::string name);

class ProbeForm : public Form {
 public:
  ProbeForm(Application& application, FormDesign design) : Form(application, std::move(design)) {}

  using Form::End;
  using Form::files;
  using Form::on;
  using Form::Show;
  using Form::Unload;

  std::function<void()> onLoad;
  // Form-level variables.
  int loads = 0;
  std::string remembered;

 protected:
  void Form_Load() override {
    ++loads;
    if (onLoad) onLoad();
  }
};

// An application of two probe forms, "First" and "Second", in a new directory.
class ScreenTest : public ::testing::Test {
 protected:
  TemporaryDirectory dir;
  QueuedDialogs dialogs;
  Application app{dialogs, dir.path()};
  ProbeForm& first = app.addForm<ProbeForm>(probeDesign("First"));
  ProbeForm& second = app.addForm<ProbeForm>(probeDesign("Second"));

  void start() { app.start("First"); }
  Control& control(const char* name) { return first.control(name); }
  Control& cell(int index) { return first.control("Cell", index); }
  // The name of the control with the focus, or "none".
  std::string focusName() const {
    return app.focus() != nullptr ? app.focus()->displayName() : "none";
  }
};

}  // namespace veridraw::testing

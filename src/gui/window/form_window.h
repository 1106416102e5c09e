// The window of one form: a fixed-size top-level window with a view for each
// control, made when the form is loaded and thrown away when it is unloaded.
// Every key and click in it goes to the model through the desktop.
#pragma once

#include <QWidget>
#include <memory>
#include <string_view>
#include <vector>

#include "screen/form.h"

namespace veridraw::gui {

class ControlView;
class Desktop;
class NativeWindowLoss;

class FormWindow : public QWidget {
 public:
  FormWindow(Desktop& desktop, Form& form);
  ~FormWindow() override;

  Form& form() const { return form_; }
  // The area, on the screen, that a message box should leave in view: the
  // control with the focus and every cell painted red. Empty when there is none.
  QRect keepClearArea() const;
  // Whether the form still has the controls that this window was made for.
  bool showsCurrentControls() const;
  // Takes over the state of every control; call only while showsCurrentControls().
  void sync();
  ControlView* view(std::string_view name, int index = kNotInArray) const;
  const std::vector<ControlView*>& views() const { return views_; }
  // The view of the control that has the model's focus, or null.
  ControlView* focusedView() const;
  // The model's control of a view, while the form still has it; else null.
  Control* controlOf(const ControlView& view) const;

  // What the user does with the mouse on a view.
  void clicked(const ControlView& view);
  void itemSelected(const ControlView& view, int row);
  void scrolled(const ControlView& view, int topIndex);

 protected:
  bool event(QEvent* event) override;
  void closeEvent(QCloseEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;

 private:
  // The user closes the window, or it is destroyed from outside: either ends
  // the program as its close button does.
  void windowClosed();

  Desktop& desktop_;
  Form& form_;
  int generation_;
  std::vector<ControlView*> views_;
  std::unique_ptr<NativeWindowLoss> loss_;
};

}  // namespace veridraw::gui

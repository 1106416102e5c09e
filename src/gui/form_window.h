// The window of one form: a fixed-size top-level window with a view for each
// control, made when the form is loaded and thrown away when it is unloaded.
// Every key and click in it goes to the model through the desktop.
#pragma once

#include <QWidget>
#include <string_view>
#include <vector>

#include "screen/form.h"

namespace veridraw::gui {

class ControlView;
class Desktop;

class FormWindow : public QWidget {
 public:
  FormWindow(Desktop& desktop, Form& form);

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

  // What the user does with the mouse on a view.
  void clicked(const ControlView& view);
  void itemSelected(const ControlView& view, int row);
  void scrolled(const ControlView& view, int topIndex);

 protected:
  bool event(QEvent* event) override;
  void closeEvent(QCloseEvent* event) override;

 private:
  Control* controlOf(const ControlView& view) const;

  Desktop& desktop_;
  Form& form_;
  int generation_;
  std::vector<ControlView*> views_;
};

}  // namespace veridraw::gui

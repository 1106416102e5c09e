// One control of the model on the screen: it paints the control as the model
// last had it, and tells its window what the mouse does to it. It takes no
// keyboard focus and acts on nothing by itself.
#pragma once

#include <QWidget>
#include <string>

#include "gui/control_look.h"

class QScrollBar;

namespace veridraw::gui {

class FormWindow;

class ControlView : public QWidget {
 public:
  ControlView(FormWindow& window, const Control& control);

  const std::string& controlName() const { return name_; }
  int controlIndex() const { return index_; }
  const ControlLook& look() const { return look_; }
  // The list's scroll bar, shown while its items don't fit; null for other kinds.
  QScrollBar* scrollBar() const { return scrollBar_; }

  // Takes over the control's present state.
  void sync(const Control& control, bool focused);

 protected:
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;

 private:
  void syncScrollBar();

  FormWindow& window_;
  std::string name_;
  int index_;
  ControlLook look_;
  bool pressed_ = false;
  QScrollBar* scrollBar_ = nullptr;
};

}  // namespace veridraw::gui

// One control of the model on the screen: it paints the control as the model
// last had it, and tells its window what the mouse does to it. It takes no
// keyboard focus and acts on nothing by itself.
#pragma once

#include <QWidget>
#include <cstdint>
#include <string>

#include "gui/look/control_look.h"
#include "gui/look/control_painting.h"

class QScrollBar;

namespace veridraw::gui {

class FormWindow;

class ControlView : public QWidget {
 public:
  ControlView(FormWindow& window, Control& control);

  // The control, while its window shows the controls it was made for.
  Control& control() const { return control_; }
  const std::string& controlName() const { return name_; }
  int controlIndex() const { return index_; }
  const ControlLook& look() const { return look_; }
  // The list's scroll bar, shown while its items don't fit; null for other kinds.
  QScrollBar* scrollBar() const { return scrollBar_; }

  // Takes over the control's present state, if it changed since the last time.
  void sync(const Control& control, bool focused);

 protected:
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;

 private:
  void syncScrollBar();

  FormWindow& window_;
  Control& control_;
  std::string name_;
  int index_;
  ControlLook look_;
  LookSources sources_;
  // The control's count of changes when the view last took over its state.
  std::uint64_t revision_ = 0;
  bool synced_ = false;
  bool pressed_ = false;
  QScrollBar* scrollBar_ = nullptr;
  PaintCache paintCache_;
};

}  // namespace veridraw::gui

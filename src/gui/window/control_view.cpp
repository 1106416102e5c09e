#include "gui/window/control_view.h"

#include <QMouseEvent>
#include <QPainter>
#include <QScrollBar>
#include <QSignalBlocker>
#include <QWheelEvent>
#include <algorithm>
#include <utility>

#include "gui/accessibility/accessibility.h"
#include "gui/look/appearance.h"
#include "gui/look/control_painting.h"
#include "gui/window/form_window.h"
#include "gui/window/windows1252.h"

namespace veridraw::gui {

namespace {

constexpr int kWheelStep = 120;
constexpr int kRowsPerWheelStep = 3;

}  // namespace

ControlView::ControlView(FormWindow& window, Control& control)
    : QWidget(&window),
      window_(window),
      control_(control),
      name_(control.name()),
      index_(control.index()) {
  setFocusPolicy(Qt::NoFocus);
  // The model has no way to change a tool-tip: it is set once.
  setToolTip(fromWindows1252(control.toolTipText()));
  look_.kind = control.kind();
  if (control.kind() != ControlKind::ListBox) return;
  scrollBar_ = new QScrollBar(Qt::Vertical, this);
  scrollBar_->setFocusPolicy(Qt::NoFocus);
  scrollBar_->hide();
  QObject::connect(scrollBar_, &QScrollBar::valueChanged,
                   [this](int topIndex) { window_.scrolled(*this, topIndex); });
}

void ControlView::sync(const Control& control, bool focused) {
  const bool first = !synced_;
  if (!first && control.revision() == revision_ && focused == look_.focused) return;
  synced_ = true;
  revision_ = control.revision();
  const QRect place = toPixels(control.left(), control.top(), control.width(), control.height());
  if (place != geometry()) setGeometry(place);
  // Shown or hidden explicitly from the first, so that showing the window
  // doesn't show a view that the model hides.
  const bool appeared = !first && control.visible() && isHidden();
  if (first || control.visible() == isHidden()) setVisible(control.visible());
  ControlLook look = look_;
  updateLook(look, sources_, control, focused);
  if (look != look_ || appeared) {
    const ControlLook before = std::exchange(look_, std::move(look));
    if (before != look_) update();
    announceChange(*this, before, appeared);
  }
  if (scrollBar_ != nullptr) syncScrollBar();
}

void ControlView::syncScrollBar() {
  const ListRows rows = listRows(rect(), look_);
  const QSignalBlocker quiet(scrollBar_);
  scrollBar_->setGeometry(rows.scrollBar);
  scrollBar_->setRange(0, rows.lastTopIndex(static_cast<int>(look_.items.size())));
  scrollBar_->setPageStep(rows.visibleRows);
  scrollBar_->setValue(look_.topIndex);
  scrollBar_->setVisible(!rows.scrollBar.isEmpty());
}

void ControlView::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  paintControl(painter, rect(), look_, pressed_, &paintCache_);
}

void ControlView::mousePressEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton) return;
  if (look_.kind == ControlKind::ListBox) {
    const int row = listRows(rect(), look_)
                        .rowAt(event->position().toPoint(), look_.topIndex,
                               static_cast<int>(look_.items.size()));
    if (row >= 0) return window_.itemSelected(*this, row);
    return window_.clicked(*this);
  }
  pressed_ = true;
  update();
}

void ControlView::mouseReleaseEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton || !pressed_) return;
  pressed_ = false;
  update();
  if (rect().contains(event->position().toPoint())) window_.clicked(*this);
}

void ControlView::wheelEvent(QWheelEvent* event) {
  if (look_.kind != ControlKind::ListBox) return event->ignore();
  const int rowsDown = -event->angleDelta().y() / kWheelStep * kRowsPerWheelStep;
  const int last = listRows(rect(), look_).lastTopIndex(static_cast<int>(look_.items.size()));
  const int topIndex = std::clamp(look_.topIndex + rowsDown, 0, last);
  if (topIndex != look_.topIndex) window_.scrolled(*this, topIndex);
}

}  // namespace veridraw::gui

#include "gui/window/form_window.h"

#include <QCloseEvent>
#include <QKeyEvent>
#include <QScreen>
#include <QTimer>

#include "gui/accessibility/accessibility.h"
#include "gui/dialogs/window_placement.h"
#include "gui/look/appearance.h"
#include "gui/platform/native_window_loss.h"
#include "gui/window/control_view.h"
#include "gui/window/desktop.h"
#include "gui/window/key_input.h"
#include "gui/window/windows1252.h"
#include "screen/application.h"

namespace veridraw::gui {

namespace {

// Labels and images are drawn on the form itself, beneath every control that
// is a window of its own.
bool drawnOnForm(ControlKind kind) {
  return kind == ControlKind::Label || kind == ControlKind::Image;
}

}  // namespace

FormWindow::FormWindow(Desktop& desktop, Form& form)
    : QWidget(nullptr, Qt::Window | Qt::CustomizeWindowHint | Qt::WindowTitleHint |
                           Qt::WindowSystemMenuHint | Qt::WindowCloseButtonHint),
      desktop_(desktop),
      form_(form),
      generation_(form.generation()) {
  setWindowTitle(fromWindows1252(kFormCaption));
  setFixedSize(toPixels(form.design().clientWidth), toPixels(form.design().clientHeight));
  setFocusPolicy(Qt::StrongFocus);
  QPalette colours = palette();
  colours.setColor(QPalette::Window, modelColor(form.design().backColor));
  setPalette(colours);
  setAutoFillBackground(true);

  for (const bool onForm : {true, false}) {
    for (const auto& control : form.controls()) {
      if (drawnOnForm(control->kind()) == onForm)
        views_.push_back(new ControlView(*this, *control));
    }
  }
  // The whole frame centred, title bar included, once the frame is known.
  new FramePlacer(*this, [this](const QSize& frame) {
    return formWindowPlace(screen()->availableGeometry(), frame);
  });
  loss_ = std::make_unique<NativeWindowLoss>(*this, [this] { windowClosed(); });
}

FormWindow::~FormWindow() = default;

QRect FormWindow::keepClearArea() const {
  const QColor red = modelColor(colors::kRed);
  QRect area;
  for (const ControlView* view : views_) {
    if (!view->isVisibleTo(this) || (!view->look().focused && view->look().background != red))
      continue;
    area |= QRect(view->mapToGlobal(QPoint(0, 0)), view->size());
  }
  return area;
}

bool FormWindow::showsCurrentControls() const {
  return form_.loaded() && form_.generation() == generation_;
}

void FormWindow::sync() {
  if (!showsCurrentControls()) return;
  const Control* focus = form_.focus();
  for (ControlView* view : views_)
    view->sync(view->control(), &view->control() == focus);
  finishAnnouncements();
}

ControlView* FormWindow::view(std::string_view name, int index) const {
  for (ControlView* view : views_)
    if (view->controlName() == name && view->controlIndex() == index) return view;
  return nullptr;
}

ControlView* FormWindow::focusedView() const {
  const Control* focus = showsCurrentControls() ? form_.focus() : nullptr;
  return focus != nullptr ? view(focus->name(), focus->index()) : nullptr;
}

Control* FormWindow::controlOf(const ControlView& view) const {
  return showsCurrentControls() ? &view.control() : nullptr;
}

void FormWindow::clicked(const ControlView& view) {
  if (Control* control = controlOf(view))
    desktop_.act([control](Application& application) { application.click(*control); });
}

void FormWindow::itemSelected(const ControlView& view, int row) {
  if (Control* control = controlOf(view))
    desktop_.act(
        [control, row](Application& application) { application.selectItem(*control, row); });
}

void FormWindow::scrolled(const ControlView& view, int topIndex) {
  if (Control* control = controlOf(view)) desktop_.scroll(*control, topIndex);
}

bool FormWindow::event(QEvent* event) {
  switch (event->type()) {
    case QEvent::ShortcutOverride:
      // Every key is the model's: no shortcut of the toolkit takes one.
      event->accept();
      return true;
    case QEvent::KeyPress:
      desktop_.key(translateKey(static_cast<const QKeyEvent&>(*event)));
      return true;
    case QEvent::KeyRelease:
      return true;
    default:
      return QWidget::event(event);
  }
}

void FormWindow::focusInEvent(QFocusEvent* event) {
  QWidget::focusInEvent(event);
  // Qt announces the window itself once this returns; the model's focused
  // control is announced after it, so that a screen reader lands there.
  QTimer::singleShot(0, this, [this] { announceFocus(*this); });
}

void FormWindow::closeEvent(QCloseEvent* event) {
  event->ignore();
  windowClosed();
}

void FormWindow::windowClosed() {
  // A window already replaced by the next form's has nothing left to end.
  if (desktop_.window() != this) return;
  desktop_.act([](Application& application) { application.closeWindow(); });
}

}  // namespace veridraw::gui

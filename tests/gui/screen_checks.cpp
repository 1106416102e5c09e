#include "screen_checks.h"

#include <QAbstractButton>
#include <QImage>
#include <QPainter>
#include <QTest>
#include <cstdint>
#include <cstdlib>

#include "gui/look/control_painting.h"

namespace veridraw::gui::testing {

namespace {

// How a view looks in a box of `size` when the focus isn't on it.
QImage paintedWithoutFocus(const ControlView& view, const QSize& size) {
  QImage image(size, QImage::Format_RGB32);
  ControlLook look = view.look();
  look.focused = false;
  QPainter painter(&image);
  paintControl(painter, image.rect(), look, false);
  return image;
}

// Whether the view, as it stands on the screen, shows the focus: its caret or
// the frame of the button that Enter presses.
bool showsFocus(ControlView& view) {
  return view.grab().toImage().convertToFormat(QImage::Format_RGB32) !=
         paintedWithoutFocus(view, view.size());
}

// The columns of the image, inside its frame, in which something stands out
// from the background: the ink of a text, soft edges of its glyphs included.
int inkedColumns(const QImage& image, const QColor& background) {
  constexpr int kFrame = 2;
  constexpr int kContrast = 120;
  const auto inked = [&background](const QColor& pixel) {
    return std::abs(pixel.red() - background.red()) + std::abs(pixel.green() - background.green()) +
               std::abs(pixel.blue() - background.blue()) >
           kContrast;
  };
  int columns = 0;
  for (int x = kFrame; x < image.width() - kFrame; ++x) {
    for (int y = kFrame; y < image.height() - kFrame; ++y) {
      if (!inked(image.pixelColor(x, y))) continue;
      ++columns;
      break;
    }
  }
  return columns;
}

}  // namespace

Control& ScreenChecks::control(const char* name, int index) const {
  return program_->application().activeForm()->control(name, index);
}

void ScreenChecks::type(const char* keys) {
  QTest::keyClicks(program_->window(), keys);
}

void ScreenChecks::expectText(const char* name, const char* text, int index) {
  QCOMPARE(control(name, index).text(), text);
  QCOMPARE(program_->view(name, index)->look().text, text);
}

void ScreenChecks::expectCells(const char* name, const QStringList& texts) {
  for (int index = 1; index <= texts.size(); ++index) {
    const QByteArray text = texts[index - 1].toLatin1();
    QCOMPARE(control(name, index).text(), text.toStdString());
    QCOMPARE(program_->view(name, index)->look().text, texts[index - 1]);
  }
}

void ScreenChecks::expectShown(const char* name, bool shown, int index) {
  QCOMPARE(control(name, index).visible(), shown);
  QCOMPARE(program_->view(name, index)->isVisible(), shown);
}

void ScreenChecks::expectCellsShown(const char* name, int count, bool shown) {
  for (int index = 1; index <= count; ++index)
    expectShown(name, shown, index);
}

void ScreenChecks::expectFocus(const char* name, int index) {
  QCOMPARE(program_->application().focus(), &control(name, index));
  for (ControlView* view : program_->window()->views()) {
    const bool focused = view->controlName() == name && view->controlIndex() == index;
    QCOMPARE(view->look().focused, focused);
    if (focused) QVERIFY(showsFocus(*view));
  }
}

void ScreenChecks::expectWholeText(const char* name, int index) {
  const ControlView& view = *program_->view(name, index);
  const QColor paper = view.look().background;
  const QImage roomy = paintedWithoutFocus(view, QSize(view.width() * 3, view.height()));
  QVERIFY(inkedColumns(roomy, paper) > 0);
  QCOMPARE(inkedColumns(paintedWithoutFocus(view, view.size()), paper), inkedColumns(roomy, paper));
}

InputBoxSeen ScreenChecks::pressAndAnswer(Qt::Key key, Qt::KeyboardModifiers modifiers,
                                          const QString& answer) {
  InputBoxSeen seen;
  const DialogAnswer reply = answerInputBox(answer, seen);
  QTest::keyClick(program_->window(), key, modifiers);
  if (!reply.answered()) QTest::qFail("no input box came up", __FILE__, __LINE__);
  return seen;
}

void ScreenChecks::typeRefused(const char* keys, const char* cell, int index,
                               const QString& message) {
  QString shown;
  std::int32_t modelColour = 0;
  QColor screenColour;
  bool cellInView = false;
  MessageBoxSeen seen;
  const DialogAnswer reply([&](QWidget* dialog) {
    const ControlView& view = *program_->view(cell, index);
    shown = view.look().text;
    modelColour = control(cell, index).backColor();
    const QImage screen = program_->window()->grab().toImage();
    screenColour = screen.pixelColor(view.geometry().topLeft() + QPoint(3, 3));
    cellInView =
        !dialog->frameGeometry().intersects(QRect(view.mapToGlobal(QPoint()), view.size()));
    auto* box = qobject_cast<QMessageBox*>(dialog);
    seen = seenIn(*box);
    box->button(QMessageBox::Ok)->click();
  });
  type(keys);
  QVERIFY(reply.answered());
  // The number, two characters and the blank that the cell began with.
  QCOMPARE(shown, QString(keys).right(2) + " ");
  QCOMPARE(seen.title, "WARNING");
  QCOMPARE(seen.text, message);
  QCOMPARE(seen.icon, QMessageBox::NoIcon);
  QCOMPARE(seen.buttons, QMessageBox::StandardButtons(QMessageBox::Ok));
  QCOMPARE(modelColour, 0x0000FF);
  QCOMPARE(screenColour, QColor(255, 0, 0));
  // The box stands clear of the red cell.
  QVERIFY(cellInView);
}

}  // namespace veridraw::gui::testing

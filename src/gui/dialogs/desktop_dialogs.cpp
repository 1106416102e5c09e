#include "gui/dialogs/desktop_dialogs.h"

#include <QInputDialog>
#include <QMessageBox>
#include <QScreen>

#include "gui/dialogs/window_placement.h"
#include "gui/look/appearance.h"
#include "gui/window/form_window.h"
#include "gui/window/windows1252.h"
#include "screen/form.h"

namespace veridraw::gui {

namespace {

constexpr int kButtonSet = 0x07;
constexpr int kIcon = 0x70;

// Prompts break lines with CR LF, as the model writes them.
QString dialogText(const std::string& text) {
  return fromWindows1252(text).replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
}

}  // namespace

int DesktopDialogs::MsgBox(const std::string& prompt, int buttons, const std::string& title) {
  QWidget* parent = owner();
  const bool yesNo = (buttons & kButtonSet) == msgbox::kYesNo;
  const bool exclamation = (buttons & kIcon) == msgbox::kExclamation;
  QMessageBox box(exclamation ? QMessageBox::Warning : QMessageBox::NoIcon, fromWindows1252(title),
                  dialogText(prompt), yesNo ? QMessageBox::Yes | QMessageBox::No : QMessageBox::Ok,
                  parent);
  box.setTextFormat(Qt::PlainText);
  if (const auto* window = dynamic_cast<const FormWindow*>(parent)) {
    const QRect owner = window->frameGeometry();
    const QRect keepClear = window->keepClearArea();
    new FramePlacer(box, [&box, owner, keepClear](const QSize& frame) {
      return messageBoxPlace(box.screen()->availableGeometry(), owner, frame, keepClear);
    });
  }
  box.exec();
  const QMessageBox::StandardButton pressed = box.standardButton(box.clickedButton());
  if (pressed == QMessageBox::Yes) return msgbox::kYes;
  if (pressed == QMessageBox::No || yesNo) return msgbox::kNo;
  return msgbox::kOk;
}

std::string DesktopDialogs::InputBox(const std::string& prompt, const std::string& title,
                                     const std::string& defaultText, int xpos, int ypos) {
  QWidget* parent = owner();
  QInputDialog box(parent);
  box.setInputMode(QInputDialog::TextInput);
  box.setWindowTitle(fromWindows1252(title));
  box.setLabelText(dialogText(prompt));
  box.setTextValue(fromWindows1252(defaultText));
  // The frame's top-left corner, title bar included, at the point given.
  const QPoint corner(toPixels(xpos), toPixels(ypos));
  new FramePlacer(box, [corner](const QSize&) { return corner; });
  if (box.exec() != QDialog::Accepted) return "";
  return toWindows1252(box.textValue());
}

QString runTimeErrorText(const FatalError& error) {
  return QStringLiteral("Run-time error '%1':\n\n%2")
      .arg(error.number())
      .arg(fromWindows1252(error.text()));
}

void showRunTimeError(QWidget* owner, const FatalError& error) {
  QMessageBox box(QMessageBox::Critical, fromWindows1252(kFormCaption), runTimeErrorText(error),
                  QMessageBox::Ok, owner);
  box.setTextFormat(Qt::PlainText);
  box.exec();
}

}  // namespace veridraw::gui

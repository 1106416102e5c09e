// veridraw: the desktop program. It runs the forms of Veridraw in the current
// working directory, where its draw and ticket files are, starting at the
// start screen.
#include <QApplication>
#include <QIcon>
#include <filesystem>

#include "gui/dialogs/desktop_dialogs.h"
#include "gui/look/classic_style.h"
#include "gui/platform/display_check.h"
#include "gui/window/desktop.h"
#include "program/program.h"

int main(int argc, char** argv) {
  veridraw::gui::exitIfNoDisplayInSight();
  veridraw::gui::holdMessagesWhileConnecting();
  QApplication qt(argc, argv);
  veridraw::gui::displayConnected();
  // The desktop matches the program's windows with its menu entry and icon.
  QGuiApplication::setDesktopFileName("org.veridraw.Veridraw");
  QApplication::setWindowIcon(QIcon::fromTheme("org.veridraw.Veridraw"));
  // The program ends by End, by the close button or by a fatal error, never
  // because a window went away in passing from one form to the next.
  QApplication::setQuitOnLastWindowClosed(false);
  veridraw::gui::useClassicStyle();

  veridraw::gui::DesktopDialogs dialogs;
  veridraw::Application application(dialogs, std::filesystem::current_path());
  veridraw::addVeridrawForms(application);
  veridraw::gui::Desktop desktop(application, dialogs);
  desktop.onFinished([](int exitCode) { QCoreApplication::exit(exitCode); });
  desktop.start(veridraw::kFirstForm);
  if (desktop.finished()) return desktop.exitCode();
  return QApplication::exec();
}

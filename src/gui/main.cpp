// veridraw: the desktop program. It runs the forms of Veridraw in the current
// working directory, where its draw and ticket files are, starting at the
// start screen.
#include <QApplication>
#include <QIcon>
#include <filesystem>
#include <optional>

#include "gui/dialogs/desktop_dialogs.h"
#include "gui/look/classic_style.h"
#include "gui/platform/command_line.h"
#include "gui/platform/display_check.h"
#include "gui/platform/single_instance.h"
#include "gui/window/desktop.h"
#include "gui/window/form_window.h"
#include "program/program.h"

int main(int argc, char** argv) {
  if (const std::optional<int> answered = veridraw::gui::answerCommandLine(argc, argv))
    return *answered;
  veridraw::gui::exitIfNoDisplayInSight();
  veridraw::gui::holdMessagesWhileConnecting();
  QApplication qt(argc, argv);
  veridraw::gui::displayConnected();
  const std::filesystem::path folder = std::filesystem::current_path();
  // A second start in this folder raises the window of the first and ends.
  veridraw::gui::SingleInstance instance(folder);
  if (!instance.claim()) return 0;
  // The desktop matches the program's windows with its menu entry and icon.
  QGuiApplication::setDesktopFileName("org.veridraw.Veridraw");
  QApplication::setWindowIcon(QIcon::fromTheme("org.veridraw.Veridraw"));
  // The program ends by End, by the close button or by a fatal error, never
  // because a window went away in passing from one form to the next.
  QApplication::setQuitOnLastWindowClosed(false);
  veridraw::gui::useClassicStyle();

  veridraw::gui::DesktopDialogs dialogs;
  veridraw::Application application(dialogs, folder);
  veridraw::addVeridrawForms(application);
  veridraw::gui::Desktop desktop(application, dialogs);
  instance.raiseOnRequest([&desktop]() -> QWidget* { return desktop.window(); });
  desktop.onFinished([](int exitCode) { QCoreApplication::exit(exitCode); });
  desktop.start(veridraw::kFirstForm);
  if (desktop.finished()) return desktop.exitCode();
  return QApplication::exec();
}

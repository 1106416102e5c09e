// veridraw: the desktop program. It runs the forms of Veridraw in the current
// working directory, where its draw and ticket files are, starting at the
// start screen.
#include <unistd.h>
#include <QApplication>
#include <QByteArray>
#include <QIcon>
#include <QString>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <vector>

#include "gui/classic_style.h"
#include "gui/desktop.h"
#include "gui/desktop_dialogs.h"
#include "shell/program.h"

namespace {

// Without a display the program can do nothing; it says so in one line and
// ends with this code (EX_UNAVAILABLE), well apart from an abort's 134.
constexpr int kNoDisplay = 69;
constexpr char kNoDisplayLine[] =
    "veridraw: no graphical display found; run it on a desktop, or try veridraw-script for the "
    "scripted runner\n";

[[noreturn]] void noDisplay() {
  std::fputs(kNoDisplayLine, stderr);
  std::fflush(stderr);
  // _exit, not exit: Qt is half set up, and no destructor of it may run.
  _exit(kNoDisplay);
}

bool isSet(const char* name) {
  const char* value = std::getenv(name);
  return value != nullptr && *value != '\0';
}

// No platform asked for, and neither an X nor a Wayland display to connect to.
bool noDisplayInSight() {
  return !isSet("QT_QPA_PLATFORM") && !isSet("DISPLAY") && !isSet("WAYLAND_DISPLAY");
}

// While Qt connects to the display, its messages are held back: if the
// platform plugin can't connect, Qt ends with a fatal message whose advice
// ("Reinstalling the application may fix this problem") is wrong, and
// abort() would leave a core file. The handler prints the one plain line
// instead and ends before the abort. Once the connection stands, the held
// messages go out as Qt would have shown them.
QtMessageHandler qtHandler = nullptr;
bool connecting = false;
// A held message keeps copies of its context's texts: a plugin that failed to
// load may be gone, with its strings, by the time the message goes out.
struct HeldMessage {
  QtMsgType type;
  QByteArray file;
  int line;
  QByteArray function;
  QByteArray category;
  QString text;
};
std::vector<HeldMessage> heldMessages;

// The text of a held context field, or null where the context had none.
const char* orNull(const QByteArray& text) {
  return text.isNull() ? nullptr : text.constData();
}

void startUpMessages(QtMsgType type, const QMessageLogContext& context, const QString& message) {
  if (connecting && type == QtFatalMsg) noDisplay();
  if (connecting)
    heldMessages.push_back({type, QByteArray(context.file), context.line,
                            QByteArray(context.function), QByteArray(context.category), message});
  else
    qtHandler(type, context, message);
}

void connected() {
  connecting = false;
  for (const HeldMessage& held : heldMessages) {
    const QMessageLogContext context(orNull(held.file), held.line, orNull(held.function),
                                     orNull(held.category));
    qtHandler(held.type, context, held.text);
  }
  heldMessages.clear();
}

}  // namespace

int main(int argc, char** argv) {
  if (noDisplayInSight()) noDisplay();
  qtHandler = qInstallMessageHandler(startUpMessages);
  connecting = true;
  QApplication qt(argc, argv);
  connected();
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

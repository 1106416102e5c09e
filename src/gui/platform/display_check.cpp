#include "gui/platform/display_check.h"

#include <sys/stat.h>
#include <unistd.h>
#include <QByteArray>
#include <QRegularExpression>
#include <QString>
#include <QtGlobal>
#include <cstdio>
#include <cstdlib>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace veridraw::gui {

namespace {

// Without a display the program can do nothing; it says so in one line and
// ends with this code (EX_UNAVAILABLE), well apart from an abort's 134.
constexpr int kNoDisplay = 69;
constexpr char kNoDisplayLine[] =
    "veridraw: no graphical display found; run it on a desktop, or try veridraw-script for the "
    "scripted runner\n";

[[noreturn]] void noDisplay(const std::string& line = kNoDisplayLine) {
  std::fputs(line.c_str(), stderr);
  std::fflush(stderr);
  // _exit, not exit: Qt is half set up, and no destructor of it may run.
  _exit(kNoDisplay);
}

bool isSet(const char* name) {
  const char* value = std::getenv(name);
  return value != nullptr && *value != '\0';
}

// A Wayland display whose socket is there. Wayland's sockets always stand in
// the file system, so a missing one is known before connecting; the Wayland
// library would otherwise print its own complaint on the way to Qt's failure.
// `defaultName` is the display that the Wayland library connects to when
// WAYLAND_DISPLAY is unset, if it is to be counted.
bool waylandSocketThere(const char* defaultName = nullptr) {
  const char* display = std::getenv("WAYLAND_DISPLAY");
  if (display == nullptr || *display == '\0') display = defaultName;
  if (display == nullptr) return false;
  std::string socket = display;
  if (socket.front() != '/') {
    const char* runtime = std::getenv("XDG_RUNTIME_DIR");
    if (runtime == nullptr || *runtime == '\0') return false;
    socket = std::string(runtime) + "/" + socket;
  }
  struct stat status;
  return ::stat(socket.c_str(), &status) == 0 && S_ISSOCK(status.st_mode);
}

// No platform asked for, no X display named, and no Wayland display to connect
// to. An X display is left to the connection itself: its socket may be one
// that the file system doesn't show.
bool noDisplayInSight() {
  return !isSet("QT_QPA_PLATFORM") && !isSet("DISPLAY") && !waylandSocketThere();
}

// The platform asked for is Wayland alone (no other platform named after it
// to fall back on), and its socket isn't there: the Wayland library would
// print its own complaint, such as about XDG_RUNTIME_DIR, above the line.
bool onlyWaylandAndNoSocket() {
  const char* platform = std::getenv("QT_QPA_PLATFORM");
  if (platform == nullptr) return false;
  const std::string_view asked = platform;
  const bool wayland = asked.starts_with("wayland") && asked.find(';') == std::string_view::npos;
  return wayland && !waylandSocketThere("wayland-0");
}

// Qt's messages while it failed to start tell a platform that isn't installed
// ("Could not find the Qt platform plugin") from one that can't connect. The
// line for the first names the platform, and the installed ones that Qt lists.
std::optional<std::string> missingPlatformLine(const QString& fatalMessage);

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
  if (connecting && type == QtFatalMsg)
    noDisplay(missingPlatformLine(message).value_or(kNoDisplayLine));
  if (connecting)
    heldMessages.push_back({type, QByteArray(context.file), context.line,
                            QByteArray(context.function), QByteArray(context.category), message});
  else
    qtHandler(type, context, message);
}

std::optional<std::string> missingPlatformLine(const QString& fatalMessage) {
  static const QRegularExpression notFound(
      QStringLiteral("Could not find the Qt platform plugin \"([^\"]*)\""));
  for (const HeldMessage& held : heldMessages) {
    const QRegularExpressionMatch match = notFound.match(held.text);
    if (!match.hasMatch()) continue;
    static const QRegularExpression available(
        QStringLiteral("Available platform plugins are: ([^\n]*?)\\.?\n*$"));
    const QRegularExpressionMatch installed = available.match(fatalMessage);
    std::string line = "veridraw: the graphical platform \"" + match.captured(1).toStdString() +
                       "\" named by QT_QPA_PLATFORM is not installed";
    if (installed.hasMatch()) line += "; installed: " + installed.captured(1).toStdString();
    return line + "\n";
  }
  return std::nullopt;
}

}  // namespace

void exitIfNoDisplayInSight() {
  if (noDisplayInSight() || onlyWaylandAndNoSocket()) noDisplay();
}

void holdMessagesWhileConnecting() {
  qtHandler = qInstallMessageHandler(startUpMessages);
  connecting = true;
}

void displayConnected() {
  connecting = false;
  for (const HeldMessage& held : heldMessages) {
    const QMessageLogContext context(orNull(held.file), held.line, orNull(held.function),
                                     orNull(held.category));
    qtHandler(held.type, context, held.text);
  }
  heldMessages.clear();
}

}  // namespace veridraw::gui

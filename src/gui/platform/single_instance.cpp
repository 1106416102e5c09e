#include "gui/platform/single_instance.h"

#include <sys/stat.h>
#include <unistd.h>
#include <QApplication>
#include <QDeadlineTimer>
#include <QDir>
#include <QLocalSocket>
#include <QThread>
#include <QWidget>
#include <cstdio>
#include <cstdlib>

namespace veridraw::gui {

namespace {

// A second start waits this long at most for the running program to take its
// request: the first may have taken the lock a moment ago and not be
// listening yet.
constexpr int kAskForMs = 3000;
constexpr int kRetryEveryMs = 50;

// A folder of this user's alone, where the lock and the socket can stand:
// $XDG_RUNTIME_DIR, or else a folder of the user's own in the system's
// temporary folder, made private if it is new. Empty when there is none.
QString runtimeFolder() {
  const char* runtime = std::getenv("XDG_RUNTIME_DIR");
  if (runtime != nullptr && runtime[0] == '/') {
    struct stat status;
    if (::stat(runtime, &status) == 0 && S_ISDIR(status.st_mode) && status.st_uid == ::getuid())
      return QString::fromLocal8Bit(runtime);
  }
  const QByteArray own =
      QFile::encodeName(QDir::tempPath() + QStringLiteral("/veridraw-%1").arg(::getuid()));
  ::mkdir(own.constData(), 0700);
  // Taken only if it is a real folder of this user that nobody else can enter.
  struct stat status;
  if (::lstat(own.constData(), &status) != 0 || !S_ISDIR(status.st_mode) ||
      status.st_uid != ::getuid() || (status.st_mode & 077) != 0)
    return {};
  return QFile::decodeName(own);
}

// The identity of a folder, whatever name it was reached by: its device and
// inode. Empty when it can't be had.
QString folderIdentity(const std::filesystem::path& folder) {
  struct stat status;
  if (::stat(folder.c_str(), &status) != 0) return {};
  return QStringLiteral("veridraw-%1-%2")
      .arg(static_cast<qulonglong>(status.st_dev), 0, 16)
      .arg(static_cast<qulonglong>(status.st_ino), 0, 16);
}

}  // namespace

SingleInstance::SingleInstance(const std::filesystem::path& folder) {
  const QString runtime = runtimeFolder();
  const QString identity = folderIdentity(folder);
  if (runtime.isEmpty() || identity.isEmpty()) return;
  name_ = runtime + QLatin1Char('/') + identity;
  lock_ = std::make_unique<QLockFile>(name_ + QStringLiteral(".lock"));
  // The lock counts as long as the process that took it lives, however long
  // the program runs; a lock left by a program that died is taken over.
  lock_->setStaleLockTime(0);
}

SingleInstance::~SingleInstance() {
  server_.close();
}

bool SingleInstance::claim() {
  if (lock_ == nullptr) return true;
  if (lock_->tryLock(0)) {
    // A socket left by a program that died is in the way of a new one.
    QLocalServer::removeServer(name_);
    server_.setSocketOptions(QLocalServer::UserAccessOption);
    if (!server_.listen(name_))
      std::fprintf(stderr, "veridraw: a second start in this folder can't reach this one: %s\n",
                   qPrintable(server_.errorString()));
    return true;
  }
  if (lock_->error() != QLockFile::LockFailedError) return true;
  askRunningProgram();
  return false;
}

bool SingleInstance::askRunningProgram() {
  const QDeadlineTimer deadline(kAskForMs);
  QLocalSocket socket;
  while (!deadline.hasExpired()) {
    socket.connectToServer(name_);
    if (socket.waitForConnected(static_cast<int>(deadline.remainingTime()))) {
      socket.write("raise\n");
      socket.waitForBytesWritten(static_cast<int>(deadline.remainingTime()));
      socket.disconnectFromServer();
      return true;
    }
    socket.abort();
    QThread::msleep(kRetryEveryMs);
  }
  qint64 pid = 0;
  QString host, application;
  lock_->getLockInfo(&pid, &host, &application);
  std::fprintf(stderr, "veridraw: already running in this folder (process %lld)\n",
               static_cast<long long>(pid));
  return false;
}

void SingleInstance::raiseOnRequest(std::function<QWidget*()> window) {
  QObject::connect(&server_, &QLocalServer::newConnection, &server_, [this, window] {
    while (QLocalSocket* socket = server_.nextPendingConnection()) {
      // The connection itself is the request; what it sends is not needed.
      QObject::connect(socket, &QLocalSocket::disconnected, socket, &QObject::deleteLater);
      // A box standing over the form comes to the front with it, on top.
      bringToFront(window());
      bringToFront(QApplication::activeModalWidget());
    }
  });
}

void bringToFront(QWidget* window) {
  if (window == nullptr) return;
  if (window->isMinimized()) window->setWindowState(window->windowState() & ~Qt::WindowMinimized);
  window->show();
  window->raise();
  window->activateWindow();
}

}  // namespace veridraw::gui

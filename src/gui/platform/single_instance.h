// One running program per working folder. The first start in a folder claims
// it; a second start in the same folder asks the running program to raise its
// window and ends, so that two windows never share the same files. A start in
// another folder is a program of its own.
//
// The claim is a lock file and a local socket in the user's runtime folder
// ($XDG_RUNTIME_DIR), named by the identity of the working folder (its device
// and inode), so that nothing is written into the working folder, which holds
// the user's draws and tickets only.
#pragma once

#include <QLocalServer>
#include <QLockFile>
#include <QString>
#include <filesystem>
#include <functional>
#include <memory>

class QWidget;

namespace veridraw::gui {

class SingleInstance {
 public:
  explicit SingleInstance(const std::filesystem::path& folder);
  SingleInstance(const SingleInstance&) = delete;
  SingleInstance& operator=(const SingleInstance&) = delete;
  ~SingleInstance();

  // True when this process is now the program of the folder, or when no claim
  // can be made at all (no private runtime folder): it goes on. False when
  // another program holds the folder; it has been asked to raise its window,
  // and this one should end.
  bool claim();
  // The running program's answer to a second start: `window` gives the window
  // to raise; a box standing over it is raised too, on top.
  void raiseOnRequest(std::function<QWidget*()> window);

 private:
  bool askRunningProgram();

  QString name_;  // the folder's identity, or empty when it has none
  std::unique_ptr<QLockFile> lock_;
  QLocalServer server_;
};

// Brings a window to the front: out of the minimised state, raised, and the
// window manager asked to activate it.
void bringToFront(QWidget* window);

}  // namespace veridraw::gui

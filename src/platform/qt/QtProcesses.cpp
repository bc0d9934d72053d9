#include "platform/qt/QtProcesses.h"

#include "platform/qt/PathText.h"
#include "platform/qt/ProcessTable.h"
#include "platform/qt/WindowClosing.h"

#include <QByteArray>
#include <QDesktopServices>
#include <QDir>
#include <QProcess>
#include <QUrl>

#include <fcntl.h>
#include <signal.h>
#include <sys/file.h>
#include <unistd.h>

namespace gp {
namespace {

constexpr const char* kLockName = "glimmerpane.lock";
constexpr mode_t kOwnerOnly = 0600;

std::string runtimeFolder() {
  const std::string folder = qgetenv("XDG_RUNTIME_DIR").toStdString();
  return !folder.empty() && access(folder.c_str(), W_OK | X_OK) == 0 ? folder : std::string();
}

}  // namespace

std::string QtProcesses::userLockFile() {
  const std::string folder = runtimeFolder();
  if (!folder.empty()) return folder + "/" + kLockName;
  return textToPath(QDir::tempPath()) + "/" + std::to_string(getuid()) + "-" + kLockName;
}

QtProcesses::QtProcesses(std::string lockFile) : lockFile_(std::move(lockFile)) {}

// The lock file is not removed: two instances could then hold locks on two files with the same name.
QtProcesses::~QtProcesses() {
  if (lock_ >= 0) close(lock_);
}

bool QtProcesses::IsPrevInstance() {
  if (lock_ >= 0) return false;
  const int file = open(lockFile_.c_str(), O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW, kOwnerOnly);
  if (file < 0) return false;
  if (flock(file, LOCK_EX | LOCK_NB) == 0) {
    lock_ = file;
    return false;
  }
  close(file);
  return errno == EWOULDBLOCK;
}

void QtProcesses::CloseWindowByTitle(const std::string& title) { closeWindowsTitled(title); }

bool QtProcesses::IsProcessRunning(const std::string& executable) { return findProcess(executable).has_value(); }

void QtProcesses::TerminateProcessByName(const std::string& executable) {
  if (const auto process = findProcess(executable)) kill(*process, SIGKILL);
}

bool QtProcesses::start(const std::string& path) { return QProcess::startDetached(pathToText(path), {}); }

bool QtProcesses::openDocument(const std::string& path) {
  const QByteArray bytes = QByteArray::fromStdString(path);
  return QDesktopServices::openUrl(QUrl::fromEncoded("file://" + bytes.toPercentEncoding("/")));
}

}  // namespace gp

#include "platform/qt/QtProcesses.h"

#include "platform/files/Descriptor.h"
#include "platform/files/Files.h"
#include "platform/files/ProgramFolders.h"
#include "platform/qt/PathText.h"
#include "platform/qt/ProcessTable.h"
#include "platform/qt/WindowClosing.h"

#include <QByteArray>
#include <QDesktopServices>
#include <QProcess>
#include <QUrl>

#include <fcntl.h>
#include <optional>
#include <poll.h>
#include <signal.h>
#include <sys/file.h>
#include <unistd.h>

extern "C" {  // the header of glibc 2.36 lacks this
#include <sys/pidfd.h>
}

namespace gp {
namespace {

constexpr const char* kLockName = "glimmerpane.lock";
constexpr mode_t kOwnerOnly = 0600;
constexpr int kPatienceMs = 3000;
constexpr std::size_t kMostDigits = 10;

std::string runtimeFolder() {
  const std::string folder = qgetenv("XDG_RUNTIME_DIR").toStdString();
  return !folder.empty() && access(folder.c_str(), W_OK | X_OK) == 0 ? folder : std::string();
}

// The number of this process, for CloseWindowByTitle of a second instance.
void writeNumber(int file) {
  const std::string number = std::to_string(getpid());
  if (ftruncate(file, 0) != 0 || pwrite(file, number.data(), number.size(), 0) < 0) return;
}

std::optional<int> readNumber(const std::string& path) {
  const auto bytes = readFileStart(path, kMostDigits);
  if (!bytes) return std::nullopt;
  bool isNumber = false;
  const int number =
      QByteArray(reinterpret_cast<const char*>(bytes->span().data()), static_cast<qsizetype>(bytes->span().size()))
          .toInt(&isNumber);
  return isNumber ? std::optional(number) : std::nullopt;
}

}  // namespace

std::string QtProcesses::userLockFile() {
  const std::string folder = runtimeFolder();
  return (folder.empty() ? programFolders().scratch : folder) + "/" + kLockName;
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
    writeNumber(lock_);
    return false;
  }
  close(file);
  return errno == EWOULDBLOCK;
}

void QtProcesses::CloseWindowByTitle(const std::string& title) {
  const auto instance = readNumber(lockFile_);
  if (instance && isOwnProcess(*instance)) closeWindowsTitled(title, *instance);
}

bool QtProcesses::IsProcessRunning(const std::string& executable) { return findProcess(executable).has_value(); }

void QtProcesses::TerminateProcessByName(const std::string& executable) {
  const auto process = findProcess(executable);
  // The descriptor stays that of this process, even when the number is given to another one.
  const Descriptor handle(process ? pidfd_open(*process, 0) : -1);
  if (!handle.isOpen()) return;
  pidfd_send_signal(handle.number(), SIGTERM, nullptr, 0);
  pollfd ended{.fd = handle.number(), .events = POLLIN, .revents = 0};
  if (poll(&ended, 1, kPatienceMs) != 1) pidfd_send_signal(handle.number(), SIGKILL, nullptr, 0);
}

bool QtProcesses::start(const std::string& path) { return QProcess::startDetached(pathToText(path), {}); }

bool QtProcesses::openDocument(const std::string& path) {
  const QByteArray bytes = QByteArray::fromStdString(path);
  return QDesktopServices::openUrl(QUrl::fromEncoded("file://" + bytes.toPercentEncoding("/")));
}

}  // namespace gp

#include "platform/qt/ProcessTable.h"

#include "platform/text/Utf8.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>

#include <algorithm>
#include <filesystem>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>
#include <vector>

namespace gp {
namespace {

constexpr const char* kProcesses = "/proc/";
constexpr std::string_view kDeletedMark = " (deleted)";
constexpr char kZombie = 'Z';

// The start of "/proc/N/stat": "number (name) state". The name itself may contain brackets.
struct Status {
  std::string name;
  bool alive = false;
};

std::vector<int> processNumbers() {
  std::vector<int> numbers;
  for (const QString& entry : QDir(kProcesses).entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Unsorted)) {
    bool isNumber = false;
    const int number = entry.toInt(&isNumber);
    if (isNumber) numbers.push_back(number);
  }
  std::ranges::sort(numbers);
  return numbers;
}

std::string entryPath(int process, const char* entry) { return kProcesses + std::to_string(process) + "/" + entry; }

std::string readEntry(int process, const char* entry) {
  QFile file(QString::fromStdString(entryPath(process, entry)));
  return file.open(QIODevice::ReadOnly) ? file.readAll().toStdString() : std::string();
}

Status statusOf(int process) {
  const std::string line = readEntry(process, "stat");
  const std::size_t open = line.find('(');
  const std::size_t close = line.rfind(')');
  if (open == std::string::npos || close == std::string::npos || line.size() < close + 3) return {};
  return {line.substr(open + 1, close - open - 1), line[close + 2] != kZombie};
}

std::string executableOf(int process) {
  std::error_code error;
  std::string path = std::filesystem::read_symlink(entryPath(process, "exe"), error).string();
  if (path.ends_with(kDeletedMark)) path.resize(path.size() - kDeletedMark.size());
  return path;
}

std::string firstArgument(int process) {
  const std::string line = readEntry(process, "cmdline");
  return line.substr(0, line.find('\0'));
}

bool hasFileName(const std::string& path, const std::string& name) {
  return equalAnyCase(path.substr(path.rfind('/') + 1), name);
}

// The executable's path alone does not identify a script or a program that runs under an emulator.
bool isProcessOf(int process, const std::string& executable) {
  return isOwnProcess(process) &&
         (hasFileName(statusOf(process).name, executable) || hasFileName(executableOf(process), executable) ||
          hasFileName(firstArgument(process), executable));
}

}  // namespace

bool isOwnProcess(int process) {
  struct stat status;
  return stat(entryPath(process, "").c_str(), &status) == 0 && status.st_uid == geteuid() && statusOf(process).alive;
}

std::optional<int> findProcess(const std::string& executable) {
  if (executable.empty()) return std::nullopt;
  const auto own = QCoreApplication::applicationPid();
  for (const int process : processNumbers()) {
    if (process != own && isProcessOf(process, executable)) return process;
  }
  return std::nullopt;
}

}  // namespace gp

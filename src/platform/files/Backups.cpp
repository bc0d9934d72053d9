#include "platform/files/Backups.h"

#include "platform/files/FileWriting.h"
#include "platform/files/Files.h"
#include "platform/files/ProgramFolders.h"
#include "platform/files/WriteTarget.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <fcntl.h>
#include <filesystem>
#include <sys/file.h>
#include <system_error>
#include <unistd.h>

namespace gp {
namespace {

namespace fs = std::filesystem;

constexpr mode_t kOwnerOnly = 0600;
constexpr const char* kExtension = ".backup";

// A backup is the path of its file, a zero byte, and the content.
struct BackupParts {
  std::string path;
  Piece content;
};

std::optional<BackupParts> partsOf(Piece backup) {
  const auto zero = std::ranges::find(backup, std::uint8_t{0});
  if (zero == backup.end()) return std::nullopt;
  return BackupParts{std::string(backup.begin(), zero),
                     backup.subspan(static_cast<std::size_t>(zero - backup.begin()) + 1)};
}

std::string absolute(const std::string& path) {
  std::error_code error;
  const fs::path whole = fs::absolute(path, error);
  return error ? path : whole.lexically_normal().native();
}

bool hasContent(const std::string& path, Piece content) {
  const auto bytes = readFile(path);
  return bytes && std::ranges::equal(bytes->span(), content);
}

// False while a program that writes the file holds the backup.
bool isLeft(const std::string& backup) {
  const Descriptor file(::open(backup.c_str(), O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC));
  return file.isOpen() && flock(file.number(), LOCK_EX | LOCK_NB) == 0;
}

fs::file_time_type timeOf(const LeftBackup& left) {
  std::error_code ignored;
  return fs::last_write_time(left.backup, ignored);
}

}  // namespace

Backup::Backup(Descriptor folder) : folder_(std::move(folder)), file_(folder_, kOwnerOnly) {}

std::unique_ptr<Backup> Backup::make(const std::string& path, Piece content) {
  const std::string folderPath = stateFolder();
  if (folderPath.empty()) return nullptr;
  Descriptor folder(systemCalls().open(AT_FDCWD, folderPath.c_str(), O_RDONLY | O_DIRECTORY, 0));
  if (!folder.isOpen()) return nullptr;
  std::unique_ptr<Backup> backup(new Backup(std::move(folder)));
  return backup->write(absolute(path), content) ? std::move(backup) : nullptr;
}

bool Backup::write(const std::string& path, Piece content) {
  const Piece pathBytes(reinterpret_cast<const std::uint8_t*>(path.c_str()), path.size() + 1);
  const std::array<Piece, 2> pieces{pathBytes, content};
  if (totalSize(pieces) > kMaxFileBytes) return false;
  if (!file_.isOpen() || flock(file_.number(), LOCK_EX | LOCK_NB) != 0) return false;
  if (!writePieces(file_.number(), pieces) || !file_.finish()) return false;
  name_ = file_.takeAnyName(kExtension);
  return !name_.empty() && syncFolder(folder_);
}

void Backup::remove() { systemCalls().remove(folder_.number(), name_.c_str()); }

std::vector<LeftBackup> leftBackups(const std::string& folder) {
  std::vector<LeftBackup> found;
  for (const std::string& name : filesInFolder(folder, std::string("*") + kExtension)) {
    LeftBackup left{folder + "/" + name, {}};
    const auto bytes = isLeft(left.backup) ? readFile(left.backup) : std::nullopt;
    const auto parts = bytes ? partsOf(bytes->span()) : std::nullopt;
    if (!parts) continue;
    left.path = parts->path;
    if (hasContent(left.path, parts->content))
      discard(left);
    else
      found.push_back(std::move(left));
  }
  std::ranges::stable_sort(found, {}, timeOf);
  return found;
}

void discardBackupsOf(const std::string& path, const std::string& folder) {
  for (const LeftBackup& left : leftBackups(folder))
    if (left.path == absolute(path)) discard(left);
}

bool restore(const LeftBackup& left) {
  const auto bytes = readFile(left.backup);
  const auto parts = bytes ? partsOf(bytes->span()) : std::nullopt;
  if (!parts || !replaceFile(parts->path, parts->content)) return false;
  discard(left);
  discardBackupsOf(left.path, fs::path(left.backup).parent_path().native());
  return true;
}

void discard(const LeftBackup& left) { systemCalls().remove(AT_FDCWD, left.backup.c_str()); }

}  // namespace gp

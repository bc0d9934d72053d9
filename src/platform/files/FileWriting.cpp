#include "platform/files/FileWriting.h"

#include "platform/files/Files.h"
#include "platform/files/InPlaceWriting.h"
#include "platform/files/PieceWriting.h"
#include "platform/files/TemporaryFile.h"
#include "platform/files/WriteTarget.h"

#include <cerrno>
#include <csignal>

namespace gp {
namespace {

// True if the file cannot be replaced by another one. On these errors of a new file beside it, nothing is wrong with
// the device.
bool isRefused(int error) {
  return error == EACCES || error == EPERM || error == EROFS || error == EBUSY || error == EXDEV;
}

bool isStill(const WriteTarget& target, const std::optional<FileVersion>& read) {
  if (!read) return true;
  const auto now = statusOf(target);
  return now && versionOf(*now) == *read;
}

// What a file beside the target came to. Refused: nothing has changed, and the target can only be written in place.
enum class Beside { Written, Refused, NotOpened, Changed, AlreadyThere, Failed };

Beside takeTheName(TemporaryFile& file, const WriteTarget& target) {
  if (!target.exists()) {
    if (file.takeNewName(target.name)) return Beside::Written;
    return errno == EEXIST ? Beside::AlreadyThere : Beside::Failed;
  }
  if (!isStill(target, versionOf(*target.status))) return Beside::Changed;
  if (file.takeName(target.name)) return Beside::Written;
  return isRefused(errno) ? Beside::Refused : Beside::Failed;
}

Beside writeBeside(const WriteTarget& target, Pieces pieces) {
  const bool isPrivate = target.exists() || target.isPrivate;  // no one else may open it before it is complete
  TemporaryFile file(target.folder, isPrivate ? TemporaryFile::Access::OwnerOnly : TemporaryFile::Access::AsUsual);
  if (!file.isOpen()) return isRefused(errno) && target.exists() ? Beside::Refused : Beside::NotOpened;
  if (target.exists() && !file.takeOwnerAndMode(*target.status, target.permissions())) return Beside::Refused;
  if (target.exists()) file.takeAttributes(target.path());
  if (!writePieces(file.number(), pieces) || !file.finish()) return Beside::Failed;
  return takeTheName(file, target);
}

WriteDefect defectOf(Beside beside) {
  switch (beside) {
    case Beside::Written:
      return WriteDefect::None;
    case Beside::Changed:
      return WriteDefect::Changed;
    case Beside::AlreadyThere:
      return WriteDefect::AlreadyThere;
    case Beside::Failed:
      return WriteDefect::NotWritten;
    case Beside::Refused:
    case Beside::NotOpened:
      break;
  }
  return WriteDefect::NotOpened;
}

Beside writeAndSync(const WriteTarget& target, Pieces pieces) {
  const Beside beside = writeBeside(target, pieces);
  return beside == Beside::Written && !syncFolder(target.folder) ? Beside::Failed : beside;
}

bool hasOtherNames(const WriteTarget& target) { return target.exists() && target.status->st_nlink > 1; }

bool isForeign(const WriteTarget& target) {
  return target.exists() && (!S_ISREG(target.status->st_mode) || hasOtherNames(target));
}

WriteDefect writeTarget(std::optional<WriteTarget> target, Pieces pieces, const std::optional<FileVersion>& read) {
  if (!target || !target->mayBeWritten() || totalSize(pieces) > kMaxFileBytes) return WriteDefect::NotOpened;
  if (!isStill(*target, read)) return WriteDefect::Changed;
  const Beside beside = hasOtherNames(*target) ? Beside::Refused : writeAndSync(*target, pieces);
  return beside == Beside::Refused ? writeInPlace(*target, pieces) : defectOf(beside);
}

}  // namespace

WriteDefect writeFile(const std::string& path, Pieces pieces, const std::optional<FileVersion>& read) {
  return writeTarget(findWriteTarget(path), pieces, read);
}

void ignoreWriteSignals() {
  std::signal(SIGXFSZ, SIG_IGN);
  std::signal(SIGPIPE, SIG_IGN);
}

bool replaceFile(const std::string& path, Piece bytes) { return writeFile(path, {&bytes, 1}) == WriteDefect::None; }

bool replacePrivateFile(const std::string& path, Piece bytes) {
  auto target = findWriteTarget(path);
  if (target) target->isPrivate = true;
  return writeTarget(std::move(target), {&bytes, 1}, std::nullopt) == WriteDefect::None;
}

WriteDefect writeInto(const std::string& folder, const std::string& name, Piece bytes, ExistingFile existing) {
  const auto target = findWriteTarget(folder, name);
  if (!target) return WriteDefect::NotOpened;
  if (isForeign(*target) || (target->exists() && existing == ExistingFile::Keep)) return WriteDefect::AlreadyThere;
  if (!target->mayBeWritten()) return WriteDefect::NotOpened;
  return defectOf(writeAndSync(*target, {&bytes, 1}));
}

}  // namespace gp

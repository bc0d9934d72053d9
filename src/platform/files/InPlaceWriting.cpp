#include "platform/files/InPlaceWriting.h"

#include "platform/files/Backups.h"
#include "platform/files/Files.h"
#include "platform/files/PieceWriting.h"
#include "platform/files/ProgramFolders.h"

#include <algorithm>
#include <fcntl.h>

namespace gp {
namespace {

// Extends the file first: on a full disk this fails before any former byte is overwritten.
bool overwrite(int file, Pieces pieces, std::uint64_t formerSize) {
  const std::uint64_t size = totalSize(pieces);
  const std::uint64_t shared = std::min(size, formerSize);
  return writeRange(file, pieces, shared, size) && writeRange(file, pieces, 0, shared) &&
         systemCalls().resize(file, static_cast<off_t>(size)) == 0 && systemCalls().sync(file) == 0;
}

// Needs no room: the bytes that are put back have their place in the file.
bool putBack(int file, Piece former) { return overwrite(file, {&former, 1}, former.size()); }

bool isStill(int file, const WriteTarget& target) {
  struct stat status;
  return fstat(file, &status) == 0 && versionOf(status) == versionOf(*target.status);
}

}  // namespace

WriteDefect writeInPlace(const WriteTarget& target, Pieces pieces) {
  Descriptor file(systemCalls().open(target.folder.number(), target.name.c_str(), O_RDWR | O_NOFOLLOW | O_NONBLOCK, 0));
  if (!file.isOpen()) return WriteDefect::NotOpened;
  if (!isStill(file.number(), target)) return WriteDefect::Changed;
  const auto former = readOpenFile(file.number());
  if (!former) return WriteDefect::NotOpened;
  auto backup = Backup::make(target.path(), former->span());
  if (!backup) return WriteDefect::NotOpened;
  const bool written = overwrite(file.number(), pieces, former->span().size()) && file.close();
  if (written || (file.isOpen() && putBack(file.number(), former->span()))) backup->remove();
  if (written) discardBackupsOf(target.path(), stateFolder());
  return written ? WriteDefect::None : WriteDefect::NotWritten;
}

}  // namespace gp

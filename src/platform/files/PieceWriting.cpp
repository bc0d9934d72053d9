#include "platform/files/PieceWriting.h"

#include "platform/files/SystemCalls.h"

#include <algorithm>
#include <cerrno>
#include <utility>
#include <vector>

namespace gp {
namespace {

// As many as one call takes.
constexpr std::size_t kMostPieces = 1024;

// Removes the bytes that were written from the pieces. `next` is the first piece that is left.
void drop(std::vector<iovec>& pieces, std::size_t& next, std::size_t written) {
  while (next < pieces.size() && written >= pieces[next].iov_len) written -= pieces[next++].iov_len;
  if (written == 0) return;
  pieces[next].iov_base = static_cast<std::uint8_t*>(pieces[next].iov_base) + written;
  pieces[next].iov_len -= written;
}

bool writeAll(int file, std::vector<iovec> pieces, std::uint64_t position) {
  for (std::size_t next = 0; next < pieces.size();) {
    const int count = static_cast<int>(std::min(pieces.size() - next, kMostPieces));
    const ssize_t written = systemCalls().write(file, &pieces[next], count, static_cast<off_t>(position));
    if (written < 0 && errno == EINTR) continue;
    if (written <= 0) return false;
    position += static_cast<std::uint64_t>(written);
    drop(pieces, next, static_cast<std::size_t>(written));
  }
  return true;
}

}  // namespace

std::uint64_t totalSize(Pieces pieces) {
  std::uint64_t size = 0;
  for (const Piece piece : pieces) size += piece.size();
  return size;
}

bool writeRange(int file, Pieces pieces, std::uint64_t begin, std::uint64_t end) {
  std::vector<iovec> wanted;
  std::uint64_t start = 0;
  for (const Piece piece : pieces) {
    const std::uint64_t from = std::clamp(begin, start, start + piece.size());
    const std::uint64_t to = std::clamp(end, start, start + piece.size());
    // The system only reads the bytes.
    if (from < to) wanted.push_back({const_cast<std::uint8_t*>(piece.data()) + (from - start), to - from});
    start += piece.size();
  }
  return writeAll(file, std::move(wanted), begin);
}

bool writePieces(int file, Pieces pieces) { return writeRange(file, pieces, 0, totalSize(pieces)); }

}  // namespace gp

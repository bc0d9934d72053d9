#include "platform/files/PieceWriting.h"

#include "platform/files/SystemCalls.h"

#include <algorithm>
#include <cerrno>

namespace gp {
namespace {

bool writeAll(int file, Piece bytes, std::uint64_t position) {
  while (!bytes.empty()) {
    const ssize_t written = systemCalls().write(file, bytes.data(), bytes.size(), static_cast<off_t>(position));
    if (written < 0 && errno == EINTR) continue;
    if (written <= 0) return false;
    bytes = bytes.subspan(static_cast<std::size_t>(written));
    position += static_cast<std::uint64_t>(written);
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
  std::uint64_t start = 0;
  for (const Piece piece : pieces) {
    const std::uint64_t from = std::clamp(begin, start, start + piece.size());
    const std::uint64_t to = std::clamp(end, start, start + piece.size());
    if (from < to && !writeAll(file, piece.subspan(from - start, to - from), from)) return false;
    start += piece.size();
  }
  return true;
}

bool writePieces(int file, Pieces pieces) { return writeRange(file, pieces, 0, totalSize(pieces)); }

}  // namespace gp

// Writes content in pieces to an open file.
#pragma once

#include <cstdint>
#include <span>

namespace gp {

using Piece = std::span<const std::uint8_t>;
using Pieces = std::span<const Piece>;

std::uint64_t totalSize(Pieces pieces);
// Writes the bytes [begin, end) of the content at the same positions of the file. Returns false when the system does
// not take them all, with the reason in errno.
[[nodiscard]] bool writeRange(int file, Pieces pieces, std::uint64_t begin, std::uint64_t end);
[[nodiscard]] bool writePieces(int file, Pieces pieces);

}  // namespace gp

#include "extraction/format/IclScan.h"

#include "document/ColorDepth.h"
#include "document/IconSizes.h"
#include "files/format/IcoLayout.h"
#include "files/format/IconWriter.h"
#include "files/format/ImageDecoding.h"
#include "platform/files/ByteWriter.h"

#include <algorithm>
#include <array>
#include <cstring>

namespace gp {
namespace {

using Bytes = std::span<const std::uint8_t>;

constexpr std::array kScannedBits{1, 4, 8, 24, 32};

// The bytes of an image by the depth of its header.
std::size_t blobSize(int bits, int side) { return IconByteSize(ColorsForBitCount(bits), bits, side, side); }

// The image whose header is at a position, from 0. Only the low byte of each field counts.
std::optional<IclScanEntry> imageAt(Bytes file, std::size_t at) {
  const int side = file[at + dib::kHeaderWidth], bits = file[at + dib::kHeaderBitCount];
  if (!isIconSize(side) || file[at + dib::kHeaderHeight] != 2 * side || file[at + dib::kHeaderPlanes] != 1 ||
      std::ranges::find(kScannedBits, bits) == kScannedBits.end())
    return std::nullopt;
  const std::size_t size = blobSize(bits, side);
  if (size > file.size() - at) return std::nullopt;
  return IclScanEntry{at + 1, at + size, side, bits};
}

// The first header byte at a position or behind it; `end` if there is none before it.
std::size_t nextHeader(Bytes file, std::size_t from, std::size_t end) {
  if (from == end || file[from] == dib::kHeaderSize) return from;  // many in succession
  const void* const found = std::memchr(&file[from], dib::kHeaderSize, end - from);
  return found == nullptr ? end : static_cast<std::size_t>(static_cast<const std::uint8_t*>(found) - file.data());
}

// The first image at a position or behind it.
std::optional<IclScanEntry> nextImage(Bytes file, std::size_t from) {
  // Every image is longer than its header.
  const std::size_t end = file.size() > dib::kHeaderSize ? file.size() - dib::kHeaderSize : 0;
  if (from >= end) return std::nullopt;
  for (std::size_t at = nextHeader(file, from, end); at < end; at = nextHeader(file, at + 1, end))
    if (const auto image = imageAt(file, at)) return image;
  return std::nullopt;
}

// A header that states what the scan has found, since its other bytes can state anything.
std::vector<std::uint8_t> withPlainHeader(Bytes blob, const IclScanEntry& entry) {
  ByteWriter out(blob.size());
  out.u32(dib::kHeaderSize);
  out.u32(static_cast<std::uint32_t>(entry.side));
  out.u32(static_cast<std::uint32_t>(2 * entry.side));
  out.u16(1);
  out.u16(static_cast<std::uint16_t>(entry.bitCount));
  while (out.size() < dib::kHeaderSize) out.u32(0);
  out.bytes(blob.subspan(dib::kHeaderSize));
  return out.take();
}

}  // namespace

std::vector<IclScanEntry> scanForIconImages(Bytes file) {
  std::size_t count = 0;
  for (auto image = nextImage(file, 0); image; image = nextImage(file, image->blobEnd)) ++count;
  std::vector<IclScanEntry> images;
  images.reserve(count);  // growing would take twice the memory
  for (auto image = nextImage(file, 0); image; image = nextImage(file, image->blobEnd)) images.push_back(*image);
  return images;
}

std::optional<IconImage> decodeIconBlob(Bytes file, const IclScanEntry& entry) {
  if (entry.blobOffset < 1 || entry.blobEnd > file.size() || entry.blobEnd < entry.blobOffset + dib::kHeaderSize)
    return std::nullopt;
  const Bytes blob = file.subspan(entry.blobOffset - 1, entry.blobEnd - entry.blobOffset + 1);
  auto decoded = decodeImage(withPlainHeader(blob, entry));
  if (!decoded) return std::nullopt;
  if (!decoded->icon.hasAlphaValues()) decoded->icon.alpha = AlphaMatrix();
  return std::move(decoded->icon);
}

}  // namespace gp

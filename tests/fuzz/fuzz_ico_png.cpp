// PNG pictures in icon and cursor files. Their check sums are corrected first: mutations would otherwise never get
// behind them. What is decoded is encoded and reads back.
#include "FuzzIcons.h"
#include "files/cursor/CursorLoading.h"
#include "files/format/IconProbe.h"
#include "files/format/PngEntry.h"
#include "platform/codec/Png.h"

namespace {

using gp::fuzz::Bytes;
using gp::fuzz::require;

constexpr std::size_t kChunkExtra = 12;  // length, type and check sum
constexpr int kMostChunks = 100;
constexpr std::size_t kLargestInput = 16384;

std::uint32_t bigEndianAt(const Bytes& bytes, std::size_t at) {
  std::uint32_t value = 0;
  for (std::size_t i = 0; i < 4; ++i) value = value << 8 | bytes[at + i];
  return value;
}

std::uint32_t checkSumOf(std::span<const std::uint8_t> bytes) {
  std::uint32_t sum = 0xFFFFFFFF;
  for (const std::uint8_t byte : bytes) {
    sum ^= byte;
    for (int i = 0; i < 8; ++i) sum = sum >> 1 ^ (sum & 1 ? 0xEDB88320 : 0);
  }
  return ~sum;
}

void correctChecks(Bytes& bytes, std::size_t at) {
  for (int i = 0; i < kMostChunks && at + kChunkExtra <= bytes.size(); ++i) {
    const std::uint32_t length = bigEndianAt(bytes, at);
    if (length > bytes.size() - at - kChunkExtra) return;
    const std::uint32_t sum = checkSumOf(std::span(bytes).subspan(at + 4, length + 4));
    at += length + kChunkExtra;
    for (std::size_t k = 0; k < 4; ++k) bytes[at - 4 + k] = static_cast<std::uint8_t>(sum >> (24 - 8 * k));
  }
}

Bytes withRightChecks(Bytes bytes) {
  const gp::IconFile file = gp::parseIconFile(gp::FileBytes(bytes));
  for (int i = 0; i < gp::fuzz::entriesToDecode(file); ++i)
    if (gp::isPngImage(file, file.entry(i))) correctChecks(bytes, file.entry(i).imageOffset + gp::kPngSignature.size());
  return bytes;
}

void requireReadsBack(std::span<const std::uint8_t> bytes) {
  const gp::DecodedPng decoded = gp::decodePng(bytes, gp::kPngInIconFile);
  if (!decoded.isRead()) return require(decoded.picture.rgba.empty());
  const auto header = gp::readPngHeader(bytes);
  require(header && header->fits(gp::kPngInIconFile) && header->hasAlpha == decoded.picture.hasAlpha);
  const gp::DecodedPng again = gp::decodePng(gp::encodePng(decoded.picture), gp::kPngInIconFile);
  require(again.isRead() && again.picture.rgba == decoded.picture.rgba);
  require(again.picture.hasAlpha == decoded.picture.hasAlpha);
}

void decode(const gp::IconFile& file, const gp::IconEntry& entry) {
  const gp::IconEntry shown = gp::shownEntry(file, entry);
  require(gp::shownEntry(file, shown) == shown);
  const gp::DecodedIcon decoded = gp::decodeUsableEntry(file, entry);
  require(decoded.isRead() == gp::isUsableEntry(file, entry));
  if (!decoded.isRead()) return require(decoded.icon.isEmpty());
  require(decoded.icon.width() == shown.width && decoded.icon.height() == shown.height);
  require(!gp::withoutAlpha(decoded.icon).hasAlphaValues());
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  if (size > kLargestInput) return 0;
  const Bytes bytes = withRightChecks({data, data + size});
  const gp::IconFile file = gp::parseIconFile(gp::FileBytes(bytes));
  (void)gp::probeIcon(file, true).joined();
  (void)gp::loadCursorImage(file);
  for (int i = 0; i < gp::fuzz::entriesToDecode(file); ++i) {
    const gp::IconEntry entry = file.entry(i);
    decode(file, entry);
    if (gp::isPngImage(file, entry)) requireReadsBack(file.span().subspan(entry.imageOffset));
  }
  return 0;
}

#include "animation/format/AniInfo.h"

#include "animation/format/AniFile.h"
#include "animation/format/AniLayout.h"

#include <algorithm>

namespace gp {
namespace {

using Bytes = std::span<const std::uint8_t>;

constexpr const char* kAnih = "616E6968";
constexpr const char* kRate = "72617465";
constexpr const char* kSeq = "73657120";
constexpr const char* kFirstFrame = "6672616D69636F6E";

// Distances from a tag to the bytes that count.
constexpr std::size_t kFirstRate = 8, kNextRate = 4;
constexpr std::size_t kRateOfHeader = 36;
constexpr std::size_t kRateBeforeSequence = 8;  // where the sequence follows the header
constexpr std::size_t kFileType = 14, kHotspotX = 22, kHotspotY = 24;
constexpr int kCursorType = 2;

int digitOf(char digit) {
  if (digit <= '9') return digit - '0';
  return (digit | 0x20) - 'a' + 10;
}

std::vector<std::uint8_t> bytesOf(std::string_view hex) {
  std::vector<std::uint8_t> bytes;
  for (std::size_t i = 0; i + 1 < hex.size(); i += 2)
    bytes.push_back(static_cast<std::uint8_t>(digitOf(hex[i]) * 16 + digitOf(hex[i + 1])));
  return bytes;
}

// Positions count from 1. A byte outside the file is 0.
int byteAt(Bytes bytes, std::size_t position) {
  return position >= 1 && position <= bytes.size() ? bytes[position - 1] : 0;
}

int jiffiesAt(Bytes bytes, std::size_t position) {
  return std::clamp(byteAt(bytes, position), ani::kLeastJiffies, ani::kMostJiffies);
}

std::vector<int> readJiffies(Bytes bytes, std::size_t header, std::size_t frames) {
  std::vector<int> jiffies(frames);
  if (const std::size_t rates = findBytes(bytes, kRate, 1)) {
    for (std::size_t i = 0; i < frames; ++i) jiffies[i] = jiffiesAt(bytes, rates + kFirstRate + kNextRate * i);
    return jiffies;
  }
  const std::size_t sequence = findBytes(bytes, kSeq, 1);
  std::ranges::fill(jiffies, jiffiesAt(bytes, sequence ? sequence - kRateBeforeSequence : header + kRateOfHeader));
  return jiffies;
}

}  // namespace

std::size_t findBytes(Bytes bytes, std::string_view hexPattern, std::size_t fromPosition) {
  const std::vector<std::uint8_t> pattern = bytesOf(hexPattern);
  if (fromPosition < 1 || fromPosition > bytes.size() || pattern.empty()) return 0;
  const auto from = bytes.begin() + static_cast<std::ptrdiff_t>(fromPosition - 1);
  const auto found = std::search(from, bytes.end(), pattern.begin(), pattern.end());
  return found == bytes.end() ? 0 : static_cast<std::size_t>(found - bytes.begin()) + 1;
}

std::optional<AniInfo> readAniInfo(Bytes bytes, int frames) {
  const std::size_t header = findBytes(bytes, kAnih, 1);
  if (!isRiffFile(bytes) || header == 0) return std::nullopt;
  AniInfo info;
  info.jiffies = readJiffies(bytes, header, static_cast<std::size_t>(std::max(frames, 0)));
  const std::size_t first = findBytes(bytes, kFirstFrame, 1);
  if (first == 0 || byteAt(bytes, first + kFileType) != kCursorType) return info;
  info.hotspotX = std::min(byteAt(bytes, first + kHotspotX), ani::kMostHotspot);
  info.hotspotY = std::min(byteAt(bytes, first + kHotspotY), ani::kMostHotspot);
  return info;
}

}  // namespace gp

#include "cli/ImageFile.h"

#include "cli/Console.h"
#include "document/IconContainerRec.h"
#include "files/cursor/CursorLoading.h"
#include "files/format/IconFileBytes.h"
#include "files/format/IconProbe.h"

namespace gp::cli {
namespace {

constexpr int kSideOfZero = 256;

std::optional<ImageFile> openFile(const std::string& path, bool withCursors) {
  auto bytes = readIconFile(path);
  if (!bytes) {
    complain(path, describe(IconDefect::NotReadable));
    return std::nullopt;
  }
  ImageFile file{std::move(*bytes), {}};
  file.directory = parseIconDirectory(file.bytes.span());
  const bool fits = file.directory.isIcon() || (withCursors && file.directory.isCursor());
  if (fits && !file.directory.entries.empty()) return file;
  complain(path, describe(IconDefect::NotAnIcon));
  return std::nullopt;
}

bool isUsableCursor(std::span<const std::uint8_t> file) {
  const CursorFacts facts = probeCursor(file);
  return facts.valid && (facts.colors != kTrueColor || facts.bits == kBitsWithoutAlpha || facts.bits == kBitsWithAlpha);
}

std::optional<DecodedImage> decodeCursor(std::span<const std::uint8_t> file, const IconEntry& entry) {
  DecodedIcon decoded = loadCursorImage(file);
  if (!decoded.isRead()) return std::nullopt;
  return DecodedImage{std::move(decoded.icon), headerBitCount(file, entry) == kBitsWithAlpha};
}

}  // namespace

std::optional<ImageFile> openImageFile(const std::string& path) { return openFile(path, true); }
std::optional<ImageFile> openIconFile(const std::string& path) { return openFile(path, false); }

int sideOf(int told) { return told == 0 ? kSideOfZero : told; }

bool isUsableImage(const ImageFile& file, int index) {
  if (!file.isCursor()) return isUsableEntry(file.bytes.span(), file.directory.entry(index));
  return index == 0 && isUsableCursor(file.bytes.span());
}

std::optional<DecodedImage> decodeImage(const ImageFile& file, int index) {
  if (!isUsableImage(file, index)) return std::nullopt;
  const IconEntry entry = file.directory.entry(index);
  if (file.isCursor()) return decodeCursor(file.bytes.span(), entry);
  DecodedIcon decoded = decodeEntry(file.bytes.span(), entry, entry.width, entry.height);
  if (!decoded.isRead()) return std::nullopt;
  const int bits = factsOfEntry(file.bytes.span(), file.directory, index).bitCount();
  return DecodedImage{std::move(decoded.icon), bits == kBitsWithAlpha};
}

}  // namespace gp::cli

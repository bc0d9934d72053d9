#include "cli/ImageFile.h"

#include "animation/format/AniFile.h"
#include "cli/Console.h"
#include "cli/Streams.h"
#include "files/cursor/CursorLoading.h"
#include "files/format/IconProbe.h"
#include "files/format/PngEntry.h"
#include "platform/text/Utf8.h"

namespace gp::cli {
namespace {

constexpr int kSideOfZero = 256;

enum class Kinds { Icons, IconsAndCursors, All };

bool isOf(Kinds kinds, const IconFile& file, const std::string& path) {
  if (kinds == Kinds::All && isAnimated(file, path)) return true;
  const bool fits = file.isIcon() || (kinds != Kinds::Icons && file.isCursor());
  return fits && file.directory.presentCount() != 0;
}

std::optional<IconFile> openFile(const std::string& path, Kinds kinds) {
  auto file = kinds == Kinds::All ? readImageInput(path) : readIconInput(path);
  if (file && isOf(kinds, *file, path)) return file;
  complain(path, describe(file ? IconDefect::NotAnIcon : IconDefect::NotReadable));
  return std::nullopt;
}

bool isUsableCursor(const IconFile& file) {
  const CursorFacts facts = probeCursor(file);
  return facts.valid && facts.depth.isShown() && (!isPngImage(file, file.entry(0)) || loadCursorImage(file).isRead());
}

std::optional<DecodedImage> decodeCursor(const IconFile& file) {
  const CursorFacts facts = probeCursor(file);
  if (!facts.valid || !facts.depth.isShown()) return std::nullopt;
  DecodedIcon decoded = loadCursorImage(file);
  if (!decoded.isRead()) return std::nullopt;
  return DecodedImage{std::move(decoded.icon), facts.depth.hasAlpha()};
}

}  // namespace

std::optional<IconFile> openAnyFile(const std::string& path) { return openFile(path, Kinds::All); }
std::optional<IconFile> openImageFile(const std::string& path) { return openFile(path, Kinds::IconsAndCursors); }
std::optional<IconFile> openIconFile(const std::string& path) { return openFile(path, Kinds::Icons); }

bool isNamedAni(const std::string& path) { return endsWithAnyCase(path, ".ani"); }

bool isAnimated(const IconFile& file, const std::string& path) {
  return isRiffFile(file.span()) || (isNamedAni(path) && !file.isIcon() && !file.isCursor());
}

int sideOf(int side) { return side == 0 ? kSideOfZero : side; }

bool isUsableImage(const IconFile& file, int index) {
  if (!file.isCursor()) return isUsableEntry(file, file.entry(index));
  return index == 0 && isUsableCursor(file);
}

std::optional<DecodedImage> decodeImage(const IconFile& file, int index) {
  if (file.isCursor()) return index == 0 ? decodeCursor(file) : std::nullopt;
  const IconEntry entry = file.entry(index);
  DecodedIcon decoded = decodeUsableEntry(file, entry);
  if (!decoded.isRead()) return std::nullopt;
  return DecodedImage{std::move(decoded.icon), corrected(depthOfEntry(shownEntry(file, entry))).hasAlpha()};
}

}  // namespace gp::cli

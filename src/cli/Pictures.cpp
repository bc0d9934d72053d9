#include "cli/Pictures.h"

#include "cli/Console.h"
#include "cli/Streams.h"
#include "files/format/IconDecoder.h"
#include "platform/codec/BitmapPicture.h"

namespace gp::cli {
namespace {

constexpr const char* kNoPicture = "not a PNG or BMP picture";
constexpr const char* kDamaged = "damaged, or cut short";
constexpr const char* kTooLarge = "without pixels, or larger than 4096x4096";

const char* describe(PngDefect defect) {
  switch (defect) {
    case PngDefect::TooLarge:
      return kTooLarge;
    case PngDefect::Damaged:
      return kDamaged;
    default:
      return kNoPicture;
  }
}

const char* describe(BitmapDefect defect) {
  switch (defect) {
    case BitmapDefect::TooLarge:
      return kTooLarge;
    case BitmapDefect::CutShort:
      return kDamaged;
    case BitmapDefect::Unsupported:
      return "a bitmap that is compressed or of an unknown depth";
    default:
      return kNoPicture;
  }
}

template <class Decoded>
std::optional<PngPicture> pictureOr(Decoded decoded, const std::string& path) {
  if (decoded.isRead()) return std::move(decoded.picture);
  complain(path, describe(decoded.defect));
  return std::nullopt;
}

}  // namespace

std::optional<PngPicture> readPicture(const std::string& path) {
  const auto bytes = readInput(path);
  if (!bytes) {
    complain(path, gp::describe(IconDefect::NotReadable));
    return std::nullopt;
  }
  if (isBitmapFile(bytes->span())) return pictureOr(decodeBitmapFile(bytes->span(), kPngPicture), path);
  return pictureOr(decodePng(bytes->span(), kPngPicture), path);
}

}  // namespace gp::cli

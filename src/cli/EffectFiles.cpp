#include "cli/EffectFiles.h"

#include "cli/EntryLoading.h"
#include "cli/ImageFile.h"
#include "cli/Streams.h"
#include "document/IconSizes.h"
#include "effects/Texture.h"
#include "platform/codec/BitmapPicture.h"
#include "platform/files/BitmapLayout.h"
#include "platform/files/ByteReader.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <limits>
#include <vector>

namespace gp::cli {
namespace {

using Pictures = std::optional<std::vector<IconImage>>;

bool hasSize(const std::vector<IconImage>& icons, int side) {
  return std::ranges::find(icons, side, &IconImage::width) != icons.end();
}

// The first icon without alpha of each size. Empty after an error message.
Pictures readIcons(const std::string& path) {
  const auto file = openIconFile(path);
  if (!file) return std::nullopt;
  std::vector<IconImage> icons;
  const int count = file->directory.presentCount();
  for (int i = 0; i < count && icons.size() < kIconSides.size(); ++i) {
    if (hasSize(icons, sideOf(file->entry(i).width))) continue;
    IconDefect defect = IconDefect::None;
    auto loaded = loadEntry(*file, i, path, defect);
    if (loaded && !loaded->record.hasAlpha) icons.push_back(std::move(loaded->icon));
  }
  return icons;
}

struct BitmapFacts {
  std::int64_t width = 0, height = 0;
  int bits = 0;
  std::uint32_t compression = 0;

  bool isPlain() const {
    constexpr std::array kDepths{1, 4, 8, 24, 32};
    return compression == 0 && std::ranges::find(kDepths, bits) != kDepths.end();
  }
  bool hasPixels() const { return width > 0 && height != 0; }
};

BitmapFacts factsOf(std::span<const std::uint8_t> bytes) {
  ByteReader reader(bytes);
  const auto field = [](std::size_t offset) { return dib::kFileHeaderSize + offset; };
  return {reader.i32At(field(dib::kHeaderWidth)), reader.i32At(field(dib::kHeaderHeight)),
          reader.u16At(field(dib::kHeaderBitCount)), reader.u32At(field(dib::kHeaderCompression))};
}

// The fourth byte of 32 bits is not part of the colour.
Surface surfaceOf(const PngPicture& picture) {
  Surface surface(picture.width, picture.height);
  const std::uint8_t* pixel = picture.rgba.data();
  for (int y = 0; y < picture.height; ++y)
    for (int x = 0; x < picture.width; ++x, pixel += kRgbaBytes)
      surface.SetPixelV(x, y, rgb(pixel[0], pixel[1], pixel[2]));
  return surface;
}

Pictures refusePattern(const std::string& path, const std::string& reason) {
  complain(path, reason);
  return std::nullopt;
}

// A bitmap of the size of a pattern. Empty after an error message.
Pictures readPattern(const std::string& path) {
  const auto bytes = readInput(path);
  const BitmapFacts facts = bytes ? factsOf(bytes->span()) : BitmapFacts();
  if (!facts.isPlain() || !facts.hasPixels()) return refusePattern(path, kPatternNotLoaded);
  const DecodedBitmap decoded = decodeBitmapFile(bytes->span(), {kPatternSide, kPatternSide});
  const bool isRead = decoded.isRead() || decoded.defect == BitmapDefect::TooLarge;
  if (!isRead) return refusePattern(path, kPatternNotLoaded);
  const std::string refusal = refusalOfPattern(facts.width, std::abs(facts.height));
  if (!refusal.empty()) return refusePattern(path, refusal);
  return std::vector<IconImage>{{surfaceOf(decoded.picture), Surface(), {}}};
}

Pictures readFile(const Setting& setting, const std::string& path) {
  return setting.kind == SettingKind::IconFile ? readIcons(path) : readPattern(path);
}

}  // namespace

bool readEffectFile(const EffectRow& effect, const GivenOptions& options, EffectValues& values) {
  for (std::size_t i = 0; i < effect.settings.size(); ++i) {
    const Setting& setting = effect.settings[i];
    if (!isFile(setting, values.number(i))) continue;
    Pictures pictures = readFile(setting, options.find(setting.option)->second);
    if (!pictures) return false;
    values.setPictures(std::move(*pictures));
  }
  return true;
}

}  // namespace gp::cli

#include "animation/FrameExchange.h"

#include "animation/format/FrameDrawing.h"
#include "colour/ColorCount.h"
#include "files/format/IconProbe.h"

namespace gp {
namespace {

IconContainerRec recordOfFrame(const Surface& image, int number) {
  int colors = 0;
  GetColorBitCount_Image(image, colors);
  IconContainerRec record;
  record.used = true;
  record.present = true;
  record.sourceLabel = "ANI frame";
  record.setDepth({colors, convBPP_Upto24(colors)});
  record.setHeaderDepth(record.depth());
  record.size = kFrameSide;
  record.path = "FromAni_" + std::to_string(number);
  record.neverSaved = true;
  return record;
}

constexpr const char* kInvalidFile = "\nInvalid icon file or icon not a size of 16x16, 24x24, 32x32 or 48x48.";
constexpr const char* kSeveralIcons = "\nThis file is a multi-icon file.  Please load single-icon file only";
constexpr const char* kOtherSize = "\n\nSize not of 32x32";
constexpr const char* kStrangeDepth = "Incoming icon is a True Color icon but not of 24 BPP or 32 BPP.";
constexpr const char* kAlpha = "\nCannot load a 32 BPP True Color icon";
constexpr const char* kNotLoaded = "LoadIconFileToFrame.  Failed to load this icon file.";

// Returns a picture's refusal; empty when the file can be a frame.
LoadedPicture refusalOf(const IconFacts& facts, const std::string& path) {
  const ColorDepth depth = facts.depth();
  if (!facts.canBeOpened()) return {{}, path + kInvalidFile};
  if (facts.hasSeveralEntries()) return {{}, path + kSeveralIcons};
  if (facts.width != kFrameSide || facts.height != kFrameSide) return {{}, path + kOtherSize};
  if (!depth.isShown()) return {{}, kStrangeDepth, true};
  if (depth.hasAlpha()) return {{}, path + kAlpha};
  return {};
}

}  // namespace

FramePicture pictureOfIcon(const Surface& composite, const Surface& mask) {
  FramePicture picture;
  for (int y = 0; y < kFrameSide; ++y)
    for (int x = 0; x < kFrameSide; ++x) {
      const Color color = composite.GetPixel(x, y);
      picture.image.SetPixelV(x, y, color == kGround ? kWhite : color);
      picture.mask.SetPixelV(x, y, mask.GetPixel(x, y));
    }
  return picture;
}

IconOfFrame iconOfFrame(const FramePicture& picture, int number) {
  IconImage icon = transparentIcon(kFrameSide);
  for (int y = 0; y < kFrameSide; ++y)
    for (int x = 0; x < kFrameSide; ++x) {
      const Color color = picture.image.GetPixel(x, y), mask = picture.mask.GetPixel(x, y);
      // White where the mask is black belongs to the picture.
      if (color != kWhite || mask == kBlack) icon.image.SetPixelV(x, y, color);
      icon.mask.SetPixelV(x, y, mask);
    }
  return {icon, recordOfFrame(icon.image, number)};
}

LoadedPicture loadIconFile(const std::string& path) {
  const auto file = readIconFile(path);
  const IconFacts facts = file ? probeIcon(*file, false) : IconFacts();
  if (const LoadedPicture refused = refusalOf(facts, path); !refused.isLoaded()) return refused;
  const auto drawn = drawFrame(file->span());
  if (!drawn) return {{}, kNotLoaded};
  return {drawn->picture, {}};
}

}  // namespace gp

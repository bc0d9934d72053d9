#include "animation/format/ToXcursor.h"

#include "animation/format/AniSteps.h"
#include "animation/format/FrameImages.h"
#include "animation/format/Premultiplied.h"
#include "animation/format/Xcursor.h"

#include <algorithm>
#include <map>
#include <tuple>
#include <utility>

namespace gp {
namespace {

using Bytes = std::span<const std::uint8_t>;

constexpr const char* kNoImages = "no image that can be read";
constexpr const char* kTooLarge = "too large for an X cursor file";
constexpr const char* kNoFrame = "Failed to retrieve one of the frames, i.e. ";
constexpr std::uint32_t kOpaque = 0xFF000000;
constexpr int kAlphaShift = 24, kRedShift = 16, kGreenShift = 8;

// What is played: the frames, and which of them each step shows.
struct Played {
  std::vector<Bytes> frames;
  std::vector<std::size_t> steps;
  std::vector<std::uint32_t> delaysMs;
};

// The images of a frame that are converted, by size, with their nominal sizes.
struct PlannedImage {
  FrameImageFacts facts;
  std::uint32_t nominalSize = 0;
};
using PlannedFrame = std::vector<PlannedImage>;

std::uint64_t pixelBytes(const PlannedFrame& frame) {
  std::uint64_t bytes = 0;
  for (const PlannedImage& image : frame)
    bytes += XcursorFacts{.width = image.facts.width, .height = image.facts.height}.pixelBytes();
  return bytes;
}

std::vector<FrameImageFacts> deepestOfEachSize(const std::vector<FrameImageFacts>& images) {
  const auto sizeOf = [](const FrameImageFacts& image) { return std::pair(image.width, image.height); };
  std::map<std::pair<int, int>, int> bits;
  for (const FrameImageFacts& image : images) {
    int& most = bits[sizeOf(image)];
    most = std::max(most, image.bits);
  }
  std::vector<FrameImageFacts> deepest;
  std::ranges::copy_if(images, std::back_inserter(deepest),
                       [&](const FrameImageFacts& image) { return image.bits == bits[sizeOf(image)]; });
  return deepest;
}

std::uint32_t longerSide(const FrameImageFacts& image) {
  return static_cast<std::uint32_t>(std::max(image.width, image.height));
}

// The images of a frame by size, the smallest first.
PlannedFrame planOf(Bytes frame) {
  PlannedFrame plan;
  for (const FrameImageFacts& image : deepestOfEachSize(frameImages(frame))) plan.push_back({image, longerSide(image)});
  std::ranges::stable_sort(plan, {}, [](const PlannedImage& image) {
    return std::tuple(image.nominalSize, image.facts.width, image.facts.height);
  });
  return plan;
}

// Two images of one step and one nominal size would be played one after the other: the second one gets the next size.
void separate(PlannedFrame& plan) {
  for (std::size_t i = 1; i < plan.size(); ++i)
    plan[i].nominalSize = std::max(plan[i].nominalSize, plan[i - 1].nominalSize + 1);
}

// If all steps have as many images, those of one rank belong together, also where some are cut to smaller sides.
void joinRanks(std::vector<PlannedFrame>& plans) {
  const auto hasOtherCount = [&](const PlannedFrame& plan) { return plan.size() != plans.front().size(); };
  if (plans.empty() || std::ranges::any_of(plans, hasOtherCount)) return;
  for (std::size_t rank = 0; rank < plans.front().size(); ++rank) {
    std::uint32_t longest = 0;
    for (const PlannedFrame& plan : plans) longest = std::max(longest, plan[rank].nominalSize);
    for (PlannedFrame& plan : plans) plan[rank].nominalSize = longest;
  }
}

std::vector<PlannedFrame> plansOf(const std::vector<Bytes>& frames) {
  std::vector<PlannedFrame> plans(frames.size());
  std::ranges::transform(frames, plans.begin(), planOf);
  joinRanks(plans);
  std::ranges::for_each(plans, separate);
  return plans;
}

std::uint32_t opaque(int red, int green, int blue) {
  return kOpaque | static_cast<std::uint32_t>(red << kRedShift | green << kGreenShift | blue);
}

std::uint32_t withAlpha(Color color, int alpha) {
  const std::uint32_t product = opaque(premultiplied(redOf(color), alpha), premultiplied(greenOf(color), alpha),
                                       premultiplied(blueOf(color), alpha));
  return (product & ~kOpaque) | static_cast<std::uint32_t>(alpha) << kAlphaShift;
}

std::uint32_t withMask(Color color, bool isMasked) {
  if (isMasked && color == kBlack) return 0;
  const int flip = isMasked ? 0xFF : 0;
  return opaque(redOf(color) ^ flip, greenOf(color) ^ flip, blueOf(color) ^ flip);
}

PremultipliedPixels pixelsOf(const IconImage& icon) {
  // An opaque value is all that an image of one pixel without alpha has.
  const bool hasAlpha = icon.hasAlphaValues() && icon.alpha != AlphaMatrix();
  PremultipliedPixels pixels;
  pixels.reserve(static_cast<std::size_t>(icon.width()) * static_cast<std::size_t>(icon.height()));
  for (int y = 0; y < icon.height(); ++y)
    for (int x = 0; x < icon.width(); ++x) {
      const Color color = icon.image.GetPixel(x, y);
      pixels.push_back(hasAlpha ? withAlpha(color, icon.alpha.at(x, y))
                                : withMask(color, icon.mask.GetPixel(x, y) != kBlack));
    }
  return pixels;
}

// Decodes the images of each frame when it is shown first.
class Frames {
 public:
  Frames(const Played& played, const std::vector<PlannedFrame>& plans)
      : played_(played), plans_(plans), images_(plans.size()) {}

  // Empty when one of the images cannot be decoded.
  const std::vector<XcursorImage>& imagesOf(std::size_t frame) {
    std::vector<XcursorImage>& images = images_[frame];
    if (!images.empty()) return images;
    for (const PlannedImage& plan : plans_[frame])
      if (!decode(played_.frames[frame], plan, images)) {
        images.clear();
        break;
      }
    return images;
  }

 private:
  static bool decode(Bytes frame, const PlannedImage& plan, std::vector<XcursorImage>& images) {
    const auto icon = decodeFrameImage(frame, plan.facts);
    if (!icon) return false;
    const int width = icon->width(), height = icon->height();
    images.push_back({{plan.nominalSize, width, height, std::clamp(plan.facts.hotspotX, 0, width - 1),
                       std::clamp(plan.facts.hotspotY, 0, height - 1), 0},
                      pixelsOf(*icon)});
    return true;
  }

  const Played& played_;
  const std::vector<PlannedFrame>& plans_;
  std::vector<std::vector<XcursorImage>> images_;
};

ConvertedCursor refused(const std::string& reason) { return {{}, reason}; }

// Frames can be shown many times, and images can share bytes.
bool isTooLarge(const Played& played, const std::vector<PlannedFrame>& plans) {
  std::uint64_t bytes = 0, images = 0;
  for (const std::size_t frame : played.steps) {
    bytes += pixelBytes(plans[frame]);
    images += plans[frame].size();
    if (bytes > kMostXcursorBytes || images > kMostXcursorImages) return true;
  }
  return false;
}

ConvertedCursor convert(const Played& played, const char* noImages) {
  const std::vector<PlannedFrame> plans = plansOf(played.frames);
  if (isTooLarge(played, plans)) return refused(kTooLarge);
  Frames frames(played, plans);
  std::vector<XcursorImage> images;
  for (std::size_t i = 0; i < played.steps.size(); ++i) {
    const std::vector<XcursorImage>& shown = frames.imagesOf(played.steps[i]);
    if (shown.empty()) return refused(noImages ? noImages : kNoFrame + std::to_string(i));
    for (const XcursorImage& image : shown) {
      images.push_back(image);
      images.back().facts.delayMs = played.delaysMs[i];
    }
  }
  return {composeXcursor(images), {}};
}

ConvertedCursor convertAni(Bytes file) {
  const AniReading reading = readAniFile(file);
  if (!reading.isRead()) return refused(describe(reading.defect));
  Played played;
  for (const AniImage& image : reading.file.images) played.frames.push_back(file.subspan(image.offset, image.size));
  played.steps = stepsOf(reading.file);
  const auto missing = std::ranges::find_if(played.steps, [&](std::size_t s) { return s >= played.frames.size(); });
  if (missing != played.steps.end()) return refused(kNoFrame + std::to_string(missing - played.steps.begin()));
  played.delaysMs = delaysOfSteps(reading.file, played.steps.size());
  return convert(played, nullptr);
}

}  // namespace

ConvertedCursor toXcursor(Bytes file) {
  return isRiffFile(file) ? convertAni(file) : convert({{file}, {0}, {kStillDelayMs}}, kNoImages);
}

}  // namespace gp

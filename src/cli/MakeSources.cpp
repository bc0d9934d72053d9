#include "cli/MakeSources.h"

#include "cli/Pictures.h"
#include "platform/scaling/PictureScaling.h"

#include <algorithm>

namespace gp::cli {
namespace {

std::string sizeText(const PngPicture& picture) {
  return std::to_string(picture.width) + "x" + std::to_string(picture.height);
}

bool isTooLarge(const PngPicture& picture) { return std::max(picture.width, picture.height) > kLargestMadeSide; }

// Where a picture is in a square that it fits into.
struct Fit {
  PictureSize size;
  int left = 0;
  int top = 0;
};

int proportional(int side, int longest, int target) {
  return std::max(1, (2 * side * target + longest) / (2 * longest));
}

Fit fitInto(int target, const PngPicture& picture) {
  const int longest = std::max(picture.width, picture.height);
  const PictureSize size{proportional(picture.width, longest, target), proportional(picture.height, longest, target)};
  return {size, (target - size.width) / 2, (target - size.height) / 2};
}

// The picture in the square, with transparent pixels around it.
PngPicture placed(PngPicture picture, const Fit& fit, int side) {
  if (picture.width == side && picture.height == side) return picture;
  PngPicture square{side, side, true, std::vector<std::uint8_t>(static_cast<std::size_t>(side) * side * kRgbaBytes)};
  const auto rowSize = static_cast<std::ptrdiff_t>(picture.width) * kRgbaBytes;
  for (int y = 0; y < picture.height; ++y)
    std::copy_n(picture.rgba.begin() + y * rowSize, rowSize,
                square.rgba.begin() + (static_cast<std::ptrdiff_t>(fit.top + y) * side + fit.left) * kRgbaBytes);
  return square;
}

// The pixel of a scaled picture in which the middle of a pixel of the original lies.
int scaledPosition(int at, int from, int to) { return static_cast<int>((2LL * at + 1) * to / (2LL * from)); }

Hotspot scaledHotspot(Hotspot spot, const PngPicture& from, const Fit& to) {
  return {to.left + scaledPosition(spot.x, from.width, to.size.width),
          to.top + scaledPosition(spot.y, from.height, to.size.height)};
}

bool hasSize(const std::vector<MakeSource>& sources, int side) {
  return std::ranges::any_of(sources, [side](const MakeSource& source) {
    return source.picture.width == side && source.picture.height == side;
  });
}

bool readPictures(const Arguments& names, std::vector<MakeSource>& sources) {
  for (const std::string& name : names) {
    auto picture = readPicture(name);
    if (!picture) return false;
    if (isTooLarge(*picture)) {
      complain(name, sizeText(*picture) + " pixels, and an image has 256x256 at most; --from scales it");
      return false;
    }
    sources.push_back({name, false, std::move(*picture), {}});
  }
  return true;
}

void addScaled(const MakeArguments& arguments, const PngPicture& from, std::vector<MakeSource>& sources) {
  std::vector<int> sides = arguments.sizes;
  std::erase_if(sides, [&](int side) { return hasSize(sources, side); });
  std::vector<PictureSize> sizes;
  sizes.reserve(sides.size());
  for (const int side : sides) sizes.push_back(fitInto(side, from).size);
  std::vector<PngPicture> scaled = scaledPictures(from, sizes, arguments.filter);
  for (std::size_t i = 0; i < sides.size(); ++i) {
    const Fit fit = fitInto(sides[i], from);
    sources.push_back({arguments.from, true, placed(std::move(scaled[i]), fit, sides[i]), {}});
  }
}

// False, after an error message, when the hot spot is outside the picture that it belongs to.
bool placeHotspots(const MakeArguments& arguments, const PngPicture& from, std::vector<MakeSource>& sources) {
  const bool isScaled = arguments.pictures.empty();
  const PngPicture first = isScaled ? from : sources.front().picture;
  const std::string& name = isScaled ? arguments.from : arguments.pictures.front();
  if (arguments.hotspot.x >= first.width || arguments.hotspot.y >= first.height) {
    complain(name, "the hot spot is outside its " + sizeText(first) + " pixels");
    return false;
  }
  for (MakeSource& source : sources) {
    const PngPicture& picture = source.picture;
    const Fit fit = isScaled ? fitInto(picture.width, first) : Fit{{picture.width, picture.height}, 0, 0};
    source.hotspot = scaledHotspot(arguments.hotspot, first, fit);
  }
  return true;
}

}  // namespace

std::optional<std::vector<MakeSource>> readSources(const MakeArguments& arguments) {
  std::vector<MakeSource> sources;
  if (!readPictures(arguments.pictures, sources)) return std::nullopt;
  PngPicture from;
  if (!arguments.from.empty()) {
    auto picture = readPicture(arguments.from);
    if (!picture) return std::nullopt;
    from = std::move(*picture);
    addScaled(arguments, from, sources);
  }
  if (arguments.isCursor && !placeHotspots(arguments, from, sources)) return std::nullopt;
  return sources;
}

}  // namespace gp::cli

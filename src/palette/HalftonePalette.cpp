#include "palette/HalftonePalette.h"

#include "palette/clsGPPal.h"

#include <algorithm>

namespace gp {
namespace {

// The system colours are the two halves of the sixteen standard colours, and two more colours next to each half.
constexpr std::size_t kHalf = kStandardPalette.size() / 2;
constexpr std::array kAfterDark{rgb(192, 220, 192), rgb(166, 202, 240)};
constexpr std::array kBeforeBright{rgb(255, 251, 240), rgb(160, 160, 164)};

// The cube has 8 steps of red and of green and 4 of blue; red varies fastest.
constexpr int kSteps = 8;
constexpr int kStepWidth = 32;
constexpr int kBlueStepWidth = 64;

constexpr Color cubeColor(int index) {
  return rgb(index % kSteps * kStepWidth, index / kSteps % kSteps * kStepWidth,
             index / (kSteps * kSteps) * kBlueStepWidth);
}

constexpr std::array<Color, 256> halftonePalette() {
  std::array<Color, 256> palette{};
  for (std::size_t i = 0; i < palette.size(); ++i) palette[i] = cubeColor(static_cast<int>(i));
  const auto middle = kStandardPalette.begin() + kHalf;
  const auto behind = std::copy(kStandardPalette.begin(), middle, palette.begin());
  std::copy(kAfterDark.begin(), kAfterDark.end(), behind);
  const auto bright = std::copy_backward(middle, kStandardPalette.end(), palette.end());
  std::copy_backward(kBeforeBright.begin(), kBeforeBright.end(), bright);
  return palette;
}

}  // namespace

constexpr std::array<Color, 256> kHalftonePalette = halftonePalette();

}  // namespace gp

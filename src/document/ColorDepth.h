// The depth of an icon: how many colours it has, and how many bits a pixel takes. The one place that knows which depths
// there are and how colours and bits follow from each other.
#pragma once

#include <algorithm>
#include <array>
#include <compare>

namespace gp {

// The colour count of true colour.
inline constexpr int kTrueColor = -1;
// Bits per pixel of true colour.
inline constexpr int kBitsWithAlpha = 32;
inline constexpr int kBitsWithoutAlpha = 24;

struct ColorDepth {
  int colors = 0;  // 2, 16, 256 or kTrueColor; what a file states may be another number
  int bits = 0;    // per pixel: 1, 4, 8, 24 or 32; likewise

  auto operator<=>(const ColorDepth&) const = default;  // NOLINT(modernize-use-nullptr): there is no null pointer
  constexpr bool isTrueColor() const { return colors == kTrueColor; }
  constexpr bool hasPalette() const { return colors > 0; }
  constexpr bool hasAlpha() const { return isTrueColor() && bits == kBitsWithAlpha; }
  // True when the editor shows icons of this depth: all with a palette, and true colour of 24 or 32 bits.
  constexpr bool isShown() const { return hasPalette() || bits == kBitsWithoutAlpha || bits == kBitsWithAlpha; }
  constexpr ColorDepth withoutAlpha() const { return {colors, hasAlpha() ? kBitsWithoutAlpha : bits}; }
};

inline constexpr ColorDepth kMonoDepth{2, 1};
inline constexpr ColorDepth kStandardDepth{16, 4};
inline constexpr ColorDepth kPaletteDepth{256, 8};
inline constexpr std::array kPaletteDepths{kMonoDepth, kStandardDepth, kPaletteDepth};

// The colours of a bit count: 2, 16, 256 for 1, 4, 8, and kTrueColor for any other.
constexpr int ColorsForBitCount(int bitCount) {
  const auto found = std::ranges::find(kPaletteDepths, bitCount, &ColorDepth::bits);
  return found == kPaletteDepths.end() ? kTrueColor : found->colors;
}

// The bits per pixel of a colour count: 1, 4, 8 for 2, 16, 256, and 24 for any other.
constexpr int convBPP_Upto24(int colors) {
  const auto found = std::ranges::find(kPaletteDepths, colors, &ColorDepth::colors);
  return found == kPaletteDepths.end() ? kBitsWithoutAlpha : found->bits;
}

// True for 2, 16 and 256, the sizes of palettes that there are row formats for.
constexpr bool isPaletteSize(int colors) { return convBPP_Upto24(colors) != kBitsWithoutAlpha; }

// The depth of a colour count. An alpha channel makes a difference to true colour only.
constexpr ColorDepth depthOfColors(int colors, bool withAlpha = false) {
  return {colors, colors == kTrueColor && withAlpha ? kBitsWithAlpha : convBPP_Upto24(colors)};
}

// The depth of a bit count, as a bitmap header states it.
constexpr ColorDepth depthOfBits(int bitCount) { return {ColorsForBitCount(bitCount), bitCount}; }

// The depth that an icon counts as whose file states `depth`: bits that do not go with a palette follow from the
// colours. Old icons state no bits.
constexpr ColorDepth corrected(ColorDepth depth) {
  const bool fits = !depth.hasPalette() || ColorsForBitCount(depth.bits) != kTrueColor;
  return fits ? depth : depthOfColors(depth.colors);
}

}  // namespace gp

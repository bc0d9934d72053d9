// A pattern pressed into the painted pixels of an icon, as if light came over a relief.
#pragma once

#include "effects/EffectTable.h"
#include "effects/TexturePatterns.h"

#include <cstdint>
#include <string>

namespace gp {

extern const EffectRow kTexture;

// The effect's settings, in their order. The value of Pattern is the index of a stored one, or kStoredPatterns for the
// one in EffectValues::pictures().
enum class TextureSetting : std::size_t { Pattern, Depth, Style };
constexpr std::size_t indexOf(TextureSetting setting) { return static_cast<std::size_t>(setting); }
// Lowest and highest depth, in tenths.
inline constexpr int kLeastDepth = 1, kMostDepth = 9;
inline constexpr int kTextureStyles = 2;

// Returns the pattern that the values name.
const Surface& patternOf(const EffectValues& values);

inline constexpr const char* kPatternNotLoaded = "Failed to load the image file";
// Why a picture of this size, in pixels, is no pattern; empty when it is one.
std::string refusalOfPattern(std::int64_t width, std::int64_t height);

}  // namespace gp

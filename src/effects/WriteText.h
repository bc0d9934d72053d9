// A line of text in one of five styles, turned by an angle, as content for a floating region. Pure functions on the
// line, which is black on white.
#pragma once

#include "document/IconImage.h"
#include "platform/ports/TextDrawing.h"

namespace gp {

struct EffectRow;

// The colours of relief text. Styles that draw them refuse them as the colour of the text.
inline constexpr Color kReliefGrey = 0x808080;
inline constexpr Color kReliefLight = 0xFFEEFF;

// In the order of the list of styles.
enum class TextStyle { Ordinary, Hollow, Embossed, Engraved, Shadowed };
inline constexpr int kTextStyles = 5;

// In the order of the list of sizes.
enum class TextSize { Normal, Small, Tiny };
inline constexpr int kTextSizes = 3;

inline constexpr int kLargestTextAngle = 180;

struct TextSettings {
  TextStyle style = TextStyle::Ordinary;
  Color color = kBlack;
  int angle = 0;  // in degrees, counter-clockwise
};

// How the letters of a style are drawn.
TextLook lookOf(TextStyle style);

// The message that refuses a colour for a style; null when the style takes it.
const char* refusalOfColor(TextStyle style, Color color);

// Returns the height of a capital letter in an icon, in pixels: 3/4, 1/2 and 1/3 of the icon's height.
int capitalHeightOf(TextSize size, int iconHeight);

// Returns the size in pixels of a font of that many points, of which an inch of 96 pixels has 72.
int pixelsOfPoints(int points);

// Returns the size of a font in pixels with which its capital letters have that height, 1 at least. `font` is any size
// of the font.
int fontPixels(TextDrawing& drawing, TextFont font, int capitalHeight);

// Returns the text as content: the smallest box that holds its pixels; empty for a line without a black pixel. `line`
// is turned about the middle of a Surface that is as large as the icon at least.
IconImage writtenText(const Surface& line, const TextSettings& settings, int iconWidth, int iconHeight);

extern const EffectRow kText;

}  // namespace gp

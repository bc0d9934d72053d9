// A font for tests: each letter is a pattern of pixels that follows from its code and from the font, so that a test can
// compute every pixel.
#pragma once

#include "platform/ports/TextDrawing.h"

#include <algorithm>
#include <cctype>
#include <string>
#include <vector>

namespace gp::test {

class FakeTextDrawing : public TextDrawing {
 public:
  std::vector<std::string> families{"Block", "Chalk", "Dot"};
  std::vector<std::string> gone;  // listed, but not there any more
  TextLook lastLook = TextLook::Filled;

  std::vector<std::string> fontFamilies() override { return families; }
  bool hasFont(const std::string& family) override { return has(families, family) && !has(gone, family); }
  // Three quarters of the font.
  int capitalHeight(const TextFont& font) override { return font.pixels * 3 / 4; }

  Surface drawLine(const std::string& text, const TextFont& font, TextLook look, int longest) override {
    lastLook = look;
    return pictureOf(text, font, look, longest);
  }

  // Letters are half as wide as high; a space is white.
  static Surface pictureOf(const std::string& text, const TextFont& font, TextLook look, int longest) {
    const int wide = std::max(1, font.pixels / 2), count = static_cast<int>(text.size());
    Surface line(std::min(longest, wide * count), std::min(longest, font.pixels));
    for (int y = 0; y < line.height(); ++y)
      for (int x = 0; x < line.width(); ++x)
        if (isText(text[static_cast<std::size_t>(x / wide)], x % wide, y, font, look)) line.SetPixelV(x, y, kBlack);
    return line;
  }

 private:
  static bool has(const std::vector<std::string>& names, const std::string& name) {
    return std::ranges::find(names, name) != names.end();
  }
  static bool isText(char letter, int x, int y, const TextFont& font, TextLook look) {
    if (letter == ' ') return false;
    const int seed = letter + (font.bold ? 3 : 0) + (font.italic ? y : 0) + static_cast<int>(font.family.size());
    const bool isOnLine = (font.underline && y == font.pixels - 1) || (font.strikeout && y == font.pixels / 2);
    const bool isInLetter = (x * 7 + y * 5 + x * y + seed) % 3 == 0;
    return isOnLine || (look == TextLook::Filled ? isInLetter : !isInLetter);
  }
};

}  // namespace gp::test

// The port that draws a line of text in the fonts of the system. Texts and names are UTF-8.
#pragma once

#include "platform/gdi/Surface.h"

#include <string>
#include <vector>

namespace gp {

struct TextFont {
  std::string family;
  int pixels = 0;  // the size of the font
  bool bold = false;
  bool italic = false;
  bool underline = false;
  bool strikeout = false;

  bool operator==(const TextFont&) const = default;
};

// Whole letters, or their outlines, one pixel wide.
enum class TextLook { Filled, Outline };

class TextDrawing {
 public:
  virtual ~TextDrawing() = default;
  // The families of the system in the order of their names, case ignored.
  virtual std::vector<std::string> fontFamilies() = 0;
  // Returns whether the system has the family at this moment. One that was listed may have been removed since.
  virtual bool hasFont(const std::string& family) = 0;
  // Returns the height of a capital letter in pixels.
  virtual int capitalHeight(const TextFont& font) = 0;
  // Returns the line on a Surface that is as large as the line and all its letters: black pixels are the text, all
  // others are white. Both sides are at most `longest` pixels: what comes behind the letters that fit is left out. A
  // text may have any letters, in any direction of writing, and any length. A line without a letter has at most white
  // pixels.
  virtual Surface drawLine(const std::string& text, const TextFont& font, TextLook look, int longest) = 0;
};

}  // namespace gp

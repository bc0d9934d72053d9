// Draws text with Qt's fonts, without antialiasing and with full hinting, so that small letters are sharp.
#pragma once

#include "platform/ports/TextDrawing.h"

namespace gp {

class QtTextDrawing : public TextDrawing {
 public:
  std::vector<std::string> fontFamilies() override;
  bool hasFont(const std::string& family) override;
  int capitalHeight(const TextFont& font) override;
  // Only the first letters of a very long text are laid out.
  Surface drawLine(const std::string& text, const TextFont& font, TextLook look, int longest) override;
};

}  // namespace gp

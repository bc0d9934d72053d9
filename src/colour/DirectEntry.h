// The typed colour value: the text of txbDirectEntryColorValue in hexadecimal or decimal, its key filter and its
// corrections. Wrong input is never reported, only corrected.
#pragma once

#include "platform/gdi/Surface.h"

#include <optional>
#include <string>

namespace gp {

inline constexpr Color kLargestColor = 0xFFFFFF;

class DirectEntry {
 public:
  const std::string& text() const { return text_; }
  // Takes typed text, cut to maxLength().
  void setText(const std::string& text);
  // ckbAsHexColorValue.
  bool isHex() const { return hexTicked_; }
  int maxLength() const { return hexTicked_ ? 6 : 8; }
  // The key that goes into the text, 0 for a dropped one.
  int filterKey(int keyCode) const;
  // The tick of ckbAsHexColorValue changed: the text is converted to the other base.
  void toggleHex();
  // cmdDirectEntryColorValue: the colour, with the text corrected; nothing for an empty text.
  std::optional<Color> proceed();

 private:
  std::string text_;
  bool hexTicked_ = true;
  bool mDirectEntryHex = true;  // base of the text as it stands
};

}  // namespace gp

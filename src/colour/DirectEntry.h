// The typed colour value: the text of txbDirectEntryColorValue in hexadecimal or decimal, its key filter and its
// corrections. Invalid input is corrected without a message.
#pragma once

#include "platform/gdi/Surface.h"

#include <optional>
#include <string>

namespace gp {

inline constexpr Color kLargestColor = 0xFFFFFF;

class DirectEntry {
 public:
  const std::string& text() const { return text_; }
  // Stores typed text, truncated to maxLength().
  void setText(const std::string& text);
  // ckbAsHexColorValue.
  bool isHex() const { return hexTicked_; }
  int maxLength() const { return hexTicked_ ? 6 : 8; }
  // Returns the key to insert, 0 to drop it.
  int filterKey(int keyCode) const;
  // Handles a change of ckbAsHexColorValue: converts the text to the other base. A hexadecimal text gets six digits.
  void toggleHex();
  // Handles cmdDirectEntryColorValue: corrects the text and returns its colour; nullopt for an empty or negative text.
  std::optional<Color> proceed();

 private:
  std::string text_;
  bool hexTicked_ = true;
  bool mDirectEntryHex = true;  // the base of the current text
};

}  // namespace gp

// A text field of fixed length, padded with blanks. The length counts characters, not bytes; text is never cut inside a
// character. trimmed() returns the content.
#pragma once

#include "platform/text/Utf8.h"

#include <string>
#include <string_view>

namespace gp {

template <int Length>
class FixedText {
 public:
  FixedText() = default;
  FixedText(std::string_view text) { *this = text; }
  FixedText& operator=(std::string_view text) {
    text_ = trimRight(firstCharacters(text, Length));
    return *this;
  }
  // Returns the text without padding and leading blanks.
  std::string trimmed() const { return trim(text_); }
  // Returns the whole field, padded with blanks to its length in characters.
  std::string padded() const { return text_ + std::string(Length - countCharacters(text_), ' '); }
  bool operator==(const FixedText&) const = default;

 private:
  std::string text_;
};

}  // namespace gp

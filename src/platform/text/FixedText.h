// A text field of fixed length, blank-padded as record fields are. It counts characters, not bytes, never cuts inside
// a character, and is read through trimmed().
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
  // The text without the padding and without leading blanks.
  std::string trimmed() const { return trim(text_); }
  // The whole field, padded with blanks to its length in characters.
  std::string padded() const { return text_ + std::string(Length - countCharacters(text_), ' '); }
  bool operator==(const FixedText&) const = default;

 private:
  std::string text_;
};

}  // namespace gp

// A text field of any length whose content is read without leading and trailing blanks, as that of a FixedText.
#pragma once

#include "platform/text/Utf8.h"

#include <string>
#include <string_view>

namespace gp {

class TrimmedText {
 public:
  TrimmedText() = default;
  TrimmedText(std::string_view text) : text_(trim(text)) {}
  TrimmedText& operator=(std::string_view text) {
    text_ = trim(text);
    return *this;
  }
  // Returns the text without leading and trailing blanks.
  const std::string& trimmed() const { return text_; }
  bool operator==(const TrimmedText&) const = default;

 private:
  std::string text_;
};

}  // namespace gp

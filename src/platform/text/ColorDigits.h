// Colours as gpicon takes them: six hexadecimal digits, red first.
#pragma once

#include "platform/gdi/Surface.h"

#include <optional>
#include <string>
#include <string_view>

namespace gp {

// The colour that six hexadecimal digits in any case describe; nothing for any other text.
std::optional<Color> colorOfDigits(std::string_view digits);
// The six digits of a colour, in upper case.
std::string digitsOfColor(Color color);

}  // namespace gp

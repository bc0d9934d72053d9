// Characters in UTF-8 text, and the trims. A byte that is no valid UTF-8 counts as one character, so that any file
// name the system allows can be held.
#pragma once

#include <string>
#include <string_view>

namespace gp {

// Bytes of the character that a text begins with; 0 for an empty text.
std::size_t characterSize(std::string_view text);
int countCharacters(std::string_view text);
// The first `count` characters; the whole text if it has fewer.
std::string firstCharacters(std::string_view text, int count);
// Without blanks on both sides, or on the right only.
std::string trim(std::string_view text);
std::string trimRight(std::string_view text);
// ASCII letters only; all other bytes stay.
std::string upperCase(std::string_view text);
std::string lowerCase(std::string_view text);
// True when the text ends with `ending`, or when both are equal, ASCII case ignored.
bool endsWithAnyCase(std::string_view text, std::string_view ending);
bool equalAnyCase(std::string_view a, std::string_view b);

}  // namespace gp

// Characters in UTF-8 text, and trimming. A byte that is not valid UTF-8 counts as one character, so that every file
// name that the system allows can be represented.
#pragma once

#include <string>
#include <string_view>

namespace gp {

// Returns the number of bytes of the first character; 0 for an empty text.
std::size_t characterSize(std::string_view text);
int countCharacters(std::string_view text);
// Returns the first `count` characters; the whole text if it has fewer.
std::string firstCharacters(std::string_view text, int count);
// Return the text without blanks on both sides, or on the right only.
std::string trim(std::string_view text);
std::string trimRight(std::string_view text);
// Convert ASCII letters only; all other bytes are unchanged.
std::string upperCase(std::string_view text);
std::string lowerCase(std::string_view text);
// Returns true when the text ends with `ending`, ASCII case ignored.
bool endsWithAnyCase(std::string_view text, std::string_view ending);
bool equalAnyCase(std::string_view a, std::string_view b);

}  // namespace gp

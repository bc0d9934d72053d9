// Texts in profile format: sections in brackets, then lines of key, equals sign and value. Changes preserve all other
// content: other sections and keys, comments, blank lines, order and line ends. Sections and keys are compared in any
// case.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace gp {

// Returns true when a value fits on a line: it has no line break or NUL, and at most 2047 bytes.
bool fitsInIni(std::string_view value);
// Returns the value of a key without its quotes, cut to 2047 bytes; nullopt without the key.
std::optional<std::string> findValue(std::string_view text, std::string_view section, std::string_view key);
// Sets the value of a key; adds a missing section or key. The value must fit on a line. Blanks or quotes around it are
// not read back.
void setValue(std::string& text, std::string_view section, std::string_view key, std::string_view value);
// Removes a key, if it is there.
void removeValue(std::string& text, std::string_view section, std::string_view key);

}  // namespace gp

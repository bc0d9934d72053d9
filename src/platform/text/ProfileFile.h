// Settings files in profile format: sections in brackets, then lines of key, equals sign and value. Writing preserves
// all other content of the file: other sections and keys, comments, blank lines, order and line ends. A file above 1 MB
// is not a settings file: it reads as empty and is not written.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace gp {

// Returns the value of a key, at most 2047 bytes; `fallback` when the key or the file is missing. Section and key are
// compared in any case. Quotes around a value are removed.
std::string ReadIniString(std::string_view section, std::string_view key, std::string_view fallback,
                          const std::string& file);
// The same, but returns nullopt for an absent key.
std::optional<std::string> findIniString(std::string_view section, std::string_view key, const std::string& file);
// Returns true when a value fits on a line: it has no line break or NUL, and at most 2047 bytes.
bool fitsInIni(std::string_view value);
// Writes a value; creates a missing section or file. Blanks or quotes around the value are not read back. Returns false
// and changes nothing when the file cannot be written or the value does not fit on a line.
bool WriteIniString(std::string_view section, std::string_view key, std::string_view value, const std::string& file);
// Removes a key. Returns false when the file cannot be written; a missing key is a success.
bool DeleteIniKey(std::string_view section, std::string_view key, const std::string& file);

}  // namespace gp

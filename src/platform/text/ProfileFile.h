// Settings files in the form of profile files: sections in brackets, then key, equals sign and value on a line. Reading
// and writing keep everything in the file that they do not concern: foreign sections and keys, comments, blank lines,
// order and line ends. A file above 1 MB is none of ours: it reads as empty and is not written.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace gp {

// The value of a key (section and key in any case), `fallback` when the key or the file is missing. At most 2047 bytes
// are delivered. Quotes around a value are taken off, as profile files have it.
std::string ReadIniString(std::string_view section, std::string_view key, std::string_view fallback,
                          const std::string& file);
// The same, telling an absent key from an empty one.
std::optional<std::string> findIniString(std::string_view section, std::string_view key, const std::string& file);
// True when a value can stand on a line: no line break or NUL in it, and at most 2047 bytes.
bool canStandInIni(std::string_view value);
// Writes a value; section and file are made when missing. Blanks around the value, or quotes, are not read back. False
// when the file cannot be written or the value cannot stand in it; then nothing has changed.
bool WriteIniString(std::string_view section, std::string_view key, std::string_view value, const std::string& file);
// Removes a key. False when the file cannot be written; a missing key is no failure.
bool DeleteIniKey(std::string_view section, std::string_view key, const std::string& file);

}  // namespace gp

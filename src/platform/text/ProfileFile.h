// Settings files in the form of profile files: sections in brackets, then key, equals sign and value on a line. Reading
// and writing keep everything in the file that they do not concern.
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
// Writes a value; section and file are made when missing. False when the file cannot be written.
bool WriteIniString(std::string_view section, std::string_view key, std::string_view value, const std::string& file);
// Removes a key. False when the file cannot be written; a missing key is no failure.
bool DeleteIniKey(std::string_view section, std::string_view key, const std::string& file);

}  // namespace gp

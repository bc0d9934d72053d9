// Parses paths as text, without accessing the disk. A separator is '\' or '/'.
#pragma once

#include <string>
#include <string_view>

namespace gp {

constexpr bool isSeparator(char c) { return c == '\\' || c == '/'; }

// The parts that ParseFileName returns.
enum class PathPart {
  DriveAndFolder = 0,
  WithoutExtension = 1,
  Drive = 2,
  Folder = 3,
  NameWithExtension = 4,
  BareName = 5,
  Extension = 6,
};

// Returns one part of a path; empty when the path has more than 255 characters or starts with "$" or a blank. The
// folder includes its trailing separator, the extension its dot. Without a separator, folder and name with extension
// are empty, while bare name and extension are returned; callers rely on it.
std::string ParseFileName(std::string_view path, PathPart part);

// Returns a path for a menu: with four separators or more, everything between the second separator and the file name is
// replaced by "\.....\" (or "/...../").
std::string ShortenPath(std::string_view path);

// Returns true when a file name matches a pattern such as "*.ico" ("*" matches any run, "?" one character), case
// ignored. "*.*" matches every name.
bool matchesPattern(std::string_view name, std::string_view pattern);

}  // namespace gp

// Taking paths apart as text. Nothing here touches the disk. A separator is '\' or '/'.
#pragma once

#include <string>
#include <string_view>

namespace gp {

constexpr bool isSeparator(char c) { return c == '\\' || c == '/'; }

// What ParseFileName returns.
enum class PathPart {
  DriveAndFolder = 0,
  WithoutExtension = 1,
  Drive = 2,
  Folder = 3,
  NameWithExtension = 4,
  BareName = 5,
  Extension = 6,
};

// One part of a path; empty when the path has more than 255 characters or begins with "$" or a blank. The folder keeps
// its trailing separator, the extension its dot. Without any separator the rest counts as the bare name, the folder
// stays empty and so does the name with extension: callers live with that.
std::string ParseFileName(std::string_view path, PathPart part);

// A path for a menu: with four separators or more, everything between the second one and the file name becomes
// "\.....\" (or "/...../").
std::string ShortenPath(std::string_view path);

// True when a file name matches a pattern such as "*.ico" or "*.*" ("*" any run, "?" one character), case ignored.
// "*.*" matches every name.
bool matchesPattern(std::string_view name, std::string_view pattern);

}  // namespace gp

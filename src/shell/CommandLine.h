// Interprets the program's command line: one path, whose ending means an icon, a cursor or an animated cursor. Checks
// that the file exists and opens nothing.
#pragma once

#include <string>
#include <string_view>

namespace gp {

enum class CommandLineKind {
  None,     // no command line
  Missing,  // there is no such file; the user is informed
  Ico,
  Cur,
  Ani,
  Ignored,  // another ending; ignored without a message
};

struct CommandLineFile {
  std::string path;
  CommandLineKind kind = CommandLineKind::None;
};

// Returns an existing file's absolute path. Double quotes are removed from the text, unless only the text with the
// quotes names an existing file.
CommandLineFile readCommandLine(std::string_view commandLine);
// Returns the message for a missing file.
std::string fileNotFoundText(std::string_view path);

}  // namespace gp

// What the program makes of its command line: one path, by its ending an icon, a cursor or an animated cursor. Looks
// whether the file is there and opens nothing.
#pragma once

#include <string>
#include <string_view>

namespace gp {

enum class CommandLineKind {
  None,     // no command line
  Missing,  // there is no such file: the user is told
  Ico,
  Cur,
  Ani,
  Ignored,  // some other ending: nothing happens, without a word
};

struct CommandLineFile {
  std::string path;
  CommandLineKind kind = CommandLineKind::None;
};

// The path of a file that is there comes out in full. Double quotes are taken out of the text, unless they belong to
// the name of a file that is there.
CommandLineFile readCommandLine(std::string_view commandLine);
// What the user is told of a missing file.
std::string fileNotFoundText(std::string_view path);

}  // namespace gp

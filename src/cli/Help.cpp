#include "cli/Help.h"

#include <cstdio>

namespace gp::cli {
namespace {

void printDescription(const Command& command) {
  std::printf("gpicon %s\n%s\n\n", command.wholeUsage().c_str(), command.wholeHelp().c_str());
}

}  // namespace

const char* commonHelp() {
  return "Indices and styles count from 0. Options end at \"--\". Colors are six hexadecimal\n"
         "digits, red first. \"-\" in place of a file is standard input where the file is read,\n"
         "and standard output where it is the only one written; a file of that name is \"./-\".\n"
         "replace, add, remove, reorder, salvage and strip write to OUT, replacing it, or else\n"
         "the file itself; bmp, resave, reduce and effect replace OUT, which may be IN.ico. At\n"
         "every moment a file has its whole former or its whole new content, also when it\n"
         "cannot be written. None writes anything when it refuses. A bad file costs one line\n"
         "on stderr and not the others; control characters of names are printed as \\x0A.\n"
         "Exit status: 0 done, 1 a file was bad or refused, 2 bad usage.";
}

void printHelp() {
  std::puts("gpicon - makes Windows icon and cursor files, looks into them, takes them apart and changes them\n");
  for (const Command& command : commandTable()) printDescription(command);
  std::printf("gpicon --help, gpicon --version\nPrint this, and the version.\n\n%s\n", commonHelp());
}

void printHelpOf(const Command& command) {
  printDescription(command);
  std::printf("Example:\n  gpicon %s\n", command.example);
}

int runHelp(const Arguments& arguments) {
  if (arguments.size() > 1) return badUsage("help: one COMMAND is all it takes");
  if (arguments.empty()) {
    printHelp();
    return kDone;
  }
  const Command* const command = findCommand(arguments.front());
  if (!command) return badUsage("help: unknown subcommand " + arguments.front());
  printHelpOf(*command);
  return kDone;
}

}  // namespace gp::cli

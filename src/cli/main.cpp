// gpicon: makes, inspects and changes icon files on the command line, with Glimmerpane's core.
#include "cli/CommandTable.h"
#include "cli/Help.h"
#include "platform/files/FileWriting.h"

#include <algorithm>
#include <cstdio>

namespace gp::cli {
namespace {

bool isHelpOption(const std::string& argument) { return argument == "--help" || argument == "-h"; }

int run(const Arguments& arguments) {
  if (arguments.empty()) return badUsage("no subcommand given");
  const std::string& name = arguments.front();
  const Arguments rest(arguments.begin() + 1, arguments.end());
  if (isHelpOption(name)) return runHelp(rest);
  if (name == "--version") {
    std::puts("gpicon " GLIMMERPANE_VERSION);
    return kDone;
  }
  const Command* const command = findCommand(name);
  if (!command) return badUsage("unknown subcommand " + name);
  if (!rest.empty() && isHelpOption(rest.front())) return runHelp({name});
  return command->run(rest);
}

}  // namespace
}  // namespace gp::cli

int main(int argc, char** argv) {
  gp::ignoreWriteSignals();
  const int status = gp::cli::run(gp::cli::Arguments(argv + std::min(argc, 1), argv + argc));
  // Output that could not be written, for example to a full disk, is a failure.
  if (std::fflush(stdout) == 0) return status;
  gp::cli::complain("stdout", "cannot be written");
  return gp::cli::kRefused;
}

// The manual page and the completions of shells, which the build installs.
#include "cli/CommandTable.h"
#include "cli/Help.h"
#include "cli/Subcommands.h"

#include <array>
#include <cstdio>

namespace gp::cli {
namespace {

// Text for roff: no backslash, and no line that begins with a control character.
std::string roff(std::string_view text) {
  std::string out;
  for (const char c : text) {
    if ((out.empty() || out.back() == '\n') && (c == '.' || c == '\'')) out += "\\&";
    if (c == '\\')
      out += "\\e";
    else if (c == '-')
      out += "\\-";
    else
      out += c;
  }
  return out;
}

// A usage of several lines as one.
std::string oneLine(std::string text) {
  for (std::size_t at; (at = text.find('\n')) != std::string::npos;)
    text.erase(at, text.find_first_not_of(' ', at + 1) - at - 1).replace(at, 1, " ");
  return text;
}

void printPage(const Command& command) {
  std::printf(".SS gpicon %s\n.nf\n%s\n.fi\n.PP\nExample:\n.RS\ngpicon %s\n.RE\n",
              roff(oneLine(command.wholeUsage())).c_str(), roff(command.wholeHelp()).c_str(),
              roff(command.example).c_str());
}

int printManual() {
  std::fputs(
      ".TH GPICON 1\n.SH NAME\ngpicon \\- makes, shows, checks and changes icon and cursor files\n"
      ".SH SYNOPSIS\n.B gpicon\nCOMMAND [ARGUMENT...]\n.SH COMMANDS\n",
      stdout);
  for (const Command& command : commandTable()) printPage(command);
  std::printf(".SH NOTES\n.nf\n%s\n.fi\n", roff(commonHelp()).c_str());
  return kDone;
}

std::string joined(const std::vector<std::string>& words) {
  std::string text;
  for (const std::string& word : words) text += (text.empty() ? "" : " ") + word;
  return text;
}

std::string allNames() {
  std::vector<std::string> names;
  for (const Command& command : commandTable()) names.emplace_back(command.name);
  return joined(names);
}

void printBash() {
  std::printf(
      "_gpicon() {\n"
      "  local word=${COMP_WORDS[COMP_CWORD]} options=--help\n"
      "  if [ \"$COMP_CWORD\" = 1 ]; then\n"
      "    COMPREPLY=($(compgen -W '%s --help --version' -- \"$word\"))\n"
      "    return\n"
      "  fi\n"
      "  case ${COMP_WORDS[1]} in\n",
      allNames().c_str());
  for (const Command& command : commandTable())
    std::printf("    %s) options='%s --help' ;;\n", std::string(command.name).c_str(),
                joined(command.options()).c_str());
  std::printf(
      "  esac\n"
      "  case $word in\n"
      "    -*) COMPREPLY=($(compgen -W \"$options\" -- \"$word\")) ;;\n"
      "    *) [ \"${COMP_WORDS[1]}\" = help ] && COMPREPLY=($(compgen -W '%s' -- \"$word\")) ;;\n"
      "  esac\n"
      "}\n"
      "complete -o default -F _gpicon gpicon\n",
      allNames().c_str());
}

void printZsh() {
  std::fputs("#compdef gpicon\nautoload -U +X bashcompinit && bashcompinit\n", stdout);
  printBash();
}

void printFish() {
  for (const Command& command : commandTable()) {
    const std::string name(command.name);
    std::printf("complete -c gpicon -n __fish_use_subcommand -a %s -d '%s'\n", name.c_str(), command.summary);
    for (const std::string& option : command.options()) {
      const bool isLong = option.starts_with("--");
      std::printf("complete -c gpicon -n '__fish_seen_subcommand_from %s' %s %s\n", name.c_str(), isLong ? "-l" : "-o",
                  option.substr(isLong ? 2 : 1).c_str());
    }
  }
}

struct Shell {
  std::string_view name;
  void (*print)();
};
constexpr std::array<Shell, 3> kShells{{{"bash", printBash}, {"zsh", printZsh}, {"fish", printFish}}};

}  // namespace

int runManual(const Arguments& arguments) {
  return arguments.empty() ? printManual() : badUsage("manual: unknown argument " + arguments.front());
}

int runCompletions(const Arguments& arguments) {
  for (const Shell& shell : kShells)
    if (arguments.size() == 1 && arguments.front() == shell.name) {
      shell.print();
      return kDone;
    }
  return badUsage("completions: bash, zsh or fish is needed");
}

}  // namespace gp::cli

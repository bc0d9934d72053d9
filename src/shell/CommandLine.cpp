#include "shell/CommandLine.h"

#include "platform/files/Files.h"
#include "platform/text/Utf8.h"

#include <algorithm>
#include <filesystem>
#include <system_error>

namespace gp {
namespace {

constexpr int kEndingCharacters = 4;

struct Ending {
  std::string_view text;
  CommandLineKind kind;
};

constexpr Ending kEndings[] = {
    {".ICO", CommandLineKind::Ico},
    {".CUR", CommandLineKind::Cur},
    {".ANI", CommandLineKind::Ani},
};

std::string withoutQuotes(std::string_view text) {
  std::string result(text);
  result.erase(std::remove(result.begin(), result.end(), '"'), result.end());
  return result;
}

// A path that consists of an ending alone does not name an icon.
CommandLineKind kindOf(const std::string& path) {
  if (countCharacters(path) <= kEndingCharacters) return CommandLineKind::Ignored;
  for (const Ending& ending : kEndings)
    if (endsWithAnyCase(path, ending.text)) return ending.kind;
  return CommandLineKind::Ignored;
}

// Returns the absolute path, because the current directory changes while the program runs.
std::string fullPath(const std::string& path) {
  std::error_code error;
  const auto full = std::filesystem::absolute(path, error);
  return error ? path : full.native();
}

}  // namespace

CommandLineFile readCommandLine(std::string_view commandLine) {
  if (commandLine.empty()) return {};
  const std::string path = withoutQuotes(commandLine);
  if (FileExists(path)) return {fullPath(path), kindOf(path)};
  const std::string literal(commandLine);
  if (FileExists(literal)) return {fullPath(literal), kindOf(literal)};
  return {path, CommandLineKind::Missing};
}

std::string fileNotFoundText(std::string_view path) { return std::string(path) + "\nFile not found."; }

}  // namespace gp

#include "animation/format/FromXcursor.h"
#include "animation/format/ToXcursor.h"
#include "cli/Streams.h"
#include "cli/Subcommands.h"
#include "files/format/IconDecoder.h"
#include "platform/text/Utf8.h"

namespace gp::cli {
namespace {

// The arguments "FILE -o OUT".
struct FileAndOutput {
  std::string file;
  std::string output;
};

int takeFileAndOutput(const std::string& command, Arguments arguments, FileAndOutput& given) {
  if (!takeOption(arguments, "-o", given.output)) return badUsage(command + ": one -o OUT is all it takes");
  const Split split = splitOptions(arguments);
  if (!split.options.empty()) return badUsage(command + ": unknown option " + split.options.front());
  if (split.files.size() != 1 || given.output.empty()) return badUsage(command + ": FILE -o OUT is needed");
  given.file = split.files.front();
  return kDone;
}

template <class Convert>
int convertFile(const FileAndOutput& given, const Convert& convert) {
  const auto bytes = readInput(given.file);
  if (!bytes) {
    complain(given.file, describe(IconDefect::NotReadable));
    return kRefused;
  }
  const ConvertedCursor converted = convert(bytes->span());
  if (!converted.isConverted()) {
    complain(given.file, converted.refusal);
    return kRefused;
  }
  if (writeOutput(given.output, converted.bytes)) return kDone;
  complain(given.output, describe(WriteDefect::NotWritten));
  return kRefused;
}

// By the ending; empty for another one.
std::optional<CursorKind> kindOf(const std::string& output) {
  if (isStream(output)) return CursorKind::ByContent;
  if (endsWithAnyCase(output, ".cur")) return CursorKind::Still;
  if (endsWithAnyCase(output, ".ani")) return CursorKind::Animated;
  return std::nullopt;
}

}  // namespace

int runXcursor(const Arguments& arguments) {
  FileAndOutput given;
  if (const int status = takeFileAndOutput("xcursor", arguments, given); status != kDone) return status;
  return convertFile(given, toXcursor);
}

int runUnxcursor(const Arguments& arguments) {
  Arguments rest = arguments;
  std::string text;
  int size = 0;
  if (!takeOption(rest, "--size", text)) return badUsage("unxcursor: one --size N is all it takes");
  if (!text.empty() && (!parseNumber(text, size) || size == 0))
    return badUsage("unxcursor: --size takes a number of pixels");
  FileAndOutput given;
  if (const int status = takeFileAndOutput("unxcursor", rest, given); status != kDone) return status;
  const auto kind = kindOf(given.output);
  if (!kind) return badUsage("unxcursor: the name of OUT ends with .cur or .ani");
  return convertFile(given, [&](std::span<const std::uint8_t> bytes) {
    return fromXcursor(bytes, *kind, text.empty() ? std::nullopt : std::optional(size));
  });
}

}  // namespace gp::cli

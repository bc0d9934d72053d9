#include "cli/Json.h"
#include "cli/Streams.h"
#include "cli/Subcommands.h"
#include "cli/Updating.h"
#include "files/format/IconUpdates.h"
#include "files/making/Stripping.h"

#include <cstdio>

namespace gp::cli {
namespace {

constexpr const char* kNotWritten = "cannot be written";

struct Sizes {
  std::size_t before = 0;
  std::size_t after = 0;
};

// Strips one file. Empty after an error message. A file in which nothing changes is not written again.
std::optional<Sizes> stripFile(const std::string& path, const std::string& output) {
  const auto lock = lockForUpdate(path);
  IconArrays arrays;
  if (!lock || !readForUpdate(path, arrays)) return std::nullopt;
  const std::size_t before = arrays.file.span().size();
  takeWholeImages(arrays);
  const bool isChanged = stripImages(arrays);
  if (!isChanged && output.empty() && !isStream(path)) return Sizes{before, before};
  const Sizes sizes{before, composeWholeFile(arrays).size()};
  if (!writeUpdate(arrays, path, output, [] { return kNotWritten; })) return std::nullopt;
  return sizes;
}

void printText(const std::string& path, const Sizes& sizes) {
  std::printf("%s\t%zu\t%zu\n", printable(path).c_str(), sizes.before, sizes.after);
}

void printJson(const std::string& path, const Sizes& sizes) {
  std::printf("{\"file\":%s,\"before\":%zu,\"after\":%zu}", jsonText(path).c_str(), sizes.before, sizes.after);
}

int stripFiles(const UpdateArguments& given, bool asJson) {
  int status = kDone;
  JsonArray array;
  for (const std::string& path : given.files) {
    const auto sizes = stripFile(path, given.output);
    if (!sizes) status = kRefused;
    if (!sizes || isStream(targetOf(path, given.output))) continue;
    if (asJson) array.next();
    (asJson ? printJson : printText)(path, *sizes);
  }
  if (asJson) array.end();
  return status;
}

}  // namespace

int runStrip(const Arguments& arguments) {
  Arguments rest = arguments;
  const bool asJson = takeFlag(rest, "--json");
  const auto given = parseUpdate("strip", rest, {});
  if (!given) return kBadUsage;
  if (given->files.empty()) return badUsage("strip: no file given");
  if (!given->output.empty() && given->files.size() != 1) return badUsage("strip: -o goes with one FILE only");
  return stripFiles(*given, asJson);
}

}  // namespace gp::cli

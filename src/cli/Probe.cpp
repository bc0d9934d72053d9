#include "animation/format/FilmReading.h"
#include "cli/ImageFile.h"
#include "cli/Json.h"
#include "cli/Streams.h"
#include "cli/Subcommands.h"
#include "files/cursor/CursorProbe.h"
#include "files/format/IcoLayout.h"
#include "files/format/IconDecoder.h"
#include "files/format/IconProbe.h"

#include <algorithm>
#include <cstdio>

namespace gp::cli {
namespace {

std::string numbersOf(const IconFile& file, const std::string& path) {
  if (isAnimated(file, path) || isNamedAni(path)) return std::to_string(countAniFrames(file.span()));
  return file.directory.type == ico::kTypeCursor ? probeCursor(file).joined() : probeIcon(file, true).joined();
}

std::optional<std::string> probe(const std::string& path) {
  const auto file = readImageInput(path);
  if (file) return numbersOf(*file, path);
  complain(path, describe(IconDefect::NotReadable));
  return std::nullopt;
}

int probeAsText(const Arguments& files) {
  int status = kDone;
  for (const std::string& path : files)
    if (const auto numbers = probe(path))
      std::printf("%s\t%s\n", printable(path).c_str(), numbers->c_str());
    else
      status = kRefused;
  return status;
}

int probeAsJson(const Arguments& files) {
  int status = kDone;
  JsonArray array;
  for (const std::string& path : files) {
    auto numbers = probe(path);
    if (!numbers) status = kRefused;
    if (!numbers) continue;
    std::ranges::replace(*numbers, '/', ',');
    array.next();
    std::printf("{\"file\":%s,\"numbers\":[%s]}", jsonText(path).c_str(), numbers->c_str());
  }
  array.end();
  return status;
}

}  // namespace

int runProbe(const Arguments& arguments) {
  ListArguments given;
  if (const int status = takeListArguments("probe", arguments, given); status != kDone) return status;
  return given.asJson ? probeAsJson(given.files) : probeAsText(given.files);
}

}  // namespace gp::cli

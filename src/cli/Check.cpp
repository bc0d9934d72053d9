#include "cli/AniDefects.h"
#include "cli/Discrepancies.h"
#include "cli/ImageFile.h"
#include "cli/Json.h"
#include "cli/Streams.h"
#include "cli/Subcommands.h"

#include <cstdio>
#include <functional>

namespace gp::cli {
namespace {

void printText(const std::string& path, const Discrepancy& discrepancy) {
  const std::string index = discrepancy.index < 0 ? kNothingStated : std::to_string(discrepancy.index);
  std::printf("%s\t%s\t%s\t%s\t%s\t%s\n", printable(path).c_str(), index.c_str(), printable(discrepancy.what).c_str(),
              discrepancy.directory.c_str(), discrepancy.header.c_str(), discrepancy.pixels.c_str());
}

std::string jsonOrNull(const std::string& text) { return text == kNothingStated ? "null" : jsonText(text); }

void printJson(const std::string& path, const Discrepancy& discrepancy) {
  const std::string index = discrepancy.index < 0 ? "null" : std::to_string(discrepancy.index);
  std::printf("{\"file\":%s,\"index\":%s,\"what\":%s,\"directory\":%s,\"header\":%s,\"pixels\":%s}",
              jsonText(path).c_str(), index.c_str(), jsonText(discrepancy.what).c_str(),
              jsonOrNull(discrepancy.directory).c_str(), jsonOrNull(discrepancy.header).c_str(),
              jsonOrNull(discrepancy.pixels).c_str());
}

using Printer = std::function<void(const std::string& path, const Discrepancy& discrepancy)>;

int checkFiles(const Arguments& files, const Printer& print) {
  int status = kDone;
  for (const std::string& path : files) {
    // The size of the file is one of the things that are checked.
    const auto file = accepted(readWholeIconInput(path), path);
    if (!file) status = kRefused;
    if (!file) continue;
    const auto report = [&](const Discrepancy& discrepancy) {
      status = kRefused;
      print(path, discrepancy);
    };
    isAnimated(*file, path) ? findAniDefects(file->span(), report) : findDiscrepancies(*file, report);
  }
  return status;
}

int checkAsJson(const Arguments& files) {
  JsonArray array;
  const int status = checkFiles(files, [&](const std::string& path, const Discrepancy& discrepancy) {
    array.next();
    printJson(path, discrepancy);
  });
  array.end();
  return status;
}

}  // namespace

int runCheck(const Arguments& arguments) {
  ListArguments given;
  if (const int status = takeListArguments("check", arguments, given); status != kDone) return status;
  return given.asJson ? checkAsJson(given.files) : checkFiles(given.files, printText);
}

}  // namespace gp::cli

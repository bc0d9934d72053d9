#include "cli/Json.h"
#include "cli/OutputFolder.h"
#include "cli/Streams.h"
#include "cli/Subcommands.h"
#include "extraction/format/ExtractedIcon.h"
#include "extraction/format/IclScan.h"
#include "extraction/format/IconHandle.h"

#include <cstdint>
#include <cstdio>
#include <optional>

namespace gp::cli {
namespace {

constexpr const char* kNoneFound = "No 16x16, 24x24, 32x32 or 48x48 icon found in this file";

struct Scanned {
  FileBytes bytes;
  std::vector<IclScanEntry> images;
};

// Empty after an error message.
std::optional<Scanned> scan(const std::string& path) {
  auto bytes = readInput(path);
  if (!bytes) {
    complain(path, "cannot be read");
    return std::nullopt;
  }
  Scanned scanned{std::move(*bytes), {}};
  scanned.images = scanForIconImages(scanned.bytes.span());
  return scanned;
}

std::uintmax_t offsetOf(const IclScanEntry& image) { return image.blobOffset - 1; }
std::uintmax_t sizeOf(const IclScanEntry& image) { return image.blobEnd - image.blobOffset + 1; }

void printText(const std::string& path, const std::vector<IclScanEntry>& images) {
  for (std::size_t i = 0; i < images.size(); ++i)
    std::printf("%s\t%zu\t%s\t%d\t%ju\t%ju\n", printable(path).c_str(), i, images[i].sizeText().c_str(),
                images[i].bitCount, offsetOf(images[i]), sizeOf(images[i]));
}

void printJson(const std::string& path, const std::vector<IclScanEntry>& images) {
  std::printf("{\"file\":%s,\"images\":[", jsonText(path).c_str());
  for (std::size_t i = 0; i < images.size(); ++i)
    std::printf("%s{\"index\":%zu,\"width\":%d,\"height\":%d,\"bits\":%d,\"offset\":%ju,\"bytes\":%ju}",
                i == 0 ? "\n" : ",\n", i, images[i].side, images[i].side, images[i].bitCount, offsetOf(images[i]),
                sizeOf(images[i]));
  std::fputs("]}", stdout);
}

int list(const ListArguments& given) {
  int status = kDone;
  JsonArray array;
  for (const std::string& path : given.files) {
    const auto scanned = scan(path);
    if (!scanned || scanned->images.empty()) status = kRefused;
    if (!scanned) continue;
    if (scanned->images.empty()) complain(path, kNoneFound);
    if (given.asJson) array.next();
    given.asJson ? printJson(path, scanned->images) : printText(path, scanned->images);
  }
  if (given.asJson) array.end();
  return status;
}

bool save(const std::string& path, const Scanned& scanned, std::size_t i, const std::string& stem,
          OutputFolder& folder) {
  const auto handle = decodeIconBlob(scanned.bytes.span(), scanned.images[i]);
  if (!handle) return refuse(path, "image " + std::to_string(i) + " cannot be decoded");
  return folder.write(stem + "_" + std::to_string(i) + ".ico", fileOfExtracted(surfacesOf(*handle)));
}

bool saveFile(const std::string& path, std::optional<int> index, const std::string& stem, OutputFolder& folder) {
  const auto scanned = scan(path);
  if (!scanned) return false;
  const std::size_t count = scanned->images.size();
  if (count == 0) return refuse(path, kNoneFound);
  const std::size_t first = index ? static_cast<std::size_t>(*index) : 0;
  if (first >= count) return refuse(path, "no image " + std::to_string(first));
  bool isDone = true;
  for (std::size_t i = first; i < (index ? first + 1 : count); ++i)
    isDone = save(path, *scanned, i, stem, folder) && isDone;
  return isDone;
}

int saveAll(Arguments rest) {
  std::string text;
  std::optional<int> index;
  int number = 0;
  if (!takeOption(rest, "--index", text) || (!text.empty() && !parseNumber(text, number)))
    return badUsage("scan: --index takes a number from 0");
  if (!text.empty()) index = number;
  FolderArguments given;
  if (const int status = takeFolderArguments("scan", rest, given); status != kDone) return status;
  OutputNames names;
  OutputFolder folder(given);
  int status = kDone;
  for (const std::string& path : given.files)
    if (!saveFile(path, index, names.nameFor(stemOf(path)), folder)) status = kRefused;
  return status;
}

}  // namespace

int runScan(const Arguments& arguments) {
  Arguments rest = arguments;
  std::string folder;
  if (takeOption(rest, "-d", folder) && !folder.empty()) return saveAll(arguments);
  ListArguments given;
  const int status = takeListArguments("scan", arguments, given);
  return status == kDone ? list(given) : status;
}

}  // namespace gp::cli

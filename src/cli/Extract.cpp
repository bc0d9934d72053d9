#include "cli/IconsInside.h"
#include "cli/Json.h"
#include "cli/OrderedJobs.h"
#include "cli/OutputFolder.h"
#include "cli/Subcommands.h"
#include "extraction/format/ExtractedIcon.h"
#include "extraction/format/IconHandle.h"

#include <mutex>

namespace gp::cli {
namespace {

constexpr const char* kTooManyRows = "its directories state more images than the file can have; the rest is left out";

struct Wish {
  int jobs = 1;
  bool asJson = false;
  std::optional<std::size_t> index;
  int size = kLargeIcon;
  bool asGroup = false;
};

// The icons that are asked for: all, or one. Complains about one that is not there.
std::pair<std::size_t, std::size_t> range(const Wish& wish, std::size_t count, const std::string& path,
                                          ItemOutput& output) {
  if (!wish.index) return {0, count};
  if (*wish.index < count) return {*wish.index, *wish.index + 1};
  output.complain(path, "no icon " + std::to_string(*wish.index));
  return {0, 0};
}

// Lists.

std::string joined(const std::vector<ImageRow>& rows) {
  std::string text;
  for (const ImageRow& row : rows) text += (text.empty() ? "" : " ") + shortText(row);
  return text;
}

void listAsText(const std::string& path, IconsInside& icons, bool& isCut, ItemOutput& output) {
  for (std::size_t i = 0; i < icons.count(); ++i)
    output.print(printable(path) + "\t" + std::to_string(i) + "\t" + icons.label(i) + "\t" +
                 joined(icons.statedRows(i, isCut)) + "\n");
}

void listAsJson(IconsInside& icons, bool& isCut, ItemOutput& output) {
  for (std::size_t i = 0; i < icons.count(); ++i) {
    output.print(std::string(i == 0 ? "\n" : ",\n") + "{\"index\":" + std::to_string(i) + "," + icons.jsonName(i) +
                 "\"images\":[");
    const char* separator = "";
    for (const ImageRow& row : icons.rows(i, isCut)) {
      output.print(separator + jsonOf(row));
      separator = ",";
    }
    output.print("]}");
  }
}

void printLink(const std::string& path, const ShellLink& link, ItemOutput& output) {
  output.print("{\"file\":" + jsonText(path) + ",\"kind\":\"lnk\",\"target\":" + jsonText(link.target) +
               ",\"iconFile\":" + jsonText(link.iconFile) + ",\"iconIndex\":" + std::to_string(link.iconIndex) +
               ",\"icons\":[]}");
}

void listFile(const std::string& path, bool asJson, ItemOutput& output) {
  const OpenedIcons opened = openIcons(path);
  if (!opened.isRead()) return output.complain(path, opened.defect);
  if (opened.link) return asJson ? printLink(path, *opened.link, output) : output.complain(path, kNoIconInFile);
  if (opened.icons->count() == 0) output.complain(path, kNoIconInFile);
  bool isCut = false;
  if (asJson) {
    output.print("{\"file\":" + jsonText(path) + ",\"kind\":\"" + opened.icons->kind() + "\",\"icons\":[");
    listAsJson(*opened.icons, isCut, output);
    output.print("]}");
  } else {
    listAsText(path, *opened.icons, isCut, output);
  }
  if (isCut) output.complain(path, kTooManyRows);
}

int runLists(const Arguments& files, const Wish& wish) {
  JsonArray array;
  const int status = runInOrder(files.size(), wish.jobs, wish.asJson ? &array : nullptr,
                                [&](std::size_t i, ItemOutput& output) { listFile(files[i], wish.asJson, output); });
  if (wish.asJson) array.end();
  return status;
}

// Files.

// The folder, for several threads.
class SharedFolder {
 public:
  explicit SharedFolder(const FolderArguments& given) : folder_(given) {}

  void write(const std::string& name, std::span<const std::uint8_t> bytes, ItemOutput& output) {
    const std::lock_guard lock(mutex_);
    if (const char* const reason = folder_.tryWrite(name, bytes)) output.complain(folder_.pathOf(name), reason);
  }

 private:
  std::mutex mutex_;
  OutputFolder folder_;
};

void writePicture(IconsInside& icons, std::size_t i, const Wish& wish, const std::string& path, const std::string& name,
                  SharedFolder& folder, ItemOutput& output) {
  const auto picture = icons.picture(i, wish.size);
  if (!picture) return output.complain(path, "icon " + std::to_string(i) + " cannot be drawn");
  folder.write(name + ".ico", fileOfExtracted(*picture), output);
}

void writeWhole(IconsInside& icons, std::size_t i, const std::string& path, const std::string& name,
                SharedFolder& folder, ItemOutput& output) {
  const auto whole = icons.whole(i);
  if (!whole) return output.complain(path, "icon " + std::to_string(i) + " has no image that can be written");
  for (const std::string& reason : whole->missing) output.complain(path, "icon " + std::to_string(i) + ": " + reason);
  folder.write(name + whole->ending, whole->file, output);
}

void extractFile(const std::string& path, const std::string& stem, const Wish& wish, SharedFolder& folder,
                 ItemOutput& output) {
  const OpenedIcons opened = openIcons(path);
  if (!opened.isRead()) return output.complain(path, opened.defect);
  if (!opened.icons || opened.icons->count() == 0) return output.complain(path, kNoIconInFile);
  const auto [begin, end] = range(wish, opened.icons->count(), path, output);
  for (std::size_t i = begin; i < end; ++i) {
    const std::string name = stem + "_" + std::to_string(i);
    if (wish.asGroup)
      writeWhole(*opened.icons, i, path, name, folder, output);
    else
      writePicture(*opened.icons, i, wish, path, name, folder, output);
  }
}

int runExtracts(const FolderArguments& given, const Wish& wish) {
  OutputNames names;
  std::vector<std::string> stems;
  for (const std::string& path : given.files) stems.push_back(names.nameFor(stemOf(path)));
  SharedFolder folder(given);
  return runInOrder(given.files.size(), wish.jobs, nullptr, [&](std::size_t i, ItemOutput& output) {
    extractFile(given.files[i], stems[i], wish, folder, output);
  });
}

// Arguments.

bool takeIndex(Arguments& arguments, std::optional<std::size_t>& index) {
  std::string text;
  if (!takeOption(arguments, "--index", text)) return false;
  int number = 0;
  if (text.empty()) return true;
  if (!parseNumber(text, number)) return false;
  index = static_cast<std::size_t>(number);
  return true;
}

bool takeSize(Arguments& arguments, std::string& size) {
  return takeOption(arguments, "--size", size) && (size.empty() || size == "16" || size == "32");
}

int takeListing(Arguments rest, Wish& wish) {
  if (takeFlag(rest, "--list") && wish.asJson) return badUsage("extract: --list and --json do not go together");
  const Split split = splitOptions(rest);
  if (!split.options.empty()) return badUsage("extract: unknown option " + split.options.front());
  if (split.files.empty()) return badUsage("extract: no file given");
  return runLists(split.files, wish);
}

}  // namespace

int runExtract(const Arguments& arguments) {
  Arguments rest = arguments;
  Wish wish;
  std::string size, folder;
  if (!takeJobs(rest, wish.jobs)) return badUsage("extract: --jobs takes a number above 0");
  wish.asJson = takeFlag(rest, "--json");
  Arguments probe = rest;
  const bool writes = takeOption(probe, "-d", folder) && !folder.empty();
  if (!writes) return takeListing(rest, wish);
  if (wish.asJson) return badUsage("extract: --json does not go with -d");
  if (!takeIndex(rest, wish.index)) return badUsage("extract: --index takes a number from 0");
  if (!takeSize(rest, size)) return badUsage("extract: --size takes 16 or 32");
  wish.asGroup = takeFlag(rest, "--group");
  if (wish.asGroup && !size.empty()) return badUsage("extract: --size does not go with --group");
  if (size == "16") wish.size = kSmallIcon;
  FolderArguments given;
  const int status = takeFolderArguments("extract", rest, given);
  return status == kDone ? runExtracts(given, wish) : status;
}

}  // namespace gp::cli

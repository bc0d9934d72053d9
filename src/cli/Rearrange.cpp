// The subcommands that change the directory of a file with several icons and keep the images.
#include "cli/Subcommands.h"
#include "cli/Updating.h"
#include "files/format/IconDecoder.h"
#include "files/format/IconSalvage.h"
#include "files/format/IconUpdates.h"
#include "files/saving/MultiIconTexts.h"

#include <algorithm>
#include <string_view>

namespace gp::cli {
namespace {

constexpr const char* kNotEachOnce = "the sequence does not hold every position ref of the file once";
constexpr const char* kNotWritten = "cannot be written";
constexpr const char* kReadOnly = "File is read-only";

int refuse(const std::string& file, const std::string& reason) {
  complain(file, reason);
  return kRefused;
}

// Adds the reason to the error message if the file is read-only.
int writeOrRefuse(IconArrays& arrays, const std::string& path, const std::string& output, const std::string& text) {
  const auto failure = [&] { return HasFileAttribute(targetOf(path, output)) ? text + "\n" + kReadOnly : text; };
  return writeUpdate(arrays, path, output, failure) ? kDone : kRefused;
}

int removeFrom(const std::string& path, int index, const std::string& output) {
  const auto lock = lockForUpdate(path);
  IconArrays arrays;
  if (!lock || !readForUpdate(path, arrays)) return kRefused;
  if (arrays.count() == 1) return refuse(path, kRemoveLastIcon);
  if (index >= arrays.count()) return refuse(path, describe(IconDefect::NoSuchEntry));
  takeWholeImages(arrays);
  removeImage(arrays, index);
  return writeOrRefuse(arrays, path, output, kRemoveNotWritten);
}

// Parses "3,1,2" as the indices 2, 0, 1. False for anything but numbers.
bool parseOrder(std::string_view text, std::vector<int>& order) {
  for (;;) {
    const std::size_t comma = text.find(',');
    int ref = 0;
    if (!parseNumber(text.substr(0, comma), ref)) return false;
    order.push_back(ref - 1);
    if (comma == std::string_view::npos) return true;
    text.remove_prefix(comma + 1);
  }
}

bool holdsEachOnce(std::vector<int> order, int count) {
  if (order.size() != static_cast<std::size_t>(count)) return false;
  std::ranges::sort(order);
  for (int i = 0; i < count; ++i)
    if (order[static_cast<std::size_t>(i)] != i) return false;
  return true;
}

int reorderIn(const std::string& path, const std::vector<int>& order, const std::string& output) {
  const auto lock = lockForUpdate(path);
  IconArrays arrays;
  if (!lock || !readForUpdate(path, arrays)) return kRefused;
  if (arrays.count() == 1) return refuse(path, kRepositionSingleIcon);
  if (!holdsEachOnce(order, arrays.count())) return refuse(path, kNotEachOnce);
  if (std::ranges::is_sorted(order)) return refuse(path, kRepositionNoChange);
  takeWholeImages(arrays);
  reorderImages(arrays, order);
  return writeOrRefuse(arrays, path, output, kRepositionNotWritten + targetOf(path, output));
}

int salvageTo(const std::string& path, const std::string& output) {
  IconArrays arrays;
  if (!readForUpdate(path, arrays)) return kRefused;
  if (!canBeSalvaged(arrays)) return refuse(path, kTooLargeToSalvage);
  salvageEntries(arrays);
  return writeOrRefuse(arrays, path, output, kNotWritten);
}

}  // namespace

int runRemove(const Arguments& arguments) {
  const auto given = parseUpdate("remove", arguments, {});
  int index = 0;
  if (!given) return kBadUsage;
  if (given->files.size() != 2) return badUsage("remove: FILE INDEX is needed");
  if (!parseNumber(given->files[1], index)) return badUsage("remove: the index is no number");
  return removeFrom(given->files[0], index, given->output);
}

int runReorder(const Arguments& arguments) {
  const auto given = parseUpdate("reorder", arguments, {});
  std::vector<int> order;
  if (!given) return kBadUsage;
  if (given->files.size() != 2) return badUsage("reorder: FILE 3,1,2 is needed");
  if (!parseOrder(given->files[1], order)) return badUsage("reorder: the sequence is not of numbers and commas");
  return reorderIn(given->files[0], order, given->output);
}

int runSalvage(const Arguments& arguments) {
  const auto given = parseUpdate("salvage", arguments, {});
  if (!given) return kBadUsage;
  if (given->files.size() != 1 || given->output.empty()) return badUsage("salvage: FILE -o OUT is needed");
  return salvageTo(given->files[0], given->output);
}

}  // namespace gp::cli

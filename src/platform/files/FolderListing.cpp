#include "platform/files/FolderListing.h"

#include "platform/text/Paths.h"
#include "platform/text/Utf8.h"

#include <algorithm>
#include <filesystem>
#include <set>
#include <string_view>
#include <system_error>
#include <utility>

namespace gp {
namespace {

namespace fs = std::filesystem;

constexpr char kPatternSeparator = ';';
constexpr int kNamesBetweenAsking = 64;

// The name in lower case, and as it is. They are sorted as they come, because the end of a long sort could not be asked
// for.
using SortedNames = std::set<std::pair<std::string, std::string>>;

std::vector<std::string> patternsIn(const std::string& list) {
  std::vector<std::string> patterns;
  for (std::size_t at = 0; at <= list.size();) {
    const std::size_t end = std::min(list.find(kPatternSeparator, at), list.size());
    if (std::string pattern = trim(std::string_view(list).substr(at, end - at)); !pattern.empty())
      patterns.push_back(std::move(pattern));
    at = end + 1;
  }
  return patterns;
}

std::vector<std::string> namesOf(SortedNames& sorted) {
  std::vector<std::string> names;
  names.reserve(sorted.size());
  while (!sorted.empty()) names.push_back(std::move(sorted.extract(sorted.begin()).value().second));
  return names;
}

template <class Wanted>
std::vector<std::string> list(const std::string& folder, const GoesOn& goesOn, Wanted wanted) {
  SortedNames sorted;
  std::error_code error;
  int untilAsking = kNamesBetweenAsking;
  for (fs::directory_iterator it(folder, error), end; !error && it != end; it.increment(error)) {
    if (--untilAsking == 0 && !goesOn()) return {};
    if (untilAsking == 0) untilAsking = kNamesBetweenAsking;
    const std::string& path = it->path().native();
    std::string name = path.substr(path.find_last_of('/') + 1);
    if (!wanted(*it, name)) continue;
    std::string key = lowerCase(name);
    sorted.emplace(std::move(key), std::move(name));
  }
  return namesOf(sorted);
}

}  // namespace

std::vector<std::string> listFiles(const std::string& folder, const std::string& patterns, const GoesOn& goesOn) {
  const std::vector<std::string> wanted = patternsIn(patterns);
  return list(folder, goesOn, [&wanted](const fs::directory_entry& entry, const std::string& name) {
    std::error_code error;
    return std::ranges::any_of(wanted, [&](const std::string& pattern) { return matchesPattern(name, pattern); }) &&
           entry.is_regular_file(error);
  });
}

std::vector<std::string> listSubfolders(const std::string& folder, const GoesOn& goesOn) {
  return list(folder, goesOn, [](const fs::directory_entry& entry, const std::string&) {
    std::error_code error;
    return entry.symlink_status(error).type() == fs::file_type::directory;
  });
}

}  // namespace gp

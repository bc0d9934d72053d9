#include "platform/files/Files.h"
#include "platform/text/Paths.h"
#include "platform/text/Utf8.h"

#include <algorithm>
#include <filesystem>
#include <system_error>
#include <utility>

namespace gp {
namespace {

namespace fs = std::filesystem;

bool isFile(const fs::directory_entry& entry) {
  std::error_code error;
  return entry.is_regular_file(error);
}

bool isFolder(const fs::directory_entry& entry) {
  std::error_code error;
  return entry.is_directory(error);
}

// Sorts by name, case ignored. Names that differ only in case are ordered by bytes, so the order is always the same.
void sortNames(std::vector<std::string>& names) {
  std::sort(names.begin(), names.end(), [](const std::string& a, const std::string& b) {
    return std::pair(lowerCase(a), std::string_view(a)) < std::pair(lowerCase(b), std::string_view(b));
  });
}

template <class Wanted>
std::vector<std::string> namesInFolder(const std::string& folder, Wanted wanted) {
  std::vector<std::string> names;
  std::error_code error;
  for (fs::directory_iterator it(folder, error), end; !error && it != end; it.increment(error))
    if (wanted(*it)) names.push_back(it->path().filename().native());
  sortNames(names);
  return names;
}

}  // namespace

std::vector<std::string> filesInFolder(const std::string& folder, const std::string& pattern) {
  return namesInFolder(folder, [&pattern](const fs::directory_entry& entry) {
    return matchesPattern(entry.path().filename().native(), pattern) && isFile(entry);
  });
}

std::vector<std::string> foldersInFolder(const std::string& folder) { return namesInFolder(folder, isFolder); }

}  // namespace gp

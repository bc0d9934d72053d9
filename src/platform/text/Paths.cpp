#include "platform/text/Paths.h"

#include "platform/text/Utf8.h"

#include <algorithm>

namespace gp {
namespace {

constexpr int kMaxPathCharacters = 255;
constexpr std::size_t kDriveSize = 2;
constexpr int kSeparatorsToShorten = 4;
constexpr std::string_view kShortened = ".....";

struct Parts {
  std::string_view drive, folder, bareName, extension;
  bool hasFolder = false;
};

bool isParsable(std::string_view path) {
  return !path.empty() && path.front() != '$' && path.front() != ' ' && countCharacters(path) <= kMaxPathCharacters;
}

std::size_t lastSeparator(std::string_view path) {
  const auto found = std::find_if(path.rbegin(), path.rend(), isSeparator);
  return static_cast<std::size_t>(path.rend() - found);  // 0 without a separator, otherwise the position after it
}

// A dot at the end of the name does not start an extension.
std::size_t extensionStart(std::string_view name) {
  if (name.size() < 2) return name.size();
  return std::min(name.rfind('.', name.size() - 2), name.size());
}

Parts parse(std::string_view path) {
  Parts parts;
  if (path.size() >= kDriveSize && path[1] == ':') parts.drive = path.substr(0, kDriveSize);
  path.remove_prefix(parts.drive.size());
  const std::size_t nameStart = lastSeparator(path);
  parts.folder = path.substr(0, nameStart);
  parts.hasFolder = nameStart > 0;
  const std::string_view name = path.substr(nameStart);
  const std::size_t split = extensionStart(name);
  parts.bareName = name.substr(0, split);
  parts.extension = name.substr(split);
  return parts;
}

std::string joined(std::initializer_list<std::string_view> texts) {
  std::string result;
  for (const std::string_view text : texts) result += text;
  return result;
}

bool equalFolded(std::string_view a, std::string_view b) { return a == b || equalAnyCase(a, b); }

}  // namespace

std::string ParseFileName(std::string_view path, PathPart part) {
  if (!isParsable(path)) return {};
  const Parts parts = parse(path);
  switch (part) {
    case PathPart::DriveAndFolder:
    case PathPart::Folder:
      return joined({parts.drive, parts.folder});
    case PathPart::WithoutExtension:
      return joined({parts.drive, parts.folder, parts.bareName});
    case PathPart::Drive:
      return std::string(parts.drive);
    case PathPart::NameWithExtension:
      // Intended: a bare file name has no "name with extension"; callers rely on it.
      return parts.hasFolder ? joined({parts.bareName, parts.extension}) : std::string();
    case PathPart::BareName:
      return std::string(parts.bareName);
    case PathPart::Extension:
      return std::string(parts.extension);
  }
  return {};
}

std::string ShortenPath(std::string_view path) {
  if (std::count_if(path.begin(), path.end(), isSeparator) < kSeparatorsToShorten) return std::string(path);
  const auto first = std::find_if(path.begin(), path.end(), isSeparator);
  const auto second = std::find_if(first + 1, path.end(), isSeparator);
  const std::string_view start = path.substr(0, static_cast<std::size_t>(second - path.begin()));
  const std::string_view separator(&*second, 1);
  return joined({start, separator, kShortened, separator, path.substr(lastSeparator(path))});
}

// Backtracks to the last "*" only, which is sufficient and limits the time to name length times pattern length.
bool matchesPattern(std::string_view name, std::string_view pattern) {
  if (pattern == "*.*") return true;
  std::size_t n = 0, p = 0;
  std::size_t retryName = 0, retryPattern = std::string_view::npos;
  while (n < name.size()) {
    const std::size_t size = characterSize(name.substr(n));
    if (p < pattern.size() && pattern[p] == '*') {
      retryPattern = ++p;
      retryName = n;
    } else if (p < pattern.size() && pattern[p] == '?') {
      ++p;
      n += size;
    } else if (p < pattern.size() && equalFolded(name.substr(n, size), pattern.substr(p, size))) {
      p += size;
      n += size;
    } else if (retryPattern != std::string_view::npos) {
      p = retryPattern;
      retryName += characterSize(name.substr(retryName));
      n = retryName;
    } else {
      return false;
    }
  }
  return pattern.find_first_not_of('*', p) == std::string_view::npos;
}

}  // namespace gp

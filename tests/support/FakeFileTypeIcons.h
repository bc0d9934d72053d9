// The desktop's icons for files as a test sets them.
#pragma once

#include "platform/ports/FileTypeIcons.h"

#include <cstdint>
#include <map>
#include <string>
#include <vector>

namespace gp::test {

class FakeFileTypeIcons : public FileTypeIcons {
 public:
  // The colour of the icon of a path or name; others have none.
  std::map<std::string, Color> colors;
  std::uint8_t alpha = 255;             // of all pixels
  int givenSize = 0;                    // instead of the size that is asked for; 0 for that one
  std::vector<std::string> askedFiles;  // in order
  std::vector<std::string> askedNames;

  std::optional<FileTypeIcon> iconOfFile(const std::string& path, int size) override {
    askedFiles.push_back(path);
    return icon(path, size);
  }
  std::optional<FileTypeIcon> namedIcon(const std::string& name, int size) override {
    askedNames.push_back(name);
    return icon(name, size);
  }

 private:
  std::optional<FileTypeIcon> icon(const std::string& key, int size) const {
    const auto found = colors.find(key);
    if (found == colors.end()) return std::nullopt;
    if (givenSize > 0) size = givenSize;
    return FileTypeIcon{
        Surface(size, size, found->second),
        std::vector<std::uint8_t>(static_cast<std::size_t>(size) * static_cast<std::size_t>(size), alpha)};
  }
};

}  // namespace gp::test

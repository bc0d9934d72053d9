// A list of the files opened last, kept in the settings file: one for icons, one for animated cursors. History owns the
// list as it was last read; the menus take their entries from it.
#pragma once

#include <string>
#include <vector>

namespace gp {

inline constexpr const char* kFileHistorySection = "File History";
inline constexpr int kFileHistoryLimit = 6;
inline constexpr const char* kAniHistorySection = "ANI File History";
inline constexpr int kAniHistoryLimit = 3;

class History {
 public:
  // `file` is the settings file; it need not exist.
  History(std::string section, int limit, std::string file)
      : section_(std::move(section)), file_(std::move(file)), limit_(limit) {}

  // Reads the list. Without a file it stays as it is.
  void load();
  // Puts a path on top, unless it stands there already, and lets the oldest fall off. Duplicates further down are not
  // looked for: a path opened again stands twice. A path that the settings file cannot hold is not remembered.
  void add(const std::string& path);

  int limit() const { return limit_; }
  int count() const { return static_cast<int>(paths_.size()); }
  // The path and the caption of the menu entry with that index, from 1; empty where there is no entry. Index 0 is the
  // separator.
  std::string path(int index) const;
  std::string caption(int index) const;
  // Whether the menu entry with that index shows; the separator does with any entry.
  bool isVisible(int index) const;

 private:
  std::string keyOf(int number) const;
  void writeOnTop(const std::string& path);
  void shiftDown(const std::string& path);

  std::string section_;
  std::string file_;
  int limit_;
  std::vector<std::string> paths_;
};

}  // namespace gp

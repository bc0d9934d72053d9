// A list of recently opened files, stored in the settings file: one for icons, one for animated cursors. History owns
// the list as last read; the menus show it.
#pragma once

#include <string>
#include <vector>

namespace gp {

class ProfileFile;

inline constexpr const char* kFileHistorySection = "File History";
inline constexpr int kFileHistoryLimit = 6;
inline constexpr const char* kAniHistorySection = "ANI File History";
inline constexpr int kAniHistoryLimit = 3;

class History {
 public:
  // `file` is the settings file; it need not exist.
  History(std::string section, int limit, std::string file)
      : section_(std::move(section)), file_(std::move(file)), limit_(limit) {}

  // Reads the list. Without a file the list does not change.
  void load();
  // Adds a path at the top, unless it is the top already, and drops the oldest one. Intended: duplicates further down
  // remain, so a path can be listed twice. A path that the settings file cannot store is ignored.
  void add(const std::string& path);

  int limit() const { return limit_; }
  int count() const { return static_cast<int>(paths_.size()); }
  // Return the path and the caption of the menu entry with an index from 1; empty without an entry. 0 is the separator.
  std::string path(int index) const;
  std::string caption(int index) const;
  // Returns true when the menu entry with that index is shown; the separator is shown with any entry.
  bool isVisible(int index) const;

 private:
  std::string keyOf(int number) const;
  void take(const ProfileFile& profile);
  void writeOnTop(ProfileFile& profile, const std::string& path) const;
  void shiftDown(ProfileFile& profile, const std::string& path) const;

  std::string section_;
  std::string file_;
  int limit_;
  std::vector<std::string> paths_;
};

}  // namespace gp

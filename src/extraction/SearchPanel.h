// fraPanel(20): searches a folder tree for programs and saves their icons. Runs on the program's thread and processes
// events between files.
#pragma once

#include "extraction/FolderSearch.h"
#include "files/FilesContext.h"

#include <array>
#include <chrono>
#include <string>
#include <vector>

namespace gp {

class SearchPanel {
 public:
  static constexpr int kNumber = 20;  // of fraPanel
  static constexpr int kFolders = 2;  // txbSearchExeDir: to search in, to save to
  static constexpr int kTicks = 3;    // ckbExtractEXE: with subfolders, small icons, serial names
  static constexpr int kFirstMaximum = 1000;

  explicit SearchPanel(const FilesContext& context) : context_(context) {}

  // mnuExtractSub(7).
  void open();
  void setFolder(int i, const std::string& path);
  // cmdInvokeSearchPath: asks for a folder. Nothing changes the choices while a search runs.
  void cmdInvokeSearchPath(int i);
  void setTick(int i, bool isOn);
  // txbMaxIcons: a text that is no number above 0 puts the last valid one back.
  void setMaximum(const std::string& text);
  // Proceed. Returns when the search has ended.
  void doSearchExtract();
  void cmdStopBrowse();
  // The panel closes or the program ends: stops the search.
  void finish();

  const std::string& folder(int i) const { return folders_.at(static_cast<std::size_t>(i)); }
  bool tick(int i) const { return ticks_.at(static_cast<std::size_t>(i)); }
  int maximum() const { return maximum_; }
  // Until Proceed has returned, also after Stop.
  bool isRunning() const { return isWalking_; }
  int mSearchCount() const { return mSearchCount_; }
  const std::string& progressText() const { return progressText_; }  // lblSearchExeDir(2)
  const std::string& currentFile() const { return currentFile_; }    // lblForExtendedFrame
  // lsbFoundFiles: a line for each file with icons, "/usr/share/setup.exe  3".
  const std::vector<std::string>& foundFiles() const { return foundFiles_; }

 private:
  using Clock = std::chrono::steady_clock;

  bool isReady();
  bool mayOverwrite(const std::string& target);
  void search();
  void walk();
  void visit(const std::string& path, const SearchChoices& choices);
  SearchChoices choices() const;
  bool letsGoOn();
  void notify();

  FilesContext context_;
  std::array<std::string, kFolders> folders_;
  std::array<bool, kTicks> ticks_{};
  int maximum_ = kFirstMaximum;
  bool isWalking_ = false;
  bool mSearchStop_ = false;
  bool mSearchRunning_ = false;
  int mSearchCount_ = 0;
  std::string progressText_;
  std::string currentFile_;
  std::vector<std::string> foundFiles_;
  Clock::time_point lastEvents_;
  Clock::time_point lastShown_;
};

}  // namespace gp

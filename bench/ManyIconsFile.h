// A file on disk with as many icons as the browser can put into another sequence, and what the browser works with
// where there is no program around it.
#pragma once

#include "DrawingBench.h"
#include "files/FilesContext.h"
#include "files/IcoBuilder.h"

#include <string>

namespace gp::bench {

inline constexpr int kManyIcons = 99;

// What the file's icons are.
enum class Icons {
  Deep,   // 48x48, 32 bits
  Mixed,  // every icon size and three others, at every depth
};

inline test::Bytes manyIcons(Icons icons) {
  constexpr int kSides[] = {16, 24, 32, 48, 20, 64, 128};
  constexpr int kDepths[] = {1, 4, 8, 24, 32};
  test::IcoFile file;
  for (std::size_t i = 0; i < kManyIcons; ++i) {
    const bool isMixed = icons == Icons::Mixed;
    const int side = isMixed ? kSides[i % std::size(kSides)] : kIconSize;
    file.entries.push_back(test::entryOf(test::anyPicture(side, isMixed ? kDepths[i % std::size(kDepths)] : 32)));
  }
  return build(file);
}

// Nobody is asked or told anything while a file is opened.
class SilentBoxes : public MessageBoxes {
 public:
  BoxAnswer show(const std::string&, BoxButtons, BoxIcon, BoxAnswer suggested) override { return suggested; }
};

class NoDialogs : public FileDialogs {
 public:
  bool openFile(const FileDialogRequest&, std::string&, int&) override { return false; }
  bool saveFile(const FileDialogRequest&, std::string&, int&) override { return false; }
  bool chooseColor(Color&) override { return false; }
  bool choosePrinter(PrinterRequest&) override { return false; }
  std::string chooseFolder(const std::string&, const std::string&) override { return {}; }
};

class ManyIconsFile {
 public:
  explicit ManyIconsFile(Icons icons) : path_(folder_.write("many.ico", manyIcons(icons))) {}

  // The context of a browser of the file.
  FilesContext& context() {
    state_.multiIcon.gMultiIconFile = path_;
    state_.multiIcon.gMultiIconResult = "0";
    return context_;
  }

 private:
  test::IconFolder folder_;
  std::string path_;
  EditState state_;
  test::FakeEditor editor_;
  NoDisplay display_;
  NoPump pump_;
  SilentBoxes boxes_;
  NoDialogs dialogs_;
  clsGPDialog dialog_{dialogs_};
  FilesContext context_{state_, editor_, display_, boxes_, pump_, dialog_};
};

}  // namespace gp::bench

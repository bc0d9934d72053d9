// One run of "Save As Multi-Icon File  (Add &To) ....": the Current Icon goes as one more entry into a file that the
// user picks, at a place that he picks in the browser. A file with an icon in one of the containers is refused.
#pragma once

#include "files/FilesContext.h"
#include "files/format/IconUpdates.h"

#include <optional>
#include <string>

namespace gp {

class MultiIconAdd {
 public:
  // The current container must hold an icon that is its own document.
  MultiIconAdd(FilesContext& context, const std::string& scratchFile);
  void run();

 private:
  bool isInNoContainer(const std::string& path);
  bool takesIcon(const std::string& path);
  // The path of the file that got the icon, empty when none did.
  std::string addToMultiIconFile(const std::string& path);
  std::string showBrowser(const std::string& path);
  void showCurrentIcon();
  std::string askForOtherFile(const std::string& path);
  bool copyFile(const std::string& from, const std::string& to);
  std::optional<NewImage> makeImage(const std::string& target);
  // `index` is that of the new entry.
  bool insertEntry(int index, const std::string& target);
  bool readTarget(int index, const std::string& target, IconArrays& arrays);
  bool write(IconArrays& arrays, const std::string& target);
  bool refuse(const std::string& text);
  bool fail(const std::string& text);

  FilesContext& context_;
  EditState& state_;
  const std::string& scratchFile_;
  IconTraits traits_;
};

}  // namespace gp

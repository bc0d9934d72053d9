// One run of "Save As Multi-Icon File  (Add &To) ....": adds the Current Icon as one more entry to a file that the user
// chooses, at a position that the user chooses in the browser. A file is refused if a container holds an icon of it.
#pragma once

#include "files/FilesContext.h"
#include "files/format/IconUpdates.h"

#include <optional>
#include <string>

namespace gp {

class MultiIconAdd {
 public:
  // The icon in the current container must not come from a file with several icons.
  MultiIconAdd(FilesContext& context, const std::string& scratchFile);
  void run();

 private:
  bool isInNoContainer(const std::string& path);
  bool takesIcon(const std::string& path);
  // Returns the path of the file that the icon was added to; empty if there is none.
  std::string addToMultiIconFile(const std::string& path);
  std::string showBrowser(const std::string& path);
  void showCurrentIcon();
  std::string askForOtherFile(const std::string& path);
  bool copyFile(const std::string& from, const std::string& to);
  std::optional<NewImage> makeImage(const std::string& target);
  // `index` is the index of the new entry.
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

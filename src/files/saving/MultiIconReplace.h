// One run of "Save As &Multi-Icon File ....": the Current Icon takes the place of the entry that it came from, and all
// other entries stay. It writes once, at the end, to the name that the user chose.
#pragma once

#include "files/FilesContext.h"
#include "files/format/IconUpdates.h"

#include <optional>
#include <string>

namespace gp {

class MultiIconReplace {
 public:
  // The current container must hold an icon from a file of several icons.
  MultiIconReplace(FilesContext& context, const std::string& scratchFile);
  void run();

 private:
  bool isConfirmed();
  bool readOriginal();
  bool isAllowed();
  std::string askForName();
  // False, after telling it, when the icon of another container came from a file that is not the original one.
  bool isInNoOtherContainer(const std::string& path);
  std::optional<NewImage> makeImage();
  bool readOriginalAgain();
  bool write(const std::string& path);
  void describeSaved(const std::string& path);
  bool fail(const std::string& text);

  FilesContext& context_;
  EditState& state_;
  const std::string& scratchFile_;
  const std::string original_;
  const int index_;
  IconTraits traits_;
  IconArrays arrays_;
};

}  // namespace gp

// One run of "Save As &Multi-Icon File ....": the Current Icon replaces the entry that it was loaded from; all other
// entries are kept. Writes once, at the end, to the file that the user chose.
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
  // False, after a message, when another container holds an icon of that file and it is not the original file.
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

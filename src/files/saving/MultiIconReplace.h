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
  // Reads the file and finds the entry that the icon came from. False when the file cannot be read.
  bool readOriginal();
  int formerPlace() const;
  int placeOrFormer() const { return place_.value_or(formerPlace()); }
  bool isAllowed();
  std::string askForName();
  // False, after a message, when another container holds an icon of that file and it is not the original file.
  bool isInNoOtherContainer(const std::string& path);
  std::optional<NewImage> makeImage();
  void replaceBy(NewImage image, const std::string& path);
  void describeSaved(const std::string& path);
  void fail(const std::string& text);

  FilesContext& context_;
  EditState& state_;
  const std::string& scratchFile_;
  const std::string original_;
  IconTraits traits_;
  IconArrays arrays_;
  std::optional<int> place_;  // of the entry to replace, empty when it is not there any more
};

}  // namespace gp

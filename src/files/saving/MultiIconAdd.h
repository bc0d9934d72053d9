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
  bool addToMultiIconFile(const std::string& path);
  std::string showBrowser(const std::string& path);
  void showCurrentIcon();
  std::string askForOtherFile(const std::string& path);
  // `kept` is a file that may be the scratch file by chance, and must not be lost then.
  std::optional<NewImage> makeImage(const std::string& kept);
  // Writes the entries of `path` and the new one, which gets the index, to `target`.
  bool insertEntry(const std::string& path, int index, const std::string& target);
  bool readAgain(const std::string& path, int index, IconArrays& arrays);
  bool refuse(const std::string& text);
  bool fail(const std::string& text);

  FilesContext& context_;
  EditState& state_;
  const std::string& scratchFile_;
  IconTraits traits_;
};

}  // namespace gp

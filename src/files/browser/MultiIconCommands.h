// The main form's side of files with several icons: showing the browser and taking its answer into a container, and the
// two saves into such a file. Failures are told; a file is written only after the user agreed.
#pragma once

#include "files/FilesContext.h"

#include <string>

namespace gp {

class MultiIconCommands {
 public:
  // `scratchFile` is the path of gptmp.ico, which exists only between two steps of one command.
  MultiIconCommands(const FilesContext& context, std::string scratchFile);

  // Shows the browser until the user has done loading. With `intoEditingArea` the chosen icon becomes the Current Icon,
  // otherwise it goes to its container's copy only. `result` is the answer of the last load, empty if there was none.
  void MultiIconFileSubRoutine(const std::string& filePath, bool intoEditingArea, std::string& result);

  // The commands mnuFileSub(15), for an icon from such a file, and (16), for one that is its own document.
  void doMnuFileSaveMultiIconReplace();
  void doMnuFileSaveMultiIconAddTo();

 private:
  FilesContext context_;
  std::string scratchFile_;
};

}  // namespace gp

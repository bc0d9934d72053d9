// The main form's commands on files with several icons: showing the browser and loading its answer into a container,
// and the two saves into such a file. Failures are reported; a file is written only with the user's consent.
#pragma once

#include "files/FilesContext.h"

#include <string>

namespace gp {

class MultiIconCommands {
 public:
  // `scratchFile` is the path of gptmp.ico, which exists only between two steps of one command.
  MultiIconCommands(const FilesContext& context, std::string scratchFile);

  // Shows the browser until the user has finished loading. With `intoEditingArea` the chosen icon becomes the Current
  // Icon; otherwise it is only stored in its container. `result` is the answer of the last load, empty if there was
  // none.
  void MultiIconFileSubRoutine(const std::string& filePath, bool intoEditingArea, std::string& result);

  // The same for a file that the user dropped on a container, which the browser proposes; the icon that is there is
  // replaced only with the user's consent. Returns the answer of the last load.
  std::string showIconsFor(const std::string& filePath, int container);

  // The commands mnuFileSub(15), for an icon from such a file, and (16), for any other icon.
  void doMnuFileSaveMultiIconReplace();
  void doMnuFileSaveMultiIconAddTo();

 private:
  FilesContext context_;
  std::string scratchFile_;
};

}  // namespace gp

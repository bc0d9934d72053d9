// The commands that open icon files. They work on the current container and tell their own failures; what stands in the
// container before an opening begins is lost.
#pragma once

#include "files/FilesContext.h"
#include "files/opening/IconLoading.h"

#include <optional>
#include <string>

namespace gp {

class MultiIconCommands;

class IconFiles {
 public:
  // `multiIcon` must outlive this.
  IconFiles(const FilesContext& context, MultiIconCommands& multiIcon);

  // The command "&Open Icon File  (ico) ....": offers to save, asks for a file and opens it.
  void doMnuFileOpenIcon();
  // Opens a file and tells the user what he should know of it. With `useBrowser` he chooses among several icons
  // himself.
  void doOpenIconFile(const std::string& path, bool useBrowser, bool& ok);
  // The same without any box, question, history entry or reminder.
  void doOpenIconFileQuietly(const std::string& path, bool& ok);

  // Decodes one entry, at `size` or at the entry's own size. With checkSize only icon sizes pass.
  static DecodedIcon ReadIconFileToImage(const std::string& path, int index, bool checkSize,
                                         const std::optional<ReadSize>& size = std::nullopt);

 private:
  FilesContext context_;
  MultiIconCommands& multiIcon_;
};

}  // namespace gp

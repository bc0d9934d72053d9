// The commands that open icon files. They work on the current container and tell their own failures; what stands in the
// container before an opening begins is lost.
#pragma once

#include "files/FilesContext.h"
#include "files/MultiIconCommands.h"

#include <string>

namespace gp {

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

  // Decodes one entry into two Surfaces, and into gAlphaValues for true colour. Width and height are those of the
  // Surface, or the entry's. With checkSize only squares of 16, 24, 32 and 48 pass. `reserved` has no meaning.
  void ReadIconFileToImage(const std::string& path, int index, Surface& imageSurface, Surface& maskSurface,
                           bool sizeFromSurface, bool checkSize, bool reserved, bool& ok);

 private:
  FilesContext context_;
  MultiIconCommands& multiIcon_;
};

}  // namespace gp

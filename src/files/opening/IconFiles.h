// The commands that open icon files. They replace the content of the current container and report failures to the user.
// Only doMnuFileOpenIcon asks about unsaved work.
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
  // Opens a file and shows reminders about it. With `useBrowser` the user chooses among several icons.
  void doOpenIconFile(const std::string& path, bool useBrowser, bool& ok);
  // The same without message boxes, history entry and reminders.
  void doOpenIconFileQuietly(const std::string& path, bool& ok);
  // Stores the icon in the current container only; the Editing Area does not show it yet. The user chooses among
  // several icons. Without reminders.
  void loadIconFileToContainer(const std::string& path, bool& ok);
  // For a file dropped on a container that could not be opened: if it holds icons all the same, asks whether to show
  // them, and then lets the user choose one. The container is proposed as its place.
  void offerIconsOfFile(const std::string& path, int container);

  // Decodes one entry, at `size` or at the entry's own size. With checkSize only icon sizes pass.
  static DecodedIcon ReadIconFileToImage(const std::string& path, int index, bool checkSize,
                                         const std::optional<ReadSize>& size = std::nullopt);

 private:
  FilesContext context_;
  MultiIconCommands& multiIcon_;
};

}  // namespace gp

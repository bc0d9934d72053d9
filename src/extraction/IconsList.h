// The Icons List: the icons of one source, shown as a grid on a side panel. A click puts an icon into the current
// container.
#pragma once

#include "extraction/ListGrid.h"
#include "files/FilesContext.h"
#include "platform/gdi/Surface.h"

#include <memory>
#include <string>
#include <vector>

namespace gp {

class FileTypeIcons;
class Files;
class IconSource;

// mListSource.
enum class ListSource {
  None = 0,
  Folder = 1,
  AniFrames = 2,
  LargeIcons = 3,
  SmallIcons = 4,
  IclScan = 5,
  FileType = 6,
  Desktop = 7,
};

enum class ListButton { Left, Right };
enum class ListMove { Left, Right, Up, Down, PageUp, PageDown, Home, End };
enum class SavedFrames { Icons = 0, Bitmaps = 1 };

// What a cell of the panel shows.
struct ListCell {
  std::string label;
  bool isMultiIcon = false;  // a red "**" follows the label
  bool isDrawn = false;      // not yet, or the drawing was stopped
  bool valid = true;         // otherwise a diagonal line takes the place of the picture
  Surface picture{0, 0};     // on the ground of the list
};

class IconsList {
 public:
  // All must outlive it.
  IconsList(const FilesContext& context, Files& files, FileTypeIcons& fileTypes);
  ~IconsList();
  IconsList(const IconsList&) = delete;
  IconsList& operator=(const IconsList&) = delete;

  // mnuFileSub(8), and mnuExtractSub(0) to (5): asks for folder or file and lists its icons.
  void displayIconsInFolder();
  void mnuExtractSub(int index);
  // Asks for another folder or file of the same source.
  void cmdInvokeFolderOrFileDialog();
  // The panel closes or another one opens: gives the list up. Stops a drawing that is under way.
  void finish();
  // Close: asks about an unsaved icon that came from the list. False when the list is to stay.
  bool mayClose();
  // For a command that wants the panel: "You are already in ... session."; empty without a list.
  std::string sessionMessage() const;

  // The view has another size.
  void setGrid(const ListGrid& grid);
  // cboPanelNum, cmdNextPanel, cmdPageRef(0) to (3), cmdNextPage, VsrIconsList.
  void choosePanel(int item);
  void cmdNextPanel();
  void cmdPageRef(int page);
  void cmdNextPage();
  void scrollTo(int value);
  // A mouse button was released on picIconsList, in its pixels.
  void click(int x, int y, ListButton button);
  // The keyboard moves the mark, over the panels too, and takes the marked icon as a click does.
  void moveMark(ListMove move);
  void takeMarked(ListButton button);
  // Esc: stops the drawing of the panel at the next cell. False when none is under way.
  bool stopDrawing();
  void cmdSaveAllExtractToFiles(SavedFrames kind);

  // What the view shows.
  ListSource mListSource() const;
  bool isDrawing() const;
  const ListGrid& grid() const { return grid_; }
  // The cells of the panel, at most kCellsOnPanel.
  const std::vector<ListCell>& cells() const { return cells_; }
  // The marked cell of the panel; -1 without one.
  int markedCell() const;
  int scrollValue() const;
  int panelCount() const;  // items of cboPanelNum; 0 without a list
  int panelItem() const;
  int pageCount() const;    // visible buttons of cmdPageRef
  int currentPage() const;  // -1 between pages
  bool isNextPanelEnabled() const;
  bool isNextPageVisible() const;
  bool offersSaveAll() const;  // cmdSaveAllExtractToFiles is visible
  bool isSaveAllEnabled() const;
  std::string kindLabel() const;    // lblExtract(0)
  std::string countLabel() const;   // lblExtract(1)
  std::string sourceLabel() const;  // lblForExtendedFrame
  // "Icon 37 of 210, setup.dll, 32 by 32"; empty without a mark.
  std::string spokenMark() const;

 private:
  FilesContext context_;
  Files& files_;
  FileTypeIcons& fileTypes_;
  ListGrid grid_;
  std::vector<ListCell> cells_;
  std::unique_ptr<IconSource> source_;
};

}  // namespace gp

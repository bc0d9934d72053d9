// The Icons List: the icons of one source, shown as a grid on a side panel. A click puts an icon into the current
// container.
#pragma once

#include "extraction/IconSource.h"
#include "extraction/ListCell.h"
#include "extraction/ListGrid.h"
#include "extraction/ListPages.h"
#include "extraction/ListPick.h"
#include "extraction/ListWork.h"
#include "extraction/SaveAllFrames.h"
#include "extraction/SourceTable.h"
#include "files/FilesContext.h"

#include <chrono>
#include <memory>
#include <string>
#include <vector>

namespace gp {

class FileTypeIcons;
class Files;

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
  // For a command that needs the side panel: "You are already in ... session."; empty without a list.
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
  // The time between two looks at events while it draws or saves; 0 looks after each cell.
  void setEventInterval(std::chrono::milliseconds interval) { work_.setEventInterval(interval); }

  // What the view shows.
  ListSource mListSource() const;
  // A panel is being drawn, or all frames are being saved: commands do nothing meanwhile.
  bool isDrawing() const { return work_.isRunning(); }
  const ListGrid& grid() const { return grid_; }
  // The cells of the panel, at most kCellsOnPanel.
  const std::vector<ListCell>& cells() const { return cells_; }
  // What a cell shows in short: the name of its file, or its label where all icons are in one file.
  std::string wholeLabel(int cell) const;
  // The marked cell of the panel; -1 without one.
  int markedCell() const { return markedCell_; }
  int scrollValue() const { return pages_.scrollValue(); }
  int panelCount() const { return pages_.panelCount(); }  // items of cboPanelNum; 0 without a list
  int panelItem() const { return pages_.panelItem(); }
  int pageCount() const { return pages_.pageCount(); }      // visible buttons of cmdPageRef
  int currentPage() const { return pages_.currentPage(); }  // -1 between pages
  bool isNextPanelEnabled() const { return pages_.isNextPanelEnabled(); }
  bool isNextPageVisible() const { return pages_.isNextPageVisible(); }
  bool offersSaveAll() const;  // cmdSaveAllExtractToFiles is visible
  bool isSaveAllEnabled() const;
  std::string kindLabel() const;    // lblExtract(0)
  std::string countLabel() const;   // lblExtract(1)
  std::string sourceLabel() const;  // lblForExtendedFrame
  // "Icon 37 of 210, setup.dll, 32 by 32"; empty without a mark.
  std::string spokenMark() const;

 private:
  void open(const SourceRow& row);
  bool isSameSession(const SourceRow& row) const;
  void showOpened(OpenedList opened, const std::string& path);
  void replaceList(OpenedList opened, const std::string& path);
  void closeEmptyFolder();
  void draw();
  void drawPanel();
  void drawCell(int cell);
  void showPanelWithMark(int item, int cell);
  int shownEntries() const;
  bool isIdle() const { return !work_.isRunning() && !isTaking_ && !isOpening_; }
  void take(int cell, ListButton button);
  void show(PickResult result, int cell, ListButton button);
  void notify();

  FilesContext context_;
  Files& files_;
  FileTypeIcons& fileTypes_;
  ListGrid grid_;
  ListWork work_;
  // The list: null without one. What a question or an event inside a loop can replace is looked up again by its serial.
  const SourceRow* row_ = nullptr;
  std::unique_ptr<IconSource> source_;
  unsigned serial_ = 0;
  std::string mListFolder_;
  ListPages pages_;
  std::vector<ListCell> cells_;
  std::vector<bool> invalid_;  // by entry
  int markedCell_ = -1;
  int filledContainer_ = 0;  // whose icon the next pick replaces without a question
  bool isRedrawn_ = false;   // the panel that is being drawn gives way to another one
  bool isOpening_ = false;
  bool isTaking_ = false;
};

}  // namespace gp

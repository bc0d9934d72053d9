// The rules of frmGPMultiIcon: what it lists, previews and enables, and what its buttons do. The form shows this state
// and forwards input. One browser serves one showing of the form. It works on MultiIconExchange, holds the whole file
// in memory, and writes only what the user asked for.
#pragma once

#include "files/FilesContext.h"
#include "files/browser/EntryPreview.h"
#include "files/browser/MultiIconListing.h"
#include "files/browser/RepositionPane.h"
#include "files/format/IconArrays.h"

#include <functional>
#include <string>
#include <utility>
#include <vector>

namespace gp {

// The indices of the form's control arrays.
enum class BrowserFace { Edit = 0, Add = 1 };

inline constexpr int kSaveButton = 0;  // index of cmdSaveAdd
inline constexpr int kSaveAsButton = 1;
// Form widths in pixels without and with the other sizes.
inline constexpr int kOtherSizesHiddenWidth = 398;
inline constexpr int kOtherSizesShownWidth = 460;

class MultiIconBrowser {
 public:
  // The context must outlive the browser.
  explicit MultiIconBrowser(const FilesContext& context);

  // Called on the first Activate: takes the values of the exchange, reads and lists the file and previews the selected
  // entry. When the file cannot be read, the form unloads at once without a message.
  void activate();

  // What the form shows.
  BrowserFace face() const { return face_; }
  const char* caption() const;
  std::string fileText() const;     // lblFileToEdit(0), lblExistingFile(1): short for display
  const std::string& file() const;  // in full
  bool showsReposition() const { return repositioning_; }
  const std::vector<std::string>& lisIcons() const { return icons_; }
  const std::vector<std::string>& lisOtherIcons() const { return otherIcons_; }
  int selectedIcon() const { return selected_; }  // item of lisIcons, -1 for none
  // The line below the list, empty for none: why nothing can be added yet, or what the asterisk in the list means.
  const char* remark() const;
  bool otherSizesShown() const { return otherSizesShown_; }
  const Surface& picIconInFile() const { return preview_.picIconInFile(); }
  const RepositionPane& reposition() const { return reposition_; }
  const Surface& picReposition() const { return repositionPreview_.picIconInFile(); }
  // The item of cboContainerRef, which contains 1 to 6; -1 when the selector is hidden.
  int containerItem() const { return container_; }
  // The number of items of cboAddToPosition, and the selected one.
  int addPositionCount() const;
  int addPosition() const { return addPosition_; }
  bool canLoad() const;          // cmdEdit, cmdLoad
  bool hasSeveralIcons() const;  // cmdSaveSingle, cmdSplitSave, cmdRemove, cmdReposition
  bool canAdd() const;           // cmdSaveAdd

  // Input to the form. Items are those of the lists, counted from 0.
  void clickIcon(int item);
  void clickRepositionIcon(int item);
  void setOtherSizesShown(bool shown);  // imgShowOtherSizes, imgHideOtherSizes
  void setContainer(int item);
  void setAddPosition(int item);
  void cmdEdit();
  void cmdLoad();
  void cmdClose();
  void cmdSaveSingle();
  void cmdSplitSave();
  void cmdRemove();
  void cmdReposition();
  void cmdShiftUp();
  void cmdShiftDown();
  void cmdRepositionAbort();
  void cmdRepositionProceed();
  void cmdSaveAdd(int button);

  // Called when the form has to close.
  std::function<void()> onUnload;

 private:
  void changed();
  void unload();
  bool isEditFace() const { return face_ == BrowserFace::Edit; }
  bool isIcon(int item) const { return item >= 0 && static_cast<std::size_t>(item) < icons_.size(); }
  const std::string& iconText(int item) const { return icons_.at(static_cast<std::size_t>(item)); }
  const ListedEntry& listed(const ItemReading& reading) const;

  bool readMultiIconFile();
  int fillIconLists();
  void openFile();
  bool preview(const std::string& item, EntryPreview& preview);
  bool previewOrTell(const std::string& item, EntryPreview& preview);
  void tellNotShown(const std::string& ref);
  SizeRule sizesShownIn(const EntryPreview& preview) const;
  void selectAnew(int item);

  void loadSelectedIcon();
  bool isLoadable(const ListedEntry& entry);
  std::string loadAnswer() const;
  std::string singleFileName(const std::string& stem, int item) const;
  bool saveItem(int item, const std::string& path);
  using ItemAndPath = std::pair<int, std::string>;
  std::vector<ItemAndPath> splitFiles(const std::string& stem) const;
  void splitTo(const std::vector<ItemAndPath>& files);
  void tellNotSplit();

  bool isUnchangeable(const char* onlyIcon, const char* inPanel);
  bool rereadForUpdate();
  bool removeEntry(int index);
  void relistAt(int item);
  void writeRepositioned();

  FilesContext context_;
  MultiIconExchange& exchange_;
  BrowserFace face_ = BrowserFace::Edit;
  IconArrays arrays_;
  std::vector<ListedEntry> entries_;
  std::vector<std::string> icons_;
  std::vector<std::string> otherIcons_;
  int selected_ = -1;
  bool mBusy_ = false;  // the browser itself is changing the selection
  bool lacksBits_ = false;
  bool otherSizesShown_ = false;
  bool repositioning_ = false;
  int container_ = -1;
  int addPosition_ = 0;
  EntryPreview preview_;
  EntryPreview repositionPreview_;
  RepositionPane reposition_;
};

}  // namespace gp

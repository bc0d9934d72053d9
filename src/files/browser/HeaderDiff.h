// The rules of frmGPHeaderDiff, which compares what an icon file's directory, its bitmap headers and its pixels state,
// and writes a copy whose directory follows the bitmap headers. It works on MultiIconExchange's file, which it holds in
// memory. Images that the decoder refuses are not shown. A PNG picture has no bitmap header: "PNG" and its own bits
// take the place of the header's values, and it is shown in its own size.
#pragma once

#include "files/FilesContext.h"
#include "files/browser/EntryPreview.h"
#include "files/browser/MultiIconListing.h"
#include "files/format/IconArrays.h"
#include "files/format/IconSalvage.h"

#include <string>
#include <vector>

namespace gp {

// optBase(0) and optBase(1).
enum class HeaderBase { Icon = 0, Bitmap = 1 };

// The texts of the labels of fraEnquiry; empty without a selection.
struct EnquiryTable {
  std::string lblIDEColor, lblIDEBPP;
  std::string lblBIHColor, lblBIHBPP;
  std::string lblActualColor, lblActualBPP;
  bool operator==(const EnquiryTable&) const = default;
};

class HeaderDiff {
 public:
  // The objects that the context refers to must outlive it.
  explicit HeaderDiff(const FilesContext& context);

  // Called on the first Activate: reads and lists the file and shows an entry, or reports that there is none.
  void activate();

  const std::string& file() const { return file_; }  // in full
  const std::vector<std::string>& lisIcons() const { return icons_; }
  int selectedIcon() const { return selected_; }  // -1 for none
  HeaderBase base() const { return base_; }
  const EnquiryTable& table() const { return table_; }
  const Surface& picIconInFile() const { return preview_.picIconInFile(); }
  bool canSalvage() const { return selected_ >= 0; }

  // Shows an entry. One that cannot be shown is reported, and the former one stays selected.
  void clickIcon(int item);
  // Reads the file again and lists it by its directory or by its bitmap headers.
  void setBase(HeaderBase base);
  void cmdSalvage();

 private:
  void changed() const;
  void loadAndList();
  void readMultiIconFile();
  void listIcons();
  int defaultItem() const;
  bool goesByHeader(std::size_t index) const;
  // An entry as the list shows it: the depth and size that the base states take the place of the directory's.
  ListedEntry shownEntry(std::size_t index) const;
  void select(int item);
  bool readImageAtIndex(std::size_t index);
  EnquiryTable tableOf(std::size_t index) const;

  bool confirmsSalvage(const std::string& target) const;
  WriteDefect writeSalvaged(const std::string& target) const;
  void salvageTo(const std::string& target);

  FilesContext context_;
  std::string file_;
  EntryPreview preview_;
  IconArrays arrays_;
  std::vector<ListedEntry> entries_;
  std::vector<HeaderFacts> headers_;
  std::vector<std::string> icons_;
  int selected_ = -1;
  HeaderBase base_ = HeaderBase::Icon;
  EnquiryTable table_;
};

}  // namespace gp

// The rules of frmGPHeaderDiff, which sets side by side what an icon file's directory, its bitmap headers and its
// pixels tell, and writes a copy whose directory follows the bitmap headers. It works on MultiIconExchange's file,
// which it holds in memory. It refuses images that the reader refuses, PNG pictures among them, and writes nothing that
// was not asked for.
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

// fraEnquiry: the texts of its labels, empty while nothing is selected.
struct EnquiryTable {
  std::string lblIDEColor, lblIDEBPP;
  std::string lblBIHColor, lblBIHBPP;
  std::string lblActualColor, lblActualBPP;
  bool operator==(const EnquiryTable&) const = default;
};

class HeaderDiff {
 public:
  // What the context refers to must outlive it.
  explicit HeaderDiff(const FilesContext& context);

  // The first Activate: reads and lists the file and shows an entry, or tells that there is nothing.
  void activate();

  const std::string& file() const { return file_; }  // in full
  const std::vector<std::string>& lisIcons() const { return icons_; }
  int selectedIcon() const { return selected_; }  // -1 for none
  HeaderBase base() const { return base_; }
  const EnquiryTable& table() const { return table_; }
  const Surface& picIconInFile() const { return preview_.picIconInFile(); }
  bool canSalvage() const { return selected_ >= 0; }

  // Shows an entry. One that cannot be shown is told of, and the one before stays.
  void clickIcon(int item);
  // Lists the file, read again, by its directory or by its bitmap headers.
  void setBase(HeaderBase base);
  void cmdSalvage();

 private:
  void changed() const;
  void loadAndList();
  void readMultiIconFile();
  void listIcons();
  int defaultItem() const;
  bool goesByHeader(std::size_t index) const;
  // What the list tells of an entry: in the place of what the directory tells stands what the base tells.
  ListedEntry shownEntry(std::size_t index) const;
  void select(int item);
  bool readImageAtIndex(std::size_t index);
  EnquiryTable tableOf(std::size_t index) const;

  bool confirmsSalvage(const std::string& target) const;
  WriteOutcome writeSalvaged(const std::string& target) const;
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

// Lists the entries of a file: each as one line of text with tabs, which is parsed again on a click. A Ref is the place
// of an entry in the file, counted from 1.
#pragma once

#include "files/format/IconArrays.h"

#include <optional>
#include <string>
#include <vector>

namespace gp {

// One entry as its directory entry and the bitmap header of its image describe it; a PNG picture as it describes
// itself.
struct ListedEntry {
  int width = 0;  // the directory's bytes
  int height = 0;
  ColorDepth directory = {};  // mDirColors and mDirBits
  ColorDepth header = {};     // mBihColors and mBihBits: the low byte of biBitCount, 0 where the image is too short
  bool isPng = false;

  // Square, and of 16, 24, 32 or 48 pixels.
  bool isStandard() const;
  // True when only the colour count states the depth. The text of the bits then gets an asterisk.
  bool lacksBits() const;
};

std::vector<ListedEntry> listEntries(const IconArrays& arrays);
// The same with the directory's size and depth for PNG pictures too.
std::vector<ListedEntry> listStatedEntries(const IconArrays& arrays);

// "Ref 3  \t32 BPP\tTrue-Color\t   32 x  32"; with padding width and height are three characters each.
std::string itemText(int ref, const ListedEntry& entry, bool padded);

// The values parsed from a padded item text. The index is read from two characters of the Ref only: the index of Ref
// 100 is that of Ref 10, an entry which the user did not choose.
struct ItemReading {
  int ref = 0;     // the whole number
  int index = -1;  // Ref - 1, of the two characters
  int width = 0;
  int height = 0;

  // False when the index is that of another entry; commands must not use it then.
  bool isOfItsEntry() const { return index == ref - 1; }
};
ItemReading readItem(const std::string& text);

// Finds the item that is selected first: the first 32x32 entry, or the last later one of 8 bits. 0 when there is none.
class DefaultSelection {
 public:
  void consider(int item, int width, int bits);
  int item() const { return item_.value_or(0); }

 private:
  std::optional<int> item_;
};

}  // namespace gp

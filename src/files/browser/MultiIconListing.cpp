#include "files/browser/MultiIconListing.h"

#include "document/IconSizes.h"
#include "files/format/IcoLayout.h"
#include "files/format/PngEntry.h"
#include "platform/text/Numbers.h"
#include "platform/text/Utf8.h"

#include <algorithm>
#include <string_view>

namespace gp {
namespace {

constexpr int kPreferredSize = 32;

// Positions in an item text, whose parts are at fixed distances from both ends.
constexpr std::string_view kRefLabel = "Ref ";
constexpr std::size_t kSideWidth = 3;
constexpr std::size_t kSizeWidth = 9;
constexpr std::size_t kRefField = 6;
constexpr std::size_t kRefWidth = 2;

int lowHeaderBits(ImageBytes image) { return image.size() > ico::kHeaderBitCount ? image[ico::kHeaderBitCount] : 0; }

// `shown` is the entry as its image describes it, `listed` the one that is listed.
ListedEntry listedEntry(const IconEntry& listed, const IconEntry& shown, ImageBytes image, bool isPng) {
  ListedEntry result;
  result.width = listed.width;
  result.height = listed.height;
  result.directory = depthOfEntry(listed);
  result.header = isPng ? depthOfEntry(shown) : depthOfEntry(listed, lowHeaderBits(image));
  result.isPng = isPng;
  return result;
}

enum class Listed { AsShown, AsStated };

std::vector<ListedEntry> listAll(const IconArrays& arrays, Listed manner) {
  std::vector<ListedEntry> listed;
  listed.reserve(arrays.entries.size());
  for (std::size_t i = 0; i < arrays.entries.size(); ++i) {
    const IconEntry& stated = arrays.entries[i];
    const IconEntry shown = shownEntry(arrays.file, stated);
    listed.push_back(listedEntry(manner == Listed::AsShown ? shown : stated, shown, arrays.images[i],
                                 isPngImage(arrays.file, stated)));
  }
  return listed;
}

std::string sideText(int side, bool padded) {
  const std::string digits = std::to_string(side);
  return padded && digits.size() < kSideWidth ? std::string(kSideWidth - digits.size(), ' ') + digits : digits;
}

std::string_view lastCharacters(std::string_view text, std::size_t count) {
  return text.substr(text.size() - std::min(count, text.size()));
}

int numberIn(std::string_view text) { return Int(Val(trim(text))); }

int wholeRefIn(std::string_view text) {
  const std::string_view field = text.substr(0, text.find('\t'));
  return numberIn(field.substr(std::min(kRefLabel.size(), field.size())));
}

}  // namespace

bool ListedEntry::isStandard() const { return width == height && isIconSize(width); }
bool ListedEntry::lacksBits() const { return directory.hasPalette() && directory.bits == 0; }

std::vector<ListedEntry> listEntries(const IconArrays& arrays) { return listAll(arrays, Listed::AsShown); }
std::vector<ListedEntry> listStatedEntries(const IconArrays& arrays) { return listAll(arrays, Listed::AsStated); }

std::string itemText(int ref, const ListedEntry& entry, bool padded) {
  const auto [colorCount, bitCount] = entry.directory;
  const std::string bits = std::to_string(bitCount) + " BPP" + (entry.lacksBits() ? "*" : "");
  const std::string colors = entry.directory.isTrueColor() ? "True-Color" : std::to_string(colorCount) + "-Color";
  return std::string(kRefLabel) + std::to_string(ref) + "  \t" + bits + "\t" + colors + "\t  " +
         sideText(entry.width, padded) + " x " + sideText(entry.height, padded);
}

ItemReading readItem(const std::string& text) {
  const std::string field = trim(std::string_view(text).substr(0, kRefField));
  ItemReading reading;
  reading.ref = wholeRefIn(text);
  reading.index = numberIn(lastCharacters(field, kRefWidth)) - 1;
  reading.width = numberIn(lastCharacters(text, kSizeWidth).substr(0, kSideWidth));
  reading.height = numberIn(lastCharacters(text, kSideWidth));
  return reading;
}

void DefaultSelection::consider(int item, int width, int bits) {
  if (width == kPreferredSize && (!item_ || bits == kPaletteDepth.bits)) item_ = item;
}

}  // namespace gp

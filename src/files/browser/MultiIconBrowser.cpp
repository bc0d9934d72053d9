#include "files/browser/MultiIconBrowser.h"

#include "document/Display.h"
#include "document/Hourglass.h"
#include "document/IconContainerRec.h"
#include "document/ProcessValues.h"
#include "files/browser/MultiIconExchange.h"
#include "files/format/IconUpdates.h"
#include "files/format/Rereading.h"
#include "files/opening/IconMessages.h"
#include "platform/ports/MessageBoxes.h"
#include "platform/scope/FlagFor.h"
#include "platform/text/Numbers.h"
#include "platform/text/Paths.h"

#include <algorithm>

namespace gp {
namespace {

constexpr std::size_t kFewestToChooseFrom = 2;

constexpr const char* kEditCaption = "Edit Icon In Multi-Icon File";
constexpr const char* kAddCaption = "Add Icon To Existing Icon File";
constexpr const char* kNotShown = "\nUnable to get this one";
constexpr const char* kStrangePaletteBits = "Selected item is below 8 BPP, but not 1, 4 (or 0 if old Win 95 icons)";
constexpr const char* kStrangeTrueColorBits = "Selected item is of True Color but not 24 BPP or 32 BPP.";
constexpr const char* kBitsRemark = "* Remarks: Listed BPP as per original file only";
constexpr const char* kSelectionRemark = "Select an icon, or append";

int containerIn(const std::string& text) {
  const int item = text.empty() ? -1 : Int(Val(text));
  return item >= 0 && item < kContainerCount ? item : -1;
}

// Old icons state 0 bits.
bool isPaletteBitCount(int bits) { return bits == 0 || depthOfBits(bits).hasPalette(); }
bool isTrueColorBitCount(int bits) { return bits == kBitsWithoutAlpha || bits == kBitsWithAlpha; }

std::string twoDigits(int number) { return (number < 10 ? "0" : "") + std::to_string(number); }

}  // namespace

MultiIconBrowser::MultiIconBrowser(const FilesContext& context) : context_(context), exchange_(context.multiIcon) {}

void MultiIconBrowser::changed() {
  const FlagFor busy(mBusy_);
  context_.display.changed(DisplayPart::ModalForm);
}

void MultiIconBrowser::unload() {
  arrays_ = {};
  entries_.clear();
  icons_.clear();
  otherIcons_.clear();
  selected_ = -1;
  if (onUnload) onUnload();
}

void MultiIconBrowser::activate() {
  face_ = exchange_.gAddToFile ? BrowserFace::Add : BrowserFace::Edit;
  container_ = containerIn(std::exchange(exchange_.gMultiIconResult, {}));
  openFile();
}

const char* MultiIconBrowser::caption() const { return isEditFace() ? kEditCaption : kAddCaption; }
std::string MultiIconBrowser::fileText() const { return ShortenPath(file()); }
const std::string& MultiIconBrowser::file() const { return exchange_.gMultiIconFile; }
int MultiIconBrowser::addPositionCount() const { return static_cast<int>(icons_.size() + otherIcons_.size()) + 1; }
bool MultiIconBrowser::canLoad() const { return isEditFace() && !icons_.empty(); }
bool MultiIconBrowser::hasSeveralIcons() const { return icons_.size() >= kFewestToChooseFrom; }
bool MultiIconBrowser::canAdd() const { return isIcon(selected_) || (icons_.empty() && !otherIcons_.empty()); }

const char* MultiIconBrowser::remark() const {
  if (!isEditFace() && !canAdd()) return kSelectionRemark;
  return lacksBits_ ? kBitsRemark : "";
}

const ListedEntry& MultiIconBrowser::listed(const ItemReading& reading) const {
  return entries_.at(static_cast<std::size_t>(reading.index));
}

// Listing.

bool MultiIconBrowser::readMultiIconFile() {
  return readIconArrays(file(), ReservedField::Any, arrays_) == ArraysDefect::None;
}

// Returns the item that is selected first, one that can be selected if there is any.
int MultiIconBrowser::fillIconLists() {
  DefaultSelection first;
  entries_ = listEntries(arrays_);  // of the images as the directory states them
  takeWholeImages(arrays_);         // which are saved and written whole
  icons_.clear();
  otherIcons_.clear();
  int ref = 0;
  for (const ListedEntry& entry : entries_) {
    const std::string item = itemText(++ref, entry, entry.isStandard());
    if (entry.isStandard() && readItem(item).isOfItsEntry())
      first.consider(static_cast<int>(icons_.size()), entry.width, entry.directory.bits);
    (entry.isStandard() ? icons_ : otherIcons_).push_back(item);
  }
  lacksBits_ = std::ranges::any_of(entries_, &ListedEntry::lacksBits);
  addPosition_ = addPositionCount() - 1;
  return first.item();
}

void MultiIconBrowser::openFile() {
  if (!readMultiIconFile()) return unload();
  const int first = fillIconLists();
  otherSizesShown_ = !otherIcons_.empty();
  selectAnew(isEditFace() ? first : -1);
}

// Selecting.

// The selection is stored as the item's text only. An item whose Ref reads as that of another entry is never selected.
bool MultiIconBrowser::preview(const std::string& item, EntryPreview& preview) {
  const Hourglass hourglass(context_);
  const ItemReading reading = readItem(item);
  if (!reading.isOfItsEntry()) return false;
  IconEntry entry = arrays_.entries.at(static_cast<std::size_t>(reading.index));
  entry.width = reading.width;
  entry.height = reading.height;
  return preview.show(arrays_, entry, sizesShownIn(preview), listed(reading).directory.bits >= kBitsWithAlpha);
}

// The pane lists entries of all sizes and shows them all.
SizeRule MultiIconBrowser::sizesShownIn(const EntryPreview& preview) const {
  return &preview == &repositionPreview_ ? SizeRule::Any : SizeRule::IconSizes;
}

bool MultiIconBrowser::previewOrTell(const std::string& item, EntryPreview& preview) {
  if (this->preview(item, preview)) return true;
  tellNotShown(std::to_string(readItem(item).ref));
  return false;
}

void MultiIconBrowser::tellNotShown(const std::string& ref) { context_.boxes.tell("Ref " + ref + kNotShown); }

// Selects an item of a new list. -1 and entries that cannot be shown leave no selection.
void MultiIconBrowser::selectAnew(int item) {
  selected_ = -1;
  preview_.clear();
  changed();
  clickIcon(item);
}

void MultiIconBrowser::clickIcon(int item) {
  if (mBusy_ || !isIcon(item)) return;
  if (previewOrTell(iconText(item), preview_)) selected_ = item;
  changed();
}

void MultiIconBrowser::setOtherSizesShown(bool shown) {
  otherSizesShown_ = shown;
  changed();
}

void MultiIconBrowser::setContainer(int item) {
  if (container_ >= 0 && item >= 0 && item < kContainerCount) container_ = item;
}

void MultiIconBrowser::setAddPosition(int item) {
  if (item >= 0 && item < addPositionCount()) addPosition_ = item;
}

// Loading, adding, closing.

void MultiIconBrowser::cmdEdit() {
  exchange_.gLoadAndReturn = false;
  loadSelectedIcon();
}

void MultiIconBrowser::cmdLoad() {
  exchange_.gLoadAndReturn = true;
  loadSelectedIcon();
}

void MultiIconBrowser::loadSelectedIcon() {
  if (!isEditFace() || !isIcon(selected_) || !isLoadable(listed(readItem(iconText(selected_))))) return;
  exchange_.gMultiIconResult = loadAnswer();
  exchange_.chosenIcon = preview_.icon();
  const auto index = static_cast<std::size_t>(readItem(iconText(selected_)).index);
  exchange_.chosenOrigin = originOf(arrays_.entries[index], arrays_.images[index]);
  unload();
}

bool MultiIconBrowser::isLoadable(const ListedEntry& entry) {
  const int bits = entry.directory.bits;
  if (!isPaletteBitCount(bits) && !isTrueColorBitCount(bits)) {
    context_.boxes.tell(bits < kPaletteDepth.bits ? kStrangePaletteBits : kStrangeTrueColorBits);
    return false;
  }
  if (!isTrueColorBitCount(bits) || context_.process.gScreenBPP >= kManyColorsScreenBits) return true;
  return ConfirmTrueColorOnLowScreen(context_.boxes);
}

std::string MultiIconBrowser::loadAnswer() const {
  const ItemReading reading = readItem(iconText(selected_));
  const ListedEntry& entry = listed(reading);
  std::string answer = std::to_string(container_ + 1) + "/" + twoDigits(reading.index);
  const ColorDepth depth = corrected(entry.directory);
  for (const int field :
       {reading.width, reading.height, depth.colors, depth.bits, entry.header.colors, entry.header.bits})
    answer += "/" + std::to_string(field);
  return answer;
}

void MultiIconBrowser::cmdSaveAdd(int button) {
  if (!canAdd()) return;
  const std::string position = std::to_string(addPosition_ + 1);
  const bool appends = addPosition_ == addPositionCount() - 1;
  if (!context_.boxes.ask((appends ? "Append" : "Insert") + (" to position ref " + position) + ".   \n\nConfirm?\n"))
    return;
  exchange_.gMultiIconResult = std::to_string(button + 1) + "/" + position;
  exchange_.listedFile = std::move(arrays_.file.bytes);
  unload();
}

void MultiIconBrowser::cmdClose() {
  exchange_.gMultiIconResult.clear();
  exchange_.gLoadAndReturn = false;
  unload();
}

}  // namespace gp

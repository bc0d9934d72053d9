#include "files/browser/HeaderDiff.h"

#include "colour/ColorCount.h"
#include "document/Display.h"
#include "document/Hourglass.h"
#include "files/FileQuestions.h"
#include "files/browser/MultiIconExchange.h"
#include "files/format/IcoLayout.h"
#include "files/saving/HeldFiles.h"
#include "platform/ports/MessageBoxes.h"
#include "platform/text/Numbers.h"
#include "platform/text/Paths.h"

#include <algorithm>
#include <array>

namespace gp {
namespace {

constexpr const char* kNoIcon = "No icon retrieved.";
constexpr const char* kNotShown = "\nUnable to get this one";
constexpr const char* kNotSalvaged = "Failed to salvage to ";
constexpr const char* kNotWritten = "Error occurred in writing overall header";
constexpr const char* kSalvaged = "\n\n(per bitmap header entry, irrespective of actual color depth)\n\n";
constexpr const char* kNameEnding = "_X.ico";

constexpr const char* kTrue = "True";
constexpr const char* kPng = "PNG";
constexpr const char* kDoubtful = "   (?)";
constexpr int kPreferredSize = 32;
constexpr std::size_t kPixelBytes = 4;
constexpr std::size_t kAlphaByte = 3;
constexpr int kLargestSide = 256;

std::string colorLabel(int colors) { return colors > 0 ? std::to_string(colors) : kTrue; }

std::string itemText(std::size_t index, const ListedEntry& shown) {
  const auto [colors, bits] = shown.directory;
  return std::to_string(index + 1) + "\t" + std::to_string(bits) + "-BPP\t" + colorLabel(colors) + "-Color\t" +
         std::to_string(shown.width) + " x " + std::to_string(shown.height);
}

// The index of the entry that an item text describes.
std::size_t indexIn(const std::string& item) {
  return static_cast<std::size_t>(Int(Val(item.substr(0, item.find('\t'))))) - 1;
}

std::string bitsLabel(ColorDepth depth) {
  const bool isDoubtful = isPaletteSize(depth.colors) && depth != depthOfColors(depth.colors);
  return std::to_string(depth.bits) + (isDoubtful ? kDoubtful : "");
}

int sideOf(int byte) { return byte == 0 ? kLargestSide : byte; }

// True when a pixel of a 32-bit image has an alpha byte. The decoder's alpha values do not show this: an image without
// alpha is opaque there, as one with full alpha is.
bool hasAlphaBytes(ImageBytes image, const HeaderFacts& facts) {
  if (facts.bits != kBitsWithAlpha || image.size() <= ico::kBitmapHeaderSize) return false;
  const ImageBytes rows = image.subspan(ico::kBitmapHeaderSize);
  const std::size_t stated = static_cast<std::size_t>(sideOf(facts.width)) * sideOf(facts.height);
  const std::size_t pixels = std::min(stated, rows.size() / kPixelBytes);
  for (std::size_t i = 0; i < pixels; ++i)
    if (rows[i * kPixelBytes + kAlphaByte] != 0) return true;
  return false;
}

}  // namespace

HeaderDiff::HeaderDiff(const FilesContext& context) : context_(context), file_(context.multiIcon.gMultiIconFile) {}

void HeaderDiff::changed() const { context_.display.changed(DisplayPart::ModalForm); }

void HeaderDiff::activate() {
  loadAndList();
  changed();
}

void HeaderDiff::setBase(HeaderBase base) {
  if (base == base_) return;
  base_ = base;
  loadAndList();
  changed();
}

void HeaderDiff::loadAndList() {
  readMultiIconFile();
  if (icons_.empty())
    context_.boxes.tell(kNoIcon);
  else
    select(defaultItem());
}

void HeaderDiff::readMultiIconFile() {
  const Hourglass hourglass(context_);
  selected_ = -1;
  table_ = {};
  preview_.clear();
  // On a defect the arrays are empty, and so is the list.
  static_cast<void>(readIconArrays(file_, ReservedField::Any, arrays_));
  entries_ = listStatedEntries(arrays_);
  headers_.clear();
  for (const ImageBytes image : arrays_.images) headers_.push_back(headerFactsOf(image));
  listIcons();
}

void HeaderDiff::listIcons() {
  icons_.clear();
  for (std::size_t i = 0; i < entries_.size(); ++i) icons_.push_back(itemText(i, shownEntry(i)));
}

// An image without a bitmap header is described by its directory entry.
bool HeaderDiff::goesByHeader(std::size_t index) const {
  return base_ == HeaderBase::Bitmap && hasBitmapHeader(arrays_.images[index]);
}

ListedEntry HeaderDiff::shownEntry(std::size_t index) const {
  ListedEntry shown = entries_[index];
  if (!goesByHeader(index)) return shown;
  shown.width = headers_[index].width;
  shown.height = headers_[index].height;
  shown.directory = shown.header;
  return shown;
}

int HeaderDiff::defaultItem() const {
  DefaultSelection selection;
  for (std::size_t i = 0; i < entries_.size(); ++i) {
    const ListedEntry shown = shownEntry(i);
    if (shown.width == kPreferredSize && shown.height == kPreferredSize)
      selection.consider(static_cast<int>(i), shown.width, shown.directory.bits);
  }
  return selection.item();
}

void HeaderDiff::clickIcon(int item) {
  if (item >= 0 && static_cast<std::size_t>(item) < icons_.size()) select(item);
  changed();
}

void HeaderDiff::select(int item) {
  const std::size_t index = indexIn(icons_[static_cast<std::size_t>(item)]);
  if (!readImageAtIndex(index)) {
    context_.boxes.tell("Ref " + std::to_string(index + 1) + kNotShown);
    return;
  }
  selected_ = item;
  table_ = tableOf(index);
}

// With the base of the bitmap header, only its bit count states the colours: the directory's count may be wrong.
bool HeaderDiff::readImageAtIndex(std::size_t index) {
  const Hourglass hourglass(context_);
  IconEntry entry = arrays_.entries[index];
  if (goesByHeader(index)) {
    entry.width = headers_[index].width;
    entry.height = headers_[index].height;
    entry.bitCount = headers_[index].bits;
    entry.colorCount = 0;
  }
  return preview_.show(arrays_, entry, SizeRule::Any, false);
}

EnquiryTable HeaderDiff::tableOf(std::size_t index) const {
  const ListedEntry& entry = entries_[index];
  const int headerBits = entry.isPng ? entry.header.bits : headers_[index].bits;
  EnquiryTable table;
  table.lblIDEColor = colorLabel(entry.directory.colors);
  table.lblIDEBPP = bitsLabel(entry.directory);
  table.lblBIHColor = entry.isPng ? kPng : colorLabel(entry.header.colors);
  table.lblBIHBPP = std::to_string(headerBits);

  int actual = 0;
  GetColorBitCount_Image(preview_.icon().image, actual);
  const bool isPngWithAlpha = entry.isPng && entry.header.hasAlpha();
  if (isPngWithAlpha || hasAlphaBytes(arrays_.images[index], headers_[index])) actual = kTrueColor;
  table.lblActualColor = colorLabel(actual);
  table.lblActualBPP = std::to_string(depthOfColors(actual, headerBits == kBitsWithAlpha).bits);
  return table;
}

void HeaderDiff::cmdSalvage() {
  if (!canSalvage()) return;
  if (!canBeSalvaged(arrays_)) return context_.boxes.tell(kTooLargeToSalvage, BoxIcon::Exclamation);
  const std::string proposed = ParseFileName(file_, PathPart::BareName) + kNameEnding;
  const std::string target = askToSave(context_, proposed, kIconFilter, kIconExtension, OverwriteQuestion::ByCaller);
  if (target.empty() || !confirmsSalvage(target) || !mayWriteOver(context_, target, Saved::CurrentIcon)) return;
  salvageTo(target);
  changed();
}

bool HeaderDiff::confirmsSalvage(const std::string& target) const {
  return context_.boxes.ask(FileExists(target) ? target + kOverwriteQuestion
                                               : "Salvage to \n\n" + target + "\nProceed?");
}

WriteDefect HeaderDiff::writeSalvaged(const std::string& target) const {
  const Hourglass hourglass(context_);
  IconArrays salvaged;
  salvaged.reserved = arrays_.reserved;
  salvaged.type = arrays_.type;
  salvaged.entries = arrays_.entries;
  salvaged.images = arrays_.images;
  salvageEntries(salvaged);
  return target == file_ ? writeWholeFile(salvaged, target, arrays_.file.bytes.version())
                         : writeWholeFile(salvaged, target);
}

void HeaderDiff::salvageTo(const std::string& target) {
  const WriteDefect defect = writeSalvaged(target);
  if (defect == WriteDefect::NotOpened) return context_.boxes.tell(kNotSalvaged + target, BoxIcon::Exclamation);
  if (defect != WriteDefect::None) return context_.boxes.tell(kNotWritten);
  context_.boxes.tell("File salvaged to " + target + kSalvaged);
  if (!isSameFile(target, file_)) return;
  const int item = selected_;
  readMultiIconFile();
  if (static_cast<std::size_t>(item) < icons_.size()) select(item);
}

}  // namespace gp

// The logic of frmGPHeaderDiff on a file on disk: every entry is clicked with either kind of header, then the file is
// salvaged to another one. The original file never changes, and the salvaged file holds the same images.
#include "FuzzIcons.h"
#include "FuzzUser.h"
#include "files/browser/HeaderDiff.h"

#include <algorithm>

namespace {

using gp::fuzz::Bytes;
using gp::fuzz::Choices;
using gp::fuzz::require;
using gp::fuzz::User;

constexpr std::size_t kMostChoices = 8;
constexpr std::size_t kLargestFile = 1 << 14;  // a long file finds no more and takes long
constexpr std::size_t kLargestSum = 1 << 20;   // of the images, which may share their bytes
constexpr int kMostClicks = 6;

void clickEvery(gp::HeaderDiff& form) {
  const int count = std::min(static_cast<int>(form.lisIcons().size()), kMostClicks);
  for (int item = -1; item <= count; ++item) {
    form.clickIcon(item);
    require(form.selectedIcon() < static_cast<int>(form.lisIcons().size()));
    require((form.selectedIcon() >= 0) == !form.table().lblActualBPP.empty());
  }
}

void requireSalvaged(const gp::IconArrays& arrays, const std::string& path) {
  gp::IconArrays salvaged;
  require(gp::readIconArrays(path, gp::ReservedField::Any, salvaged) == gp::ArraysDefect::None);
  require(salvaged.count() == arrays.count());
  for (std::size_t i = 0; i < arrays.images.size(); ++i) {
    require(std::ranges::equal(salvaged.images[i], arrays.images[i]));
    if (!gp::hasBitmapHeader(arrays.images[i])) require(salvaged.entries[i].bitCount == arrays.entries[i].bitCount);
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  if (size > kLargestFile) return 0;
  static const gp::fuzz::ScratchFolder folder;
  const Bytes before(data, data + size);
  gp::IconArrays arrays;
  (void)gp::takeIconArrays(gp::parseIconFile(gp::FileBytes(before)), gp::ReservedField::Any, arrays);
  if (gp::fuzz::sumOfImages(arrays) > kLargestSum) return 0;

  const std::string path = folder.holding("looked-at.ico", before);
  Choices choices(before, kMostChoices);
  User user(choices, folder);
  user.exchange.gMultiIconFile = path;
  gp::HeaderDiff form(user.context);
  form.activate();
  clickEvery(form);
  form.setBase(gp::HeaderBase::Bitmap);
  clickEvery(form);
  std::filesystem::remove(folder.path("saved.ico"));
  form.cmdSalvage();
  require(gp::fuzz::contentOf(path) == before);
  if (std::filesystem::exists(folder.path("saved.ico"))) requireSalvaged(arrays, folder.path("saved.ico"));
  return 0;
}

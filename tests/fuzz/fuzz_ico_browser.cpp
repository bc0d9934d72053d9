// The logic of frmGPMultiIcon on a file on disk: every entry is clicked, then buttons are pressed as the input selects.
// The file changes only after a Yes, and remains readable.
#include "FuzzIcons.h"
#include "FuzzUser.h"
#include "files/browser/MultiIconBrowser.h"

#include <algorithm>

namespace {

using gp::fuzz::Bytes;
using gp::fuzz::Choices;
using gp::fuzz::require;
using gp::fuzz::User;

constexpr std::size_t kMostChoices = 24;
constexpr std::size_t kLargestFile = 1 << 14;  // a long file finds no more and takes long
constexpr int kMostClicks = 24;
constexpr std::size_t kMostSplit = 12;        // files that one split may write
constexpr std::size_t kLargestSum = 1 << 20;  // of the images, which may share their bytes

using Browser = gp::MultiIconBrowser;

void shift(Browser& browser, Choices& choices) {
  browser.clickRepositionIcon(choices.next());
  choices.next() % 2 ? browser.cmdShiftUp() : browser.cmdShiftDown();
}

void splitFew(Browser& browser, Choices&) {
  if (browser.lisIcons().size() <= kMostSplit) browser.cmdSplitSave();
}

void add(Browser& browser, Choices& choices) {
  browser.setAddPosition(choices.next());
  browser.cmdSaveAdd(gp::kSaveButton);
}

using Press = void (*)(Browser& browser, Choices& choices);
// The actions available on a face, and on the pane that covers it.
constexpr Press kFacePresses[] = {
    [](Browser& browser, Choices&) { browser.cmdRemove(); },
    [](Browser& browser, Choices&) { browser.cmdReposition(); },
    [](Browser& browser, Choices& choices) { browser.clickIcon(choices.next()); },
    [](Browser& browser, Choices&) { browser.cmdSaveSingle(); },
    splitFew,
    [](Browser& browser, Choices&) { browser.cmdLoad(); },
    add,
    [](Browser& browser, Choices&) { browser.cmdClose(); },
    [](Browser& browser, Choices& choices) { browser.clickRepositionIcon(choices.next()); },
};
constexpr Press kPanePresses[] = {
    shift,
    [](Browser& browser, Choices&) { browser.cmdRepositionProceed(); },
    [](Browser& browser, Choices&) { browser.cmdRepositionAbort(); },
};

void press(Browser& browser, Choices& choices) {
  const std::span<const Press> presses =
      browser.showsReposition() ? std::span<const Press>(kPanePresses) : kFacePresses;
  presses[static_cast<std::size_t>(choices.below(static_cast<int>(presses.size())))](browser, choices);
}

void requireSelectedIsShown(const Browser& browser) {
  const int selected = browser.selectedIcon();
  require(selected < static_cast<int>(browser.lisIcons().size()));
  if (selected < 0) return;
  const auto reading = gp::readItem(browser.lisIcons()[static_cast<std::size_t>(selected)]);
  require(browser.picIconInFile().width() == reading.width && browser.picIconInFile().height() == reading.height);
}

void clickEvery(Browser& browser) {
  const int count = std::min(static_cast<int>(browser.lisIcons().size()), kMostClicks);
  for (int item = -1; item <= count; ++item) {
    browser.clickIcon(item);
    requireSelectedIsShown(browser);
  }
}

void browse(const std::string& path, User& user, Choices& choices) {
  user.exchange.gMultiIconFile = path;
  user.exchange.gMultiIconResult = "0";
  user.exchange.gAddToFile = choices.next() % 4 == 3;
  Browser browser(user.context);
  bool open = true;
  browser.onUnload = [&open] { open = false; };
  browser.activate();
  if (open) clickEvery(browser);
  while (open && choices.more()) {
    press(browser, choices);
    requireSelectedIsShown(browser);
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  if (size > kLargestFile) return 0;
  static const gp::fuzz::ScratchFolder folder;
  std::filesystem::create_directory(folder.path("split"));
  const Bytes before(data, data + size);
  gp::IconArrays arrays;
  const bool isIconFile = gp::takeIconArrays(gp::parseIconFile(gp::FileBytes(before)), gp::ReservedField::Any,
                                             arrays) == gp::ArraysDefect::None;
  if (gp::fuzz::sumOfImages(arrays) > kLargestSum) return 0;

  const std::string path = folder.holding("browsed.ico", before);
  Choices choices(before, kMostChoices);
  User user(choices, folder);
  browse(path, user, choices);
  if (!user.boxes.agreed()) require(gp::fuzz::contentOf(path) == before);
  if (isIconFile)
    require(gp::readIconArrays(path, gp::ReservedField::Any, arrays) == gp::ArraysDefect::None);
  else
    require(gp::fuzz::contentOf(path) == before);
  return 0;
}

#include "files/opening/IconOpening.h"

#include "document/AlphaIndicator.h"
#include "document/Announcements.h"
#include "document/Containers.h"
#include "document/Display.h"
#include "document/Document.h"
#include "document/EditState.h"
#include "document/Editor.h"
#include "document/Hourglass.h"
#include "files/browser/MultiIconCommands.h"
#include "files/format/IconArrays.h"
#include "files/format/Rereading.h"
#include "files/opening/IconLoading.h"
#include "files/opening/IconMessages.h"

namespace gp {
namespace {

constexpr const char* kUseBitmapMenu = "Please try to use Open Bitmap File menu instead.";
constexpr const char* kInvalidFile =
    "\n\nInvalid icon file or icon not a size of"
    " 16x16, 24x24, 32x32 or 48x48.\n";
constexpr const char* kOneInside = "\n\nIt holds 1 icon of these sizes all the same. Show it?";
constexpr const char* kFailedToLoad = "\nFailed to load this file";
constexpr const char* kAlphaReminder =
    "\nReminder:  The incoming icon is with Alpha Channel.  To view the icon with\n"
    "alpha effects, or to edit the alpha values, invoke the Alpha Channel screen.\n"
    "\n"
    "(To remove Reminder, untick the related Option submenu)";
constexpr const char* kHeaderReminder =
    "\nReminder:  Header entries in the original file are discrepant.  (i) To permanently\n"
    "correct the entries when the current image itself is OK, run Save icon function\n"
    "of this program (until then, you see an asterisk in the Status Bar).  (ii) To view\n"
    "the original header entries, run Enquiry - Original Header Entry (you will be able\n"
    "to salvage the file basing on bitmap header entry instead, irrespective of the\n"
    "actual color depth.)\n"
    "\n"
    "(To remove Reminder, untick the related Option submenu)";

std::string refusal(const std::string& path) { return path + kInvalidFile + kUseBitmapMenu; }

std::string offerOf(int icons) {
  if (icons == 1) return kOneInside;
  return "\n\nIt holds " + std::to_string(icons) + " icons of these sizes all the same. Show them?";
}

}  // namespace

IconOpening::IconOpening(FilesContext& context, std::string path, OpeningManner manner, MultiIconCommands& browser)
    : context_(context), state_(context.state), path_(std::move(path)), manner_(manner), browser_(browser) {}

bool IconOpening::run() {
  if (!probe()) return refuse();
  if (!isSquare()) return false;
  if (isBrowsed()) return browse();
  if (!isConfirmed()) return false;
  decoded_ = loadIconImage(file_, facts_.chosen, true);
  if (!decoded_.isRead()) return fail(path_ + kFailedToLoad, BoxIcon::Exclamation);
  if (!facts_.depth().isShown()) return fail(path_ + kStrangeTrueColor, BoxIcon::Information);
  show();
  return true;
}

bool IconOpening::fail(const std::string& text, BoxIcon icon) {
  if (isSpoken()) context_.boxes.tell(text, icon);
  return false;
}

bool IconOpening::probe() {
  if (auto file = readIconFile(path_)) file_ = std::move(*file);
  facts_ = probeIcon(file_, true);
  return facts_.canBeOpened();
}

// 0 also for a file that the browser cannot list.
int IconOpening::iconsInside() {
  const int icons = file_.isIcon() ? countIconSizes(file_) : 0;
  IconArrays arrays;
  const bool isListed = icons > 0 && readIconArrays(path_, ReservedField::Any, arrays) == ArraysDefect::None;
  return isListed ? icons : 0;
}

bool IconOpening::refuse() {
  if (!isSpoken()) return false;
  const int icons = iconsInside();
  if (icons == 0) return fail(refusal(path_), BoxIcon::Exclamation);
  return agreesToShow(icons) && browse();
}

bool IconOpening::agreesToShow(int icons) {
  const std::string text = refusal(path_) + offerOf(icons);
  return context_.boxes.show(text, BoxButtons::YesNo, BoxIcon::Exclamation, BoxAnswer::Yes) == BoxAnswer::Yes;
}

void IconOpening::offerIcons(int container) {
  if (probe()) return;
  const int icons = iconsInside();
  if (icons == 0 || !agreesToShow(icons)) return;
  file_ = {};  // the browser reads the file again
  finishBrowsing(browser_.showIconsFor(path_, container));
}

bool IconOpening::isSquare() {
  if (facts_.width == facts_.height) return true;
  return fail("Width and height are different:   " + std::to_string(facts_.width) + " by " +
                  std::to_string(facts_.height) + "\n" + kUseBitmapMenu,
              BoxIcon::Exclamation);
}

bool IconOpening::browse() {
  file_ = {};  // the browser reads the file again
  std::string answer;
  browser_.MultiIconFileSubRoutine(path_, !isStored(), answer);
  return finishBrowsing(answer);
}

bool IconOpening::finishBrowsing(const std::string& answer) {
  if (answer.empty()) return false;
  if (isStored()) state_.current().present = true;
  remind();
  return true;
}

bool IconOpening::isConfirmed() {
  if (!isSpoken() || !facts_.directory.isTrueColor() || state_.process.gScreenBPP >= kManyColorsScreenBits) return true;
  return ConfirmTrueColorOnLowScreen(context_.boxes);
}

void IconOpening::show() {
  {
    const Hourglass hourglass(context_);
    IconContainerRec record = recordOfLoadedIcon(facts_, decoded_.icon, path_);
    if (record.fromMultiIconFile) record.origin = originOf(file_, file_.entry(facts_.chosen));
    if (isStored())
      context_.document.iconsPanel.storeForList(decoded_.icon, record);
    else
      context_.document.arrival.arrive(decoded_.icon, record);
  }
  if (!isSpoken()) return;
  context_.editor.AddHistory(path_);
  context_.display.announce(news::opened(nameOf(state_.current())));
  remind();
}

// Reminders are about the icon on the Editing Area.
void IconOpening::remind() {
  if (isStored()) return;
  const IconContainerRec& record = state_.current();
  if (state_.options.flagMessageIfAlpha && record.hasAlpha) {
    flashAlphaIndicator(state_, context_.display, context_.pump);
    context_.boxes.tell(kAlphaReminder, BoxIcon::Information);
  }
  if (state_.options.alertIfBadHeader && record.isDiscrepant())
    context_.boxes.tell(kHeaderReminder, BoxIcon::Information);
}

}  // namespace gp

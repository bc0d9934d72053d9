#include "files/saving/MultiIconAdd.h"

#include "document/Announcements.h"
#include "document/CurrentIcon.h"
#include "document/Display.h"
#include "document/Document.h"
#include "document/EditState.h"
#include "document/Editor.h"
#include "files/FileForms.h"
#include "files/FileQuestions.h"
#include "files/browser/MultiIconAnswers.h"
#include "files/browser/MultiIconExchange.h"
#include "files/format/IconProbe.h"
#include "files/format/IconWriter.h"
#include "files/format/Rereading.h"
#include "files/saving/MultiIconSaving.h"
#include "files/saving/MultiIconTexts.h"
#include "files/saving/PanelFiles.h"
#include "files/saving/ScratchIcon.h"
#include "platform/gdi/SurfaceOps.h"
#include "platform/ports/MessageBoxes.h"
#include "platform/text/Paths.h"

#include <utility>

namespace gp {
namespace {

constexpr const char* kOwnFile = "Cannot add to original file itself.";
constexpr const char* kNotMade = "Failed to save current icon - preparation";
constexpr const char* kNotLoaded = "Failed to save current icon - load preparation";

std::string depthText(ColorDepth depth) {
  if (depth.hasPalette()) return std::to_string(depth.colors) + "-color";
  return depth.hasAlpha() ? "32 BPP   True-color" : "24 BPP   True-color";
}

// For a file that has changed since it was read as an icon file.
std::string notReadAgainText(const std::string& path, ArraysDefect defect) {
  return (defect == ArraysDefect::NotReadable ? "Failed to open " : "No icon file in ") + path;
}

}  // namespace

MultiIconAdd::MultiIconAdd(FilesContext& context, const std::string& scratchFile)
    : context_(context), state_(context.state), scratchFile_(scratchFile) {}

void MultiIconAdd::run() {
  finishCurrentIcon(context_);
  const std::string path = askToOpen(context_, kIconFilter);
  if (path.empty() || !isInNoContainer(path) || !takesIcon(path)) return;
  if (!addToMultiIconFile(path)) return;
  state_.current().modified = false;
  context_.document.editingArea.UpdatePanelFromCurrent();
  context_.document.editingArea.RefreshStatusBar();
  context_.editor.UpdateCommands();
  context_.display.announce(news::kSaved);
}

bool MultiIconAdd::refuse(const std::string& text) {
  context_.boxes.tell(text);
  return false;
}

bool MultiIconAdd::fail(const std::string& text) {
  tellFailure(context_, text);
  return false;
}

bool MultiIconAdd::isInNoContainer(const std::string& path) {
  const auto container = findContainerOf(state_, path);
  if (!container) return true;
  return refuse(*container == state_.mCurContainer ? kOwnFile : openedInPanelText(*container, SaveInto::Add));
}

bool MultiIconAdd::takesIcon(const std::string& path) {
  if (ProbeIconFile(path, false).kind == 0) return refuse(kAddToNoIcon);
  IconArrays arrays;
  const ArraysDefect defect = readIconArrays(path, ReservedField::MustBeZero, arrays);
  if (defect == ArraysDefect::NotReadable) return fail(addNotReadText(path, defect));
  if (defect != ArraysDefect::None) return refuse(addNotReadText(path, defect));
  traits_ = traitsToWrite(currentIcon(state_), state_.current());
  return findSameIcon(arrays, traits_, -1) < 0 || refuse(sameIconText(traits_, SaveInto::Add));
}

bool MultiIconAdd::addToMultiIconFile(const std::string& path) {
  const auto answer = parseAddAnswer(showBrowser(path));
  if (!answer) return false;
  const std::string target = answer->saveAs ? askForOtherFile(path) : path;
  return !target.empty() && insertEntry(path, answer->index, target);
}

std::string MultiIconAdd::showBrowser(const std::string& path) {
  MultiIconExchange& exchange = context_.multiIcon;
  showCurrentIcon();
  exchange.gMultiIconFile = path;
  exchange.gMultiIconResult.clear();
  exchange.gLoadAndReturn = false;
  exchange.gFileInPanel = false;
  exchange.gAddToFile = true;
  if (context_.forms) context_.forms->showMultiIcon();
  return exchange.gMultiIconResult;
}

void MultiIconAdd::showCurrentIcon() {
  MultiIconExchange& exchange = context_.multiIcon;
  MakeSameSize(state_.PicIcon, exchange.PicCurrIcon);
  BitbltPic(state_.PicIcon, exchange.PicCurrIcon);
  const std::string width = std::to_string(traits_.width);
  exchange.lblCurrIcon = depthText(traits_.depth) + "  Size: " + width + "x" + width;
}

std::string MultiIconAdd::askForOtherFile(const std::string& path) {
  std::string chosen;
  do {
    chosen = askToSave(context_, ParseFileName(path, PathPart::NameWithExtension), kIconFilter, kIconExtension);
    if (chosen.empty()) return {};
  } while (!isInNoContainer(chosen));
  return chosen;
}

std::optional<NewImage> MultiIconAdd::makeImage(const std::string& kept) {
  std::optional<NewImage> image;
  const IconImage icon = currentIcon(state_);
  const ColorDepth depth = depthToWrite(icon, state_.current());
  const ScratchDefect defect = makeNewImage(icon, depth, scratchFile_, kept, image);
  if (defect != ScratchDefect::None) fail(defect == ScratchDefect::NotWritten ? kNotMade : kNotLoaded);
  return image;
}

// Another target gets the entries of the listed file too. It is written once, when everything is ready, so that a
// failure leaves it as it was.
bool MultiIconAdd::insertEntry(const std::string& path, int index, const std::string& target) {
  // Neither file may be used as the scratch file.
  auto image = makeImage(isSameFile(target, scratchFile_) ? target : path);
  if (!image) return false;
  const auto lock = lockToUpdate(context_, path);
  IconArrays arrays;
  if (!lock || !readAgain(path, index, arrays)) return false;
  takeWholeImages(arrays);
  insertImage(arrays, index, std::move(*image));
  const WriteDefect defect = writeUpdated(context_, arrays, path, target);
  return defect == WriteDefect::None || fail(notUpdatedText(defect, target, SaveInto::Add));
}

bool MultiIconAdd::readAgain(const std::string& path, int index, IconArrays& arrays) {
  const ArraysDefect defect = readIconArrays(path, ReservedField::MustBeZero, arrays);
  if (defect == ArraysDefect::NotReadable) return fail(notReadAgainText(path, defect));
  if (defect != ArraysDefect::None) return refuse(notReadAgainText(path, defect));
  if (index > arrays.count()) return refuse(addNoPositionText(path));
  return isAsRead(arrays, context_.multiIcon.listedFile.span()) || refuse(fileChangedText(path));
}

}  // namespace gp

#include "files/saving/MultiIconAdd.h"

#include "document/Display.h"
#include "document/Document.h"
#include "document/EditState.h"
#include "document/Editor.h"
#include "document/Hourglass.h"
#include "files/FileForms.h"
#include "files/FileQuestions.h"
#include "files/browser/MultiIconAnswers.h"
#include "files/browser/MultiIconExchange.h"
#include "files/format/IconProbe.h"
#include "files/format/IconWriter.h"
#include "files/format/Rereading.h"
#include "files/saving/CurrentIcon.h"
#include "files/saving/MultiIconSaving.h"
#include "files/saving/MultiIconTexts.h"
#include "files/saving/PanelFiles.h"
#include "files/saving/ScratchIcon.h"
#include "platform/gdi/SurfaceOps.h"
#include "platform/ports/MessageBoxes.h"
#include "platform/ports/MessagePump.h"
#include "platform/text/Paths.h"

#include <array>
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
std::string targetNotReadText(const std::string& target, ArraysDefect defect) {
  return (defect == ArraysDefect::NotReadable ? "Failed to open " : "No icon file in ") + target;
}

}  // namespace

MultiIconAdd::MultiIconAdd(FilesContext& context, const std::string& scratchFile)
    : context_(context), state_(context.state), scratchFile_(scratchFile) {}

void MultiIconAdd::run() {
  finishCurrentIcon(context_);
  const std::string path = askToOpen(context_, kIconFilter);
  if (path.empty() || !isInNoContainer(path) || !takesIcon(path)) return;
  if (addToMultiIconFile(path).empty()) return;
  state_.current().modified = false;
  context_.document.editingArea.UpdatePanelFromCurrent();
  context_.document.editingArea.RefreshStatusBar();
  context_.editor.UpdateCommands();
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
  return refuse(*container == state_.mCurContainer ? kOwnFile : openedInPanelText(*container));
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

std::string MultiIconAdd::addToMultiIconFile(const std::string& path) {
  const auto answer = parseAddAnswer(showBrowser(path));
  if (!answer) return {};
  const std::string target = answer->saveAs ? askForOtherFile(path) : path;
  return !target.empty() && insertEntry(answer->index, target) ? target : std::string();
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

// The other file starts as a copy of the chosen one.
std::string MultiIconAdd::askForOtherFile(const std::string& path) {
  std::string chosen;
  do {
    chosen = askToSave(context_, ParseFileName(path, PathPart::NameWithExtension), kIconFilter, kIconExtension);
    if (chosen.empty()) return {};
  } while (!isInNoContainer(chosen));
  if (chosen == path || isSameFile(chosen, path)) return chosen;
  return copyFile(path, chosen) ? chosen : std::string();
}

bool MultiIconAdd::copyFile(const std::string& from, const std::string& to) {
  const auto bytes = readFile(from);
  if (!bytes) return fail(targetNotReadText(from, ArraysDefect::NotReadable));
  const FileBytes former = contentToPutBack(to);
  const std::array pieces{bytes->span()};
  if (!rewriteFile(to, pieces, former.span())) return fail(notWrittenText(to, SaveInto::Add));
  context_.pump.pump();
  return true;
}

std::optional<NewImage> MultiIconAdd::makeImage(const std::string& target) {
  std::optional<NewImage> image;
  const IconImage icon = currentIcon(state_);
  const ColorDepth depth = depthToWrite(icon, state_.current());
  const ScratchDefect defect = makeNewImage(icon, depth, scratchFile_, target, image);
  if (defect != ScratchDefect::None) fail(defect == ScratchDefect::NotWritten ? kNotMade : kNotLoaded);
  return image;
}

bool MultiIconAdd::insertEntry(int index, const std::string& target) {
  auto image = makeImage(target);
  IconArrays arrays;
  if (!image || !readTarget(index, target, arrays)) return false;
  insertImage(arrays, index, std::move(*image));
  return write(arrays, target) || fail(notWrittenText(target, SaveInto::Add));
}

bool MultiIconAdd::write(IconArrays& arrays, const std::string& target) {
  const Hourglass hourglass(context_);
  return writeWholeFile(arrays, target, arrays.file.span());
}

bool MultiIconAdd::readTarget(int index, const std::string& target, IconArrays& arrays) {
  const ArraysDefect defect = readIconArrays(target, ReservedField::MustBeZero, arrays);
  if (defect == ArraysDefect::NotReadable) return fail(targetNotReadText(target, defect));
  if (defect != ArraysDefect::None) return refuse(targetNotReadText(target, defect));
  if (index > arrays.count()) return refuse(addNoPositionText(target));
  return isAsRead(arrays, context_.multiIcon.listedFile.span()) || refuse(fileChangedText(target));
}

}  // namespace gp

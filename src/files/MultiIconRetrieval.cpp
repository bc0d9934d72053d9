#include "files/MultiIconRetrieval.h"

#include "document/Compositing.h"
#include "files/IconLoading.h"
#include "files/PanelFiles.h"
#include "platform/gdi/SurfaceOps.h"

#include <utility>

namespace gp {
namespace {

constexpr const char* kRetrievalFailed = "Retrieval failed";

bool isLoadable(const IconFacts& facts) { return isIconSize(facts.width) && facts.height == facts.width; }

}  // namespace

MultiIconRetrieval::MultiIconRetrieval(FilesContext& context, IconForms& forms, std::string file, bool intoEditingArea)
    : context_(context),
      state_(context.state),
      forms_(forms),
      file_(std::move(file)),
      intoEditingArea_(intoEditingArea),
      firstContainer_(context.state.mCurContainer) {}

std::string MultiIconRetrieval::run() {
  const MultiIconExchange& exchange = state_.multiIcon;
  std::string lastAnswer;
  do {
    showBrowser();
    const auto answer = parseLoadAnswer(exchange.gMultiIconResult);
    if (!answer) break;
    if (!isLoadable(answer->facts)) {
      context_.boxes.tell(kRetrievalFailed, BoxIcon::Exclamation);
      break;
    }
    if (!goTo(answer->container)) continue;
    load(*answer);
    lastAnswer = exchange.gMultiIconResult;
  } while (exchange.gLoadAndReturn);
  return lastAnswer;
}

// Looking at entries fills gAlphaValues; the Current Icon's own come back.
void MultiIconRetrieval::showBrowser() {
  MultiIconExchange& exchange = state_.multiIcon;
  exchange.gMultiIconFile = file_;
  exchange.gMultiIconResult = std::to_string(state_.mCurContainer);
  exchange.gAddToFile = false;
  exchange.gFileInPanel = findContainerOf(state_, file_).has_value();
  AlphaMatrix alphaBefore = state_.gAlphaValues;
  forms_.showMultiIcon();
  alpha_ = std::exchange(state_.gAlphaValues, std::move(alphaBefore));
  image_ = state_.picImageTemp;
  mask_ = state_.picMaskTemp;
}

// False when the user wants to keep what is in one of the two containers. What was in the first one is the affair of
// who called the browser.
bool MultiIconRetrieval::goTo(int container) {
  if (container != state_.mCurContainer) context_.editor.SwitchContainer(container);
  if (container != state_.mCurContainer) return false;
  bool proceed = true;
  if (container != firstContainer_ && state_.IsIconChanged()) context_.editor.AskSaveCurrent("", proceed);
  return proceed;
}

void MultiIconRetrieval::load(const LoadAnswer& answer) {
  Editor& editor = context_.editor;
  editor.clearRegion();
  editor.clearUndoHistory();
  state_.current().size = static_cast<std::int16_t>(answer.facts.width);
  editor.SizeEditSurfaces(answer.facts.width);
  editor.SizePanelSurfaces(answer.facts.width);
  state_.gAlphaValues = std::move(alpha_);
  describeLoadedIcon(state_, answer.facts, file_);
  if (!keepLoadedAlpha(state_)) context_.boxes.tell(kAlphaNotKept, BoxIcon::Exclamation);
  intoEditingArea_ ? showInEditingArea() : showInContainer();
  editor.UpdateCommands();
  editor.AddHistory(file_);
}

void MultiIconRetrieval::showInEditingArea() {
  BitbltPic(image_, state_.picImage);
  BitbltPic(mask_, state_.picMask);
  showLoadedIcon(context_.editor);
}

void MultiIconRetrieval::showInContainer() {
  const auto container = static_cast<std::size_t>(state_.mCurContainer);
  state_.current().present = false;
  BitbltPic(image_, state_.picPanelImage.at(container));
  BitbltPic(mask_, state_.picPanelMask.at(container));
  composeIcon(image_, mask_, state_.picPanelIcon.at(container));
  context_.display.changed(DisplayPart::IconsPanel);
}

}  // namespace gp

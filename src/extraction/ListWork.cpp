#include "extraction/ListWork.h"

#include "document/Display.h"
#include "document/Document.h"
#include "document/EditState.h"
#include "document/Editor.h"
#include "document/Hourglass.h"
#include "platform/ports/MessagePump.h"
#include "platform/scope/FlagFor.h"

namespace gp {
namespace {

constexpr int kHidden = -1;
constexpr int kPercent = 100;

}  // namespace

bool ListWork::run(int count, const std::function<bool(int)>& step) {
  isStopped_ = false;
  bool isWhole = false;
  {
    const FlagFor running(isRunning_);
    const IconsPanel::Hold hold(context_.document.iconsPanel);
    const Hourglass hourglass(context_);
    context_.editor.UpdateCommands();
    context_.display.changed(DisplayPart::SidePanel);
    isWhole = runSteps(count, step);
    showProgress(kHidden);
  }
  context_.editor.UpdateCommands();
  context_.display.changed(DisplayPart::SidePanel);
  return isWhole;
}

bool ListWork::runSteps(int count, const std::function<bool(int)>& step) {
  letEventsIn();
  for (int i = 0; i < count; ++i) {
    if (isStopped_ || !step(i)) return false;
    showProgress(static_cast<int>((i + 1LL) * kPercent / count));
    if (Clock::now() - lastEvents_ >= interval_) letEventsIn();
  }
  return !isStopped_;
}

void ListWork::showProgress(int percent) {
  context_.state.screen.progressPercent = percent;
  context_.display.changed(DisplayPart::StatusBar);
}

void ListWork::letEventsIn() {
  context_.pump.pump();
  lastEvents_ = Clock::now();
}

}  // namespace gp

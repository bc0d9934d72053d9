#include "files/browser/MultiIconRetrieval.h"

#include "document/Announcements.h"
#include "document/Containers.h"
#include "document/CurrentIconGuard.h"
#include "document/Display.h"
#include "document/Document.h"
#include "document/EditState.h"
#include "document/Editor.h"
#include "files/FileForms.h"
#include "files/browser/MultiIconExchange.h"
#include "files/opening/IconLoading.h"
#include "files/saving/PanelFiles.h"
#include "platform/ports/MessageBoxes.h"

#include <utility>

namespace gp {
namespace {

constexpr const char* kRetrievalFailed = "Retrieval failed";

bool isLoadable(const IconFacts& facts) { return isIconSize(facts.width, facts.height); }

}  // namespace

MultiIconRetrieval::MultiIconRetrieval(FilesContext& context, std::string file, bool intoEditingArea)
    : context_(context),
      state_(context.state),
      file_(std::move(file)),
      intoEditingArea_(intoEditingArea),
      proposed_(context.state.mCurContainer),
      settled_(context.state.mCurContainer) {}

void MultiIconRetrieval::propose(int container) {
  proposed_ = container;
  settled_.reset();
}

std::string MultiIconRetrieval::run() {
  const MultiIconExchange& exchange = context_.multiIcon;
  std::string lastAnswer;
  do {
    showBrowser();
    const auto answer = parseLoadAnswer(exchange.gMultiIconResult);
    if (!answer) break;
    if (!isLoadable(answer->facts)) {
      context_.boxes.tell(kRetrievalFailed, BoxIcon::Exclamation);
      break;
    }
    const bool mayLoad = goTo(answer->container);
    proposed_ = state_.mCurContainer;
    if (!mayLoad) continue;
    load(*answer);
    lastAnswer = exchange.gMultiIconResult;
  } while (exchange.gLoadAndReturn);
  return lastAnswer;
}

void MultiIconRetrieval::showBrowser() {
  MultiIconExchange& exchange = context_.multiIcon;
  exchange.gMultiIconFile = file_;
  exchange.gMultiIconResult = std::to_string(proposed_);
  exchange.gAddToFile = false;
  exchange.gFileInPanel = findContainerOf(state_, file_).has_value();
  if (context_.forms) context_.forms->showMultiIcon();
}

// False when the user keeps the icon of one of the two containers.
bool MultiIconRetrieval::goTo(int container) {
  if (container != state_.mCurContainer) context_.document.iconsPanel.SwitchContainer(container);
  if (container != state_.mCurContainer) return false;
  return container == settled_ || mayCurrentIconGo(context_);
}

void MultiIconRetrieval::load(const LoadAnswer& answer) {
  const IconImage& icon = context_.multiIcon.chosenIcon;
  IconContainerRec record = recordOfLoadedIcon(answer.facts, icon, file_);
  record.origin = context_.multiIcon.chosenOrigin;
  record.present = intoEditingArea_;
  if (intoEditingArea_)
    context_.document.arrival.arrive(icon, record);
  else
    context_.document.iconsPanel.storeForList(icon, record);
  context_.editor.UpdateCommands();
  context_.editor.AddHistory(file_);
  const auto container = static_cast<std::size_t>(answer.container);
  context_.display.announce(news::container(answer.container, nameOf(state_.mIconRecs.at(container))));
}

}  // namespace gp

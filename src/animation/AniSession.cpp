#include "animation/AniSession.h"

#include "document/Display.h"
#include "document/EditState.h"

namespace gp {

AniSession::AniSession(const FilesContext& context, IconSaver& saver, Timer& timer)
    : context_(context), saver_(saver), test_(frames_, timer, context.display) {}

void AniSession::enter() {
  context_.state.screen.aniContainerVisible = true;
  context_.display.changed(DisplayPart::Panel);
}
void AniSession::openFile(const std::string&) {}
void AniSession::end() {}
bool AniSession::mayExit() { return true; }
void AniSession::paneHidden() {}
void AniSession::cmdANI(int) {}
bool AniSession::isEnabled(int button) const { return button <= 4; }
void AniSession::filmPress() {}
void AniSession::filmRelease(int, int) {}
void AniSession::goTo(int) {}
void AniSession::scrollTo(int value) { film_.scrollTo(value); }
void AniSession::setVisibleHeight(int height) { film_.setVisibleHeight(height); }
void AniSession::restorePane() { paneSize_ = AniPaneSize::Normal; }
std::string AniSession::frameLabel() const { return {}; }
std::string AniSession::jiffiesLabel() const { return {}; }

}  // namespace gp

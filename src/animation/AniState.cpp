#include "animation/AniState.h"

#include "document/Context.h"
#include "document/Display.h"
#include "document/EditState.h"

#include <filesystem>

namespace gp {
namespace {

std::string pathToShow(const EditState& state, const AniState& ani) {
  if (!state.screen.aniContainerVisible) return state.current().used ? state.current().path.trimmed() : std::string();
  const std::string notice = ani.lossesNotice();
  if (notice.empty()) return ani.mAniPath;
  // Without the folder, there is room for name and notice.
  return std::filesystem::path(ani.mAniPath).filename().string() + "    " + notice;
}

}  // namespace

void AniState::replaceFilm(AniFrames newFrames, AniMode mode, const std::string& path) {
  frames = std::move(newFrames);
  mAniMode = mode;
  mAniPath = path;
  mAniChanged = false;
  losses = {};
  ++filmSerial;
  film.redraw(frames);
  film.scrollTo(0);
}

void AniState::framesChanged() {
  mAniChanged = true;
  film.redraw(frames);
}

std::string AniState::lossesNotice() const { return losses.notice(); }

void showAniPath(const Context& context, const AniState& ani) {
  context.state.screen.lblStatusPanel.at(static_cast<std::size_t>(StatusPanel::Path)) = pathToShow(context.state, ani);
  context.display.changed(DisplayPart::StatusBar);
}

}  // namespace gp

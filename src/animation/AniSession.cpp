#include "animation/AniSession.h"

#include "animation/AniTexts.h"
#include "document/CurrentIconGuard.h"
#include "document/Display.h"
#include "document/EditState.h"
#include "document/Editor.h"
#include "document/PanelNumbers.h"
#include "platform/ports/MessageBoxes.h"
#include "platform/ports/MessagePump.h"
#include "platform/scope/FlagFor.h"

namespace gp {
namespace {

constexpr const char* kUntitled = "Untitled";
constexpr const char* kOneFrame = "As there is only a single frame, animation not feasible.";
constexpr const char* kIntervalSet = "Jiffies set (for all frames)";
constexpr int kTestButton = 8;
// Intended: a click on this cell does nothing.
constexpr int kDeafCell = 50;

}  // namespace

struct AniSession::Button {
  void (AniSession::*body)();
  bool (AniSession::*isEnabled)() const;
  bool scrolls = false;           // scrolls the current frame into view afterwards
  const char* refusal = nullptr;  // shown where a disabled button is clicked all the same
};

// cmdANI(0) to cmdANI(19).
const std::array<AniSession::Button, AniSession::kButtonCount>& AniSession::buttons() {
  using S = AniSession;
  static constexpr std::array<Button, kButtonCount> kButtons{{
      {&S::closePane, &S::isAlways},
      {&S::resizePane, &S::isAlways},
      {&S::minimizePane, &S::isAlways},
      {&S::create, &S::isAlways},
      {&S::open, &S::isAlways},
      {&S::save, &S::hasFrames, false, kNoFrames},
      {&S::closePane, &S::isAlways},
      {&S::setInterval, &S::hasFrames},
      {&S::startOrStopTest, &S::hasFrames},
      {&S::showProperty, &S::hasFrames},
      {&S::takeFromEditingArea, &S::hasFrames},
      {&S::putToEditingArea, &S::hasFrames},
      {&S::addBelow, &S::hasFrames, true},
      {&S::addAbove, &S::hasFrames, true},
      {&S::removeFrame, &S::hasFrames, true},
      {&S::loadIcon, &S::hasFrames},
      {&S::shiftUp, &S::hasFrameAbove, true},
      {&S::shiftDown, &S::hasFrameBelow, true},
      {&S::goUp, &S::hasFrameAbove, true},
      {&S::goDown, &S::hasFrameBelow, true},
  }};
  return kButtons;
}

AniSession::AniSession(const FilesContext& context, Timer& timer)
    : context_(context), test_(ani_.frames, timer, context.display), files_(context, ani_), exchange_(context, ani_) {}

// The pane.

void AniSession::enter() {
  if (isBusy_) return;
  const FlagFor busy(isBusy_);
  showPane();
}

void AniSession::openFile(const std::string& path) {
  if (isBusy_) return;
  const FlagFor busy(isBusy_);
  test_.stop();
  if (!files_.mayFramesGo() || !showPane()) return;
  files_.open(path);
  context_.display.changed(DisplayPart::AniPane);
}

// Returns false when the user keeps the Current Icon on the screen.
bool AniSession::showPane() {
  if (!context_.state.screen.aniContainerVisible) {
    if (!mayCurrentIconGo(context_)) return false;
    context_.editor.closePanels();
    setPaneVisible(true);
  }
  setPaneSize(AniPaneSize::Normal);
  return true;
}

void AniSession::setPaneVisible(bool isVisible) {
  context_.state.screen.aniContainerVisible = isVisible;
  showAniPath(context_, ani_);
  context_.display.changed(DisplayPart::Panel);
}

void AniSession::setPaneSize(AniPaneSize size) {
  paneSize_ = size;
  context_.display.changed(DisplayPart::AniPane);
}

void AniSession::end() {
  reset();
  setPaneVisible(false);
  context_.display.changed(DisplayPart::AniPane);
}

bool AniSession::mayExit() {
  test_.stop();
  return files_.mayFramesGo();
}

void AniSession::paneHidden() {
  test_.stop();
  showAniPath(context_, ani_);
}

void AniSession::restorePane() { setPaneSize(AniPaneSize::Normal); }

void AniSession::reset() {
  test_.stop();
  ani_.replaceFilm({}, AniMode::NoFrames, {});
  showAniPath(context_, ani_);
}

// Buttons.

void AniSession::cmdANI(int button) {
  if (button < 0 || button >= kButtonCount || isBusy_) return;
  const FlagFor busy(isBusy_);
  if (button != kTestButton) test_.stop();
  click(buttons()[static_cast<std::size_t>(button)]);
  context_.display.changed(DisplayPart::AniPane);
}

void AniSession::click(const Button& button) {
  if ((this->*button.isEnabled)())
    (this->*button.body)();
  else if (button.refusal)
    context_.boxes.tell(button.refusal);
  if (button.scrolls) ani_.film.scrollIntoView(ani_.frames.current());
}

bool AniSession::isEnabled(int button) const {
  return (this->*buttons().at(static_cast<std::size_t>(button)).isEnabled)();
}

void AniSession::closePane() {
  if (!files_.mayFramesGo()) return;
  setPaneVisible(false);
  context_.pump.pump();
}

void AniSession::resizePane() {
  paneSize_ = paneSize_ == AniPaneSize::Normal ? AniPaneSize::Compact : AniPaneSize::Normal;
}

void AniSession::minimizePane() { paneSize_ = AniPaneSize::Minimized; }

void AniSession::create() {
  const unsigned serial = ani_.filmSerial;
  if (!files_.mayFramesGo() || ani_.filmSerial != serial) return;
  FilmFrame frame;
  frame.jiffies = ani_.choices.jiffies;
  ani_.replaceFilm(AniFrames({frame}), AniMode::Made, kUntitled);
  ani_.choices.hotspotX = ani_.choices.hotspotY = 0;
  showAniPath(context_, ani_);
}

void AniSession::open() { files_.open(); }
void AniSession::save() { files_.save(); }

void AniSession::setInterval() {
  ani_.mAniChanged = true;
  if (ani_.choices.singly) return ani_.frames.setJiffiesOfCurrent(ani_.choices.jiffies);
  ani_.frames.setJiffies(ani_.choices.jiffies);
  context_.boxes.tell(kIntervalSet);
}

void AniSession::startOrStopTest() {
  if (test_.isRunning()) return test_.stop();
  if (ani_.frames.count() < 2) return context_.boxes.tell(kOneFrame);
  test_.start();
}

void AniSession::showProperty() { context_.boxes.tell(framePropertyText(ani_.frames)); }

void AniSession::takeFromEditingArea() { exchange(&AniExchange::fromEditingArea); }
void AniSession::putToEditingArea() { exchange(&AniExchange::toEditingArea); }

// A question about the Current Icon can lead to Save As, which closes the pane.
void AniSession::exchange(void (AniExchange::*act)()) {
  const ScreenState& screen = context_.state.screen;
  const bool wasVisible = screen.aniContainerVisible;
  const unsigned serial = ani_.filmSerial;
  (exchange_.*act)();
  const bool isClosed = !screen.aniContainerVisible && screen.mActivePanel == kColorPanel;
  if (wasVisible && isClosed && ani_.filmSerial == serial) setPaneVisible(true);
}

void AniSession::loadIcon() { exchange_.LoadIconFileToFrame(); }

void AniSession::addBelow() { add(&AniFrames::addBelow); }
void AniSession::addAbove() { add(&AniFrames::addAbove); }

void AniSession::add(void (AniFrames::*addFrame)()) {
  if (ani_.frames.isFull()) return context_.boxes.tell(kFullFilm);
  (ani_.frames.*addFrame)();
  ani_.framesChanged();
}

void AniSession::removeFrame() {
  if (ani_.frames.count() == 1) return reset();
  ani_.frames.removeCurrent();
  ani_.framesChanged();
}

void AniSession::shiftUp() { shift(&AniFrames::shiftUp); }
void AniSession::shiftDown() { shift(&AniFrames::shiftDown); }

void AniSession::shift(void (AniFrames::*shiftFrame)()) {
  (ani_.frames.*shiftFrame)();
  ani_.framesChanged();
}

void AniSession::goUp() { select(ani_.frames.current() - 1); }
void AniSession::goDown() { select(ani_.frames.current() + 1); }

// The film.

void AniSession::select(int n) {
  if (n < 1 || n > ani_.frames.count()) return;
  const int former = ani_.frames.current();
  ani_.frames.select(n);
  ani_.film.moveSelection(ani_.frames, former, n);
  context_.display.changed(DisplayPart::AniPane);
}

void AniSession::filmPress() { test_.stop(); }

void AniSession::filmRelease(int x, int y) {
  if (isBusy_ || !ani_.film.picFilm().contains(x, y)) return;
  if (const int n = AniFilm::frameAt(y); n != kDeafCell) select(n);
}

void AniSession::goTo(int n) {
  if (isBusy_) return;
  test_.stop();
  select(n);
  ani_.film.scrollIntoView(ani_.frames.current());
  context_.display.changed(DisplayPart::AniPane);
}

void AniSession::scrollTo(int value) {
  ani_.film.scrollTo(value);
  context_.display.changed(DisplayPart::AniPane);
}

// A pane of another size shows the current frame.
void AniSession::setVisibleHeight(int height) {
  if (height == ani_.film.largeStep()) return;
  ani_.film.setVisibleHeight(height);
  ani_.film.scrollIntoView(ani_.frames.current());
}

std::string AniSession::frameLabel() const { return aniFrameLabel(ani_.frames); }
std::string AniSession::jiffiesLabel() const { return aniJiffiesLabel(ani_.frames); }

}  // namespace gp

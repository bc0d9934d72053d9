#include "files/cursor/CursorFiles.h"

#include "document/AlphaIndicator.h"
#include "document/Announcements.h"
#include "document/Containers.h"
#include "document/Display.h"
#include "document/Document.h"
#include "document/EditState.h"
#include "document/Editor.h"
#include "document/Hourglass.h"
#include "document/Messages.h"
#include "document/PanelNumbers.h"
#include "files/FileQuestions.h"
#include "files/cursor/CursorLoading.h"
#include "files/format/IconFile.h"
#include "files/opening/IconMessages.h"
#include "files/saving/CurrentIcon.h"

namespace gp {
namespace {

constexpr const char* kCursorFilter = "Cursor files (*.cur)|*.cur|";
constexpr const char* kAlphaReminder =
    "Reminder:  The original cursor is with Alpha Channel.  To view the icon with\n"
    "alpha effects, or to edit the alpha values, invoke the Alpha Channel screen.\n"
    "\n";

bool isInside(int coordinate) { return coordinate >= 0 && coordinate < kCursorSide; }

}  // namespace

CursorFiles::CursorFiles(const FilesContext& context)
    : context_(context), state_(context.state), mark_(context, context.document.editingArea) {}

// Opening.

void CursorFiles::doMnuFileOpenCursor() {
  openChosenFile(context_, kCursorFilter, [this](const std::string& path, bool& ok) { doOpenCursorFile(path, ok); });
}

void CursorFiles::doOpenCursorFile(const std::string& path, bool& ok) {
  ok = false;
  const auto file = readIconFile(path);
  const CursorFacts facts = file ? probeCursor(*file) : CursorFacts{};
  if (!facts.valid) return context_.boxes.tell(path + kInvalidCursorFile, BoxIcon::Exclamation);
  const DecodedIcon decoded = loadCursorImage(*file);
  if (!decoded.isRead()) return context_.boxes.tell(kCursorNotLoaded, BoxIcon::Exclamation);
  if (!facts.depth.isShown()) return context_.boxes.tell(path + kStrangeTrueColor, BoxIcon::Information);
  {
    const Hourglass hourglass(context_);
    context_.document.arrival.arrive(decoded.icon, recordOfLoadedCursor(facts, decoded.icon, path));
  }
  if (state_.screen.mActivePanel == kCursorPanel) setSpot(startOf(state_.current()));
  ok = true;
  context_.display.announce(news::opened(nameOf(state_.current())));
  remindOfAlpha();
}

void CursorFiles::remindOfAlpha() {
  if (!state_.options.flagMessageIfAlpha || !state_.current().hasAlpha) return;
  flashAlphaIndicator(state_, context_.display, context_.pump);
  context_.boxes.tell(std::string(kAlphaReminder) + kReminderHint, BoxIcon::Information);
}

// The Panel.

void CursorFiles::openPanel() {
  setSpot(startOf(state_.current()));
  context_.editor.showPanel(kCursorPanel);
  showHotspot();
}

CursorFiles::Spot CursorFiles::startOf(const IconContainerRec& record) {
  const bool isKnown = record.isCursor && isInside(record.hotspotX) && isInside(record.hotspotY);
  return isKnown ? Spot{record.hotspotX, record.hotspotY} : Spot{};
}

// Other subsystems also change the Current Icon, without notifying this class.
CursorFiles::Spot CursorFiles::spot() const {
  return !spotOf_ || *spotOf_ == state_.iconSerial ? spot_ : startOf(state_.current());
}

void CursorFiles::setSpot(Spot spot) {
  spot_ = spot;
  spotOf_ = state_.iconSerial;
  context_.display.changed(DisplayPart::SidePanel);
}

void CursorFiles::setHotspotX(int x) { setSpot({isInside(x) ? x : hotspotX(), hotspotY()}); }
void CursorFiles::setHotspotY(int y) { setSpot({hotspotX(), isInside(y) ? y : hotspotY()}); }

void CursorFiles::setHotspotByClick(int x, int y) {
  if (mark_.isFlashing() || !isInside(x) || !isInside(y)) return;
  setSpot({x, y});
  showHotspot();
}

void CursorFiles::showHotspot() {
  if (state_.screen.mActivePanel == kCursorPanel && state_.current().present)
    mark_.FlashHotspot(hotspotX(), hotspotY());
}

void CursorFiles::revealOriginalHotspot() {
  const IconContainerRec& record = state_.current();
  if (record.present && record.isCursor) mark_.FlashHotspot(record.hotspotX, record.hotspotY);
}

void CursorFiles::WriteCursorFile(const std::string& path, bool& ok) const {
  ok = writeCurrentCursor(state_, hotspotX(), hotspotY(), path);
}

}  // namespace gp

#include "shell/CommandNeeds.h"

#include "document/EditState.h"
#include "document/Messages.h"
#include "document/PanelNumbers.h"
#include "effects/Resize.h"
#include "platform/ports/Clipboard.h"
#include "shell/Shell.h"

#include <algorithm>
#include <iterator>

namespace gp::needs {

namespace {

constexpr const char* kMet = nullptr;
constexpr const char* kQuietly = "";
constexpr int kCursorSize = 32;

const IconContainerRec& record(const Shell& shell) { return shell.state().current(); }

// For needs of an icon: without an icon, returns the message for that first.
const char* iconWith(const Shell& shell, bool isMet, const char* refusal = kQuietly) {
  if (!record(shell).present) return kNoIconYet;
  return isMet ? kMet : refusal;
}

const char* quietly(bool isMet) { return isMet ? kMet : kQuietly; }

}  // namespace

const char* always(const Shell&, int) { return kMet; }
const char* icon(const Shell& shell, int) { return iconWith(shell, true); }
const char* iconToResize(const Shell& shell, int) { return record(shell).present ? kMet : kNotOfSuitableSize.text; }
const char* iconQuietly(const Shell& shell, int) { return quietly(record(shell).present); }

const char* multiIconFile(const Shell& shell, int) { return iconWith(shell, record(shell).fromMultiIconFile); }
const char* singleIconFile(const Shell& shell, int) { return iconWith(shell, !record(shell).fromMultiIconFile); }
const char* cursorSize(const Shell& shell, int) {
  return iconWith(shell, record(shell).size == kCursorSize, "For cursor of 32x32 only");
}
const char* alpha(const Shell& shell, int) { return iconWith(shell, record(shell).hasAlpha); }
const char* cursor(const Shell& shell, int) { return iconWith(shell, record(shell).isCursor); }
const char* discrepancy(const Shell& shell, int) { return iconWith(shell, record(shell).isDiscrepant()); }

const char* colorPicker(const Shell& shell, int) {
  const ScreenState& screen = shell.state().screen;
  return iconWith(shell, screen.mActivePanel == kColorPanel && screen.colorFrame == ColorFrame::Chart256);
}

const char* region(const Shell& shell, int) { return quietly(record(shell).present && shell.state().mRegionExists); }
const char* noRegion(const Shell& shell, int) { return quietly(!shell.state().mRegionExists); }
const char* undoStep(const Shell& shell, int) { return iconWith(shell, shell.drawing().history.canUndo()); }
const char* redoStep(const Shell& shell, int) { return iconWith(shell, shell.drawing().history.canRedo()); }

const char* clipboardPicture(const Shell& shell, int) {
  if (shell.state().screen.mActivePanel == kIconsListPanel) return kQuietly;
  return shell.ports().clipboard.hasImage() ? kMet : kNoClipboardImage;
}

const char* otherContainer(const Shell& shell, int index) {
  return iconWith(shell, index != shell.state().mCurContainer, "Cannot copy to current container itself");
}
const char* otherUsedContainer(const Shell& shell, int index) {
  if (!shell.state().mIconRecs.at(static_cast<std::size_t>(index)).used) return "Cannot copy from empty container";
  return quietly(index != shell.state().mCurContainer);
}

const char* reasonWithoutBox(Need need) {
  struct Reason {
    Need need;
    const char* text;
  };
  static constexpr Reason kReasons[] = {
      {iconQuietly, kNoIconYet},
      {multiIconFile, "Icon is not from a multi-icon file"},
      {singleIconFile, "Icon is from a multi-icon file"},
      {alpha, "Icon has no alpha channel"},
      {cursor, "Icon is not from a cursor"},
      {discrepancy, "Headers agree"},
      {colorPicker, "Only with the 256-color palette"},
      {region, "No region"},
      {noRegion, "Not while there is a region"},
      {undoStep, "Nothing to undo"},
      {redoStep, "Nothing to redo"},
      {clipboardPicture, "Not while the Icons List is open"},
      {otherUsedContainer, "This is the current container"},
  };
  const auto* row = std::ranges::find(kReasons, need, &Reason::need);
  return row == std::end(kReasons) ? "Not available" : row->text;
}

}  // namespace gp::needs

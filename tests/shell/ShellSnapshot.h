// Everything in the program that a command can change, by name, for comparison with a later snapshot or with that of
// another program. Paths in the program's folder are written without the folder.
#pragma once

#include "document/EditState.h"
#include "shell/Shell.h"
#include "support/FakeClipboard.h"
#include "support/TempFolder.h"

#include <filesystem>
#include <map>
#include <sstream>
#include <string>
#include <vector>

namespace gp::test {

using Snapshot = std::map<std::string, std::string>;

class SnapshotMaker {
 public:
  SnapshotMaker(Shell& shell, const FakeClipboard& clipboard, const TempFolder& folder)
      : shell_(shell), state_(shell.state()), clipboard_(clipboard), folder_(folder) {}

  Snapshot make() {
    snapshot_.clear();
    addIcon();
    for (std::size_t i = 0; i < kContainerCount; ++i) addContainer(i);
    addScreen();
    addOptions();
    addDrawing();
    addRest();
    return snapshot_;
  }

  // A text without the path of the program's folder.
  std::string withoutFolder(std::string text) const {
    const std::string path = folder_.path();
    for (std::size_t at = text.find(path); at != std::string::npos; at = text.find(path)) text.erase(at, path.size());
    return text;
  }

 private:
  template <class... Values>
  void put(const std::string& name, const Values&... values) {
    std::ostringstream text;
    ((text << values << '|'), ...);
    snapshot_[name] = withoutFolder(text.str());
  }
  // The drawing, and the picture to which it is reset.
  void putSurface(const std::string& name, Surface surface) {
    std::string bytes = std::to_string(surface.width()) + "x" + std::to_string(surface.height());
    for (int round = 0; round < 2; ++round, surface.clearDrawing())
      bytes.append(reinterpret_cast<const char*>(surface.pixels().data()), surface.pixels().size_bytes());
    snapshot_[name] = bytes;
  }
  void putAlpha(const std::string& name, const AlphaMatrix& alpha) {
    std::string bytes = std::to_string(alpha.width()) + "x" + std::to_string(alpha.height());
    for (int y = 0; y < alpha.height(); ++y)
      for (int x = 0; x < alpha.width(); ++x) bytes += static_cast<char>(alpha.at(x, y));
    snapshot_[name] = bytes;
  }

  void addIcon() {
    putSurface("picImage", state_.picImage);
    putSurface("picMask", state_.picMask);
    putSurface("picAlpha", state_.picAlpha);
    putSurface("PicIcon", state_.PicIcon);
    putSurface("picDisp", state_.picDisp);
    putSurface("PicGrid", state_.PicGrid);
    put("iconSerial", state_.iconSerial);
    put("magnification and grid", state_.gMagnification, state_.gGridColor);
    put("container", state_.mCurContainer);
  }
  void addContainer(std::size_t i) {
    const std::string number = " " + std::to_string(i);
    putSurface("picPanelImage" + number, state_.picPanelImage.at(i));
    putSurface("picPanelMask" + number, state_.picPanelMask.at(i));
    putSurface("picPanelIcon" + number, state_.picPanelIcon.at(i));
    putAlpha("mAlphaRecs" + number, state_.mAlphaRecs.at(i));
    const IconContainerRec& r = state_.mIconRecs.at(i);
    put("record" + number, r.seq, r.used, r.sourceLabel.trimmed(), r.dirColors, r.bitCount, r.hasAlpha, r.bihColors,
        r.bihBitCount, r.present, r.size, r.path.trimmed(), r.fromMultiIconFile, r.multiIconIndex, r.isCursor,
        r.hotspotX, r.hotspotY, r.neverSaved, r.modified);
  }
  void addScreen() {
    const ScreenState& s = state_.screen;
    for (std::size_t i = 0; i < kStatusPanelCount; ++i) put("lblStatusPanel " + std::to_string(i), s.lblStatusPanel[i]);
    for (std::size_t i = 0; i < kReadoutCount; ++i) put("lblDispXY " + std::to_string(i), s.lblDispXY[i]);
    put("indicators", s.imgAlphaOnStatusPanel, s.progressPercent, s.pixelRgbVisible, s.hourglass, s.editingPointer);
    put("tools shown", s.fraTools[0], s.fraTools[1], s.brushIndex);
    put("panel", s.mActivePanel, s.aniContainerVisible);
    put("colour panel", static_cast<int>(s.colorFrame), s.imgColorPickerVisible, s.fraColorMixerVisible);
  }
  void addOptions() {
    const Options& o = state_.options;
    put("options", o.grid, o.startScreen, o.useEnlargedEditingArea, o.displayPixelRgb, o.tooltip256ColorChart,
        o.updateOnlyEditingArea, o.promptToSave, o.remindIfBitmap, o.flagMessageIfAlpha, o.alertIfBadHeader);
  }
  void addDrawing() {
    const Drawing& drawing = shell_.drawing();
    put("tool", drawing.tools.selectedTool(), shell_.colour().selection.isPickerSelected());
    put("colour", state_.mCurrentColor);
    put("undo", drawing.history.undoCount(), drawing.history.redoCount(), drawing.history.undoSeq());
    const DrawRect& at = drawing.regions.pixels();
    put("region", static_cast<int>(drawing.regions.phase()), state_.mRegionExists, state_.mPendingPaint,
        drawing.regions.isFloating(), at.x1, at.y1, at.x2, at.y2);
    putSurface("region's image", drawing.regions.content().image);
    putSurface("region's mask", drawing.regions.content().mask);
  }
  void addRest() {
    put("clipboard", clipboard_.held.has_value(), clipboard_.clears);
    if (clipboard_.held) putSurface("clipboard's picture", clipboard_.held->corner);
    for (int i = 0; i <= shell_.fileHistory().limit(); ++i)
      put("history " + std::to_string(i), shell_.fileHistory().path(i));
    put("process", state_.process.mLastFolder, state_.process.mCommandFile);
    for (const auto& entry : std::filesystem::directory_iterator(folder_.path())) {
      const std::string name = entry.path().filename().string();
      snapshot_["file " + name] = entry.is_directory() ? "folder" : withoutFolder(folder_.read(name));
    }
  }

  Shell& shell_;
  const EditState& state_;
  const FakeClipboard& clipboard_;
  const TempFolder& folder_;
  Snapshot snapshot_;
};

// The names of everything that differs.
inline std::vector<std::string> differences(const Snapshot& before, const Snapshot& after) {
  std::vector<std::string> names;
  for (const auto& [name, value] : before) {
    const auto found = after.find(name);
    if (found == after.end() || found->second != value) names.push_back(name);
  }
  for (const auto& [name, value] : after)
    if (!before.contains(name)) names.push_back(name);
  return names;
}

}  // namespace gp::test

// The files room over the real rooms to its left, with scripted ports, a temporary folder, and forms in which the user
// does what a test defines.
#pragma once

#include "document/Containers.h"
#include "files/Decoding.h"
#include "files/FileForms.h"
#include "files/Files.h"
#include "files/browser/MultiIconExchange.h"
#include "support/Rooms.h"

#include <functional>
#include <gtest/gtest.h>

namespace gp::test {

// By default the user closes the browser at once.
class FakeFileForms : public FileForms {
 public:
  std::function<void()> onMultiIcon, onHeaderDiff;
  int multiIcons = 0, headerDiffs = 0;

  explicit FakeFileForms(MultiIconExchange& exchange) : exchange_(exchange) {}
  void showMultiIcon() override {
    ++multiIcons;
    if (onMultiIcon) return onMultiIcon();
    exchange_.gMultiIconResult.clear();
    exchange_.gLoadAndReturn = false;
  }
  void showHeaderDiff() override {
    ++headerDiffs;
    if (onHeaderDiff) onHeaderDiff();
  }

 private:
  MultiIconExchange& exchange_;
};

// A picture whose colours are all in the 16-colour chart.
inline Picture blackAndWhitePicture(int size) {
  Picture picture = anyPicture(size, 1);
  picture.palette = {{0, 0, 0}, {255, 255, 255}};
  return picture;
}

class FilesTest : public testing::Test {
 protected:
  IconFolder folder;
  Rooms rooms;
  EditState& state = rooms.state;
  RoomsEditor& editor = rooms.editor;
  RecordingDisplay& display = rooms.display;
  ScriptedBoxes& boxes = rooms.boxes;
  ScriptedPump& pump = rooms.pump;
  ScriptedDialogs& dialogs = rooms.dialogs;
  Files files{rooms.context, rooms.document, rooms.drawing, rooms.dialog, folder.path("gptmp.ico")};
  MultiIconExchange& exchange = files.context().multiIcon;
  IconSaver& saver = files.iconSaver;
  FakeFileForms forms{exchange};

  FilesTest() { files.attach(&forms); }

  IconContainerRec& record() { return state.current(); }
  bool open(const std::string& path, bool useBrowser = true) {
    bool ok = false;
    files.iconFiles.doOpenIconFile(path, useBrowser, ok);
    return ok;
  }
  bool openQuietly(const std::string& path) {
    bool ok = true;
    files.iconFiles.doOpenIconFileQuietly(path, ok);
    return ok;
  }
  // Opens a built file with the reminders off.
  std::string given(const Entry& entry, const std::string& name = "given.ico") {
    const std::string path = folder.write(name, build(entry));
    EXPECT_TRUE(openQuietly(path));
    editor.calls.clear();
    return path;
  }
  // The calls of Editor, except those that only update commands.
  std::vector<std::string> callsBesidesEnabling() const {
    std::vector<std::string> calls = editor.calls;
    std::erase(calls, "UpdateCommands");
    return calls;
  }
  // True if the current container holds what is on the Editing Area.
  bool panelIsUpToDate() const {
    const auto container = static_cast<std::size_t>(state.mCurContainer);
    return samePixels(state.picPanelImage.at(container), state.picImage) &&
           samePixels(state.picPanelMask.at(container), state.picMask);
  }
};

}  // namespace gp::test

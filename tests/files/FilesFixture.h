// A current container with the real Editing Area, scripted ports, and the commands on icon files under test.
#pragma once

#include "document/Containers.h"
#include "document/EditingArea.h"
#include "document/IconsPanel.h"
#include "files/IcoBuilder.h"
#include "files/opening/IconFiles.h"
#include "files/FileForms.h"
#include "files/saving/IconSaver.h"
#include "files/browser/MultiIconCommands.h"
#include "support/FakeEditor.h"
#include "support/ScriptedPorts.h"

#include <functional>
#include <gtest/gtest.h>

namespace gp::test {

// Writes every call down and does what the Surfaces need.
class FilesEditor : public FakeEditor {
 public:
  FilesEditor(EditState& state, Display& display, MessagePump& pump)
      : state_(state), area_(state, *this, display, pump), panel_(state, *this, area_, display, pump) {}

  void ClearContainer() override { FakeEditor::ClearContainer(), gp::ClearContainer(state_); }
  // A click on the current container is only written down.
  void SwitchContainer(int container) override {
    FakeEditor::SwitchContainer(container);
    if (container != state_.mCurContainer) panel_.SwitchContainer(container);
  }
  void SizeEditSurfaces(int size) override { FakeEditor::SizeEditSurfaces(size), area_.SizeEditSurfaces(size); }
  void SizePanelSurfaces(int size) override { FakeEditor::SizePanelSurfaces(size), area_.SizePanelSurfaces(size); }
  void ComposeCurrentIcon() override { FakeEditor::ComposeCurrentIcon(), area_.ComposeCurrentIcon(); }
  void UpdatePanelFromCurrent() override { FakeEditor::UpdatePanelFromCurrent(), area_.UpdatePanelFromCurrent(); }
  void ShowCurrentIcon() override { FakeEditor::ShowCurrentIcon(), area_.ShowCurrentIcon(); }

 private:
  EditState& state_;
  EditingArea area_;
  IconsPanel panel_;
};

// Forms in which the user does what a test says. Without a word he closes the browser at once.
class FakeFileForms : public FileForms {
 public:
  std::function<void()> onMultiIcon, onHeaderDiff;
  int multiIcons = 0, headerDiffs = 0;

  explicit FakeFileForms(EditState& state) : state_(state) {}
  void showMultiIcon() override {
    ++multiIcons;
    if (onMultiIcon) return onMultiIcon();
    state_.multiIcon.gMultiIconResult.clear();
    state_.multiIcon.gLoadAndReturn = false;
  }
  void showHeaderDiff() override {
    ++headerDiffs;
    if (onHeaderDiff) onHeaderDiff();
  }

 private:
  EditState& state_;
};

class FilesTest : public testing::Test {
 protected:
  IconFolder folder;
  EditState state;
  RecordingDisplay display;
  ScriptedBoxes boxes;
  ScriptedPump pump;
  ScriptedDialogs dialogs;
  clsGPDialog dialog{dialogs};
  FilesEditor editor{state, display, pump};
  FakeFileForms forms{state};
  FilesContext context{state, editor, display, boxes, pump, dialog};
  MultiIconCommands multiIcon{context, forms, folder.path("gptmp.ico")};
  IconFiles files{context, multiIcon};
  CursorFiles cursors{context};
  IconSaver saver{context, cursors};

  IconContainerRec& record() { return state.current(); }
  bool open(const std::string& path, bool useBrowser = true) {
    bool ok = false;
    files.doOpenIconFile(path, useBrowser, ok);
    return ok;
  }
  bool openQuietly(const std::string& path) {
    bool ok = true;
    files.doOpenIconFileQuietly(path, ok);
    return ok;
  }
  // Opens a built file without reminders in the way.
  std::string given(const Entry& entry, const std::string& name = "given.ico") {
    const std::string path = folder.write(name, build(entry));
    EXPECT_TRUE(openQuietly(path));
    editor.calls.clear();
    return path;
  }
};

}  // namespace gp::test

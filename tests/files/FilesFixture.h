// A current container with the real Editing Area, scripted ports, and the commands on icon files under test.
#pragma once

#include "document/Containers.h"
#include "document/EditingArea.h"
#include "files/IcoBuilder.h"
#include "files/IconFiles.h"
#include "files/IconSaver.h"
#include "support/FakeEditor.h"
#include "support/ScriptedPorts.h"

#include <gtest/gtest.h>

namespace gp::test {

// Writes every call down and does what the Surfaces need.
class FilesEditor : public FakeEditor {
 public:
  FilesEditor(EditState& state, Display& display, MessagePump& pump)
      : state_(state), area_(state, *this, display, pump) {}

  void ClearContainer() override { FakeEditor::ClearContainer(), gp::ClearContainer(state_); }
  void SizeEditSurfaces(int size) override { FakeEditor::SizeEditSurfaces(size), area_.SizeEditSurfaces(size); }
  void SizePanelSurfaces(int size) override { FakeEditor::SizePanelSurfaces(size), area_.SizePanelSurfaces(size); }
  void ComposeCurrentIcon() override { FakeEditor::ComposeCurrentIcon(), area_.ComposeCurrentIcon(); }
  void UpdatePanelFromCurrent() override { FakeEditor::UpdatePanelFromCurrent(), area_.UpdatePanelFromCurrent(); }
  void ShowCurrentIcon() override { FakeEditor::ShowCurrentIcon(), area_.ShowCurrentIcon(); }

 private:
  EditState& state_;
  EditingArea area_;
};

class FilesTest : public testing::Test {
 protected:
  TempFolder folder;
  EditState state;
  RecordingDisplay display;
  ScriptedBoxes boxes;
  ScriptedPump pump;
  ScriptedDialogs dialogs;
  clsGPDialog dialog{dialogs};
  FilesEditor editor{state, display, pump};
  IconFiles files{state, editor, display, boxes, pump, dialog};
  IconSaver saver{state, editor, display, boxes, pump, dialog};

  IconContainerRec& record() { return state.current(); }
  bool open(const std::string& path) {
    bool ok = false;
    files.doOpenIconFile(path, true, ok);
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

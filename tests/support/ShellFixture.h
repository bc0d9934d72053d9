// The whole program without windows: a Shell over scripted ports and a temporary folder.
#pragma once

#include "document/EditState.h"
#include "shell/Shell.h"
#include "support/FakeClipboard.h"
#include "support/FakeEditor.h"
#include "support/FakeFileTypeIcons.h"
#include "support/FakeMachine.h"
#include "support/FakeTextDrawing.h"
#include "support/FakeTimer.h"
#include "support/FoldersIn.h"
#include "support/ScriptedPorts.h"
#include "support/TempFolder.h"

#include <functional>
#include <gtest/gtest.h>
#include <string>

namespace gp::test {

class FakeForm : public ShellForms, public FileForms, public AlphaForms {
 public:
  FormPlace now;
  int abouts = 0, unloads = 0, maximizes = 0, multiIcons = 0, headerDiffs = 0;
  std::function<void()> onMultiIcon, onHeaderDiff;  // what the user does in them
  std::function<AlphaOutcome(const IconImage&, AlphaMode)> onAlpha;

  FormPlace place() const override { return now; }
  void setPlace(const FormPlace& place) override { now = place; }
  void maximize() override { ++maximizes, now.maximized = true; }
  void showAbout() override { ++abouts; }
  void showMultiIcon() override {
    ++multiIcons;
    if (onMultiIcon) onMultiIcon();
  }
  // A session that comes up again is aborted.
  AlphaOutcome showAlpha(const IconImage& icon, AlphaMode mode, const std::optional<AlphaMatrix>& resumed) override {
    return onAlpha && !resumed ? onAlpha(icon, mode) : AlphaOutcome();
  }
  void showHeaderDiff() override {
    ++headerDiffs;
    if (onHeaderDiff) onHeaderDiff();
  }
  void unload() override { ++unloads; }
};

template <class Boxes>
class ProgramFixture : public testing::Test {
 protected:
  KeptDirectory directory;
  TempFolder folder;
  Boxes boxes;
  ScriptedDialogs dialogs;
  ScriptedPump pump;
  FakeSystem system;
  FakeProcesses processes;
  FakeClipboard clipboard;
  ScriptedPictures pictures;
  FakeTextDrawing textDrawing;
  FakeTimer timer;
  FakeFileTypeIcons fileTypes;
  RecordingDisplay display;
  FakeForm form;
  EditState state;
  Shell shell{state, Ports{boxes, dialogs, pump, system, processes, clipboard, pictures, textDrawing, timer, fileTypes},
              display, test::foldersIn(folder.path())};

  ProgramFixture() { shell.attach(&form, &form, &form); }
  // Load and the first Activate, in the same order as app/.
  void start(const std::string& commandLine = "") {
    shell.formLoad();
    shell.formActivate(commandLine);
  }
  void click(const char* control, int index) { shell.run(*findCommand(control, index)); }
  bool enabled(const char* control, int index) { return isEnabled(*findCommand(control, index), shell); }
  bool checked(const char* control, int index) { return isChecked(*findCommand(control, index), shell); }
  MouseInput at(int pixelX, int pixelY) const {
    const auto m = static_cast<float>(state.gMagnification);
    return {kLeftButton, 0, (static_cast<float>(pixelX) + 0.5F) * m, (static_cast<float>(pixelY) + 0.5F) * m};
  }
  void paint(int pixelX, int pixelY) {
    shell.drawing().tools.press(at(pixelX, pixelY));
    shell.drawing().tools.release(at(pixelX, pixelY));
  }
  std::string status(StatusPanel panel) const { return state.screen.lblStatusPanel[static_cast<std::size_t>(panel)]; }
};

// A test that expects each box.
class ShellFixture : public ProgramFixture<ScriptedBoxes> {};

// The bytes of a single-icon file of 16 colours, opaque; every pixel has the palette colour of that index.
inline std::string plainIconFile(int size, int colorIndex) {
  auto u16 = [](std::string& bytes, int value) { bytes += {static_cast<char>(value), static_cast<char>(value >> 8)}; };
  auto u32 = [&u16](std::string& bytes, int value) { u16(bytes, value & 0xFFFF), u16(bytes, value >> 16); };
  const int row = (size / 2 + 3) / 4 * 4;
  const int maskRow = (size + 31) / 32 * 4;
  std::string bytes;
  for (int value : {0, 1, 1}) u16(bytes, value);
  bytes += {static_cast<char>(size), static_cast<char>(size), 16, 0};
  u16(bytes, 1), u16(bytes, 4), u32(bytes, 40 + 64 + (row + maskRow) * size), u32(bytes, 22);
  u32(bytes, 40), u32(bytes, size), u32(bytes, size * 2), u16(bytes, 1), u16(bytes, 4);
  for (int i = 0; i < 6; ++i) u32(bytes, 0);
  for (int i = 0; i < 16; ++i)
    bytes += {static_cast<char>(i * 16), static_cast<char>(i), static_cast<char>(255 - i), 0};
  for (int i = 0; i < row * size; ++i) bytes += static_cast<char>(colorIndex << 4 | colorIndex);
  bytes += std::string(static_cast<std::size_t>(maskRow) * size, '\0');
  return bytes;
}

}  // namespace gp::test

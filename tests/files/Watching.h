// An editor that keeps what the Editing Area showed, and a pump that lets a test look on at every wait.
#pragma once

#include "files/FilesFixture.h"

#include <functional>
#include <vector>

namespace gp::test {

class WatchedEditor : public FilesEditor {
 public:
  WatchedEditor(EditState& state, Display& display, MessagePump& pump)
      : FilesEditor(state, display, pump), state_(state) {}
  std::vector<Surface> shown;  // PicIcon whenever it was magnified

  void MagnifyIcon() override {
    FilesEditor::MagnifyIcon();
    shown.push_back(state_.PicIcon);
  }

 private:
  EditState& state_;
};

class WatchingPump : public MessagePump {
 public:
  std::vector<int> waits;  // milliseconds
  std::function<void()> onWait;

  void pump() override {}
  void wait(int milliseconds) override {
    waits.push_back(milliseconds);
    if (onWait) onWait();
  }
};

}  // namespace gp::test

// Ports that follow a script: a test lists the boxes and dialogs it expects, in order, with their exact texts and
// answers. An unexpected one fails the test, and so does a missing one.
#pragma once

#include "platform/ports/FileDialogs.h"
#include "platform/ports/MessageBoxes.h"
#include "platform/ports/MessagePump.h"
#include "platform/ports/PictureLoader.h"

#include <deque>
#include <functional>
#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace gp::test {

class ScriptedBoxes : public MessageBoxes {
 public:
  struct Expected {
    std::string text;
    BoxButtons buttons;
    BoxIcon icon;
    BoxAnswer answer;
  };
  ~ScriptedBoxes() override { EXPECT_TRUE(script_.empty()) << "box that never came: " << script_.front().text; }

  // A box with one button.
  void expectTold(const std::string& text, BoxIcon icon) { expect(text, BoxButtons::Ok, icon, BoxAnswer::Ok); }
  void expectAsked(const std::string& text, BoxAnswer answer) {
    expect(text, BoxButtons::YesNo, BoxIcon::Question, answer);
  }
  void expect(const std::string& text, BoxButtons buttons, BoxIcon icon, BoxAnswer answer) {
    script_.push_back({text, buttons, icon, answer});
  }
  bool done() const { return script_.empty(); }

  BoxAnswer show(const std::string& text, BoxButtons buttons, BoxIcon icon, BoxAnswer) override {
    if (script_.empty()) {
      ADD_FAILURE() << "unexpected box: " << text;
      return buttons == BoxButtons::Ok ? BoxAnswer::Ok : BoxAnswer::No;
    }
    const Expected expected = script_.front();
    script_.pop_front();
    EXPECT_EQ(text, expected.text);
    EXPECT_EQ(buttons, expected.buttons);
    EXPECT_EQ(icon, expected.icon);
    return expected.answer;
  }

 private:
  std::deque<Expected> script_;
};

// A user who agrees to everything. The texts of all boxes are kept.
class AgreeingBoxes : public MessageBoxes {
 public:
  std::vector<std::string> texts;

  BoxAnswer show(const std::string& text, BoxButtons buttons, BoxIcon, BoxAnswer) override {
    texts.push_back(text);
    return buttons == BoxButtons::Ok ? BoxAnswer::Ok : BoxAnswer::Yes;
  }
};

class ScriptedDialogs : public FileDialogs {
 public:
  // Answers in order; an empty path is a cancel.
  std::deque<std::string> paths;
  std::deque<Color> colors;  // kNoColor is a cancel
  int errorOnCancel = 0;
  std::vector<FileDialogRequest> requests;
  std::function<void()> inside;  // an action, executed once, while the next file dialog is open

  bool openFile(const FileDialogRequest& request, std::string& path, int& error) override {
    return answer(request, path, error);
  }
  bool saveFile(const FileDialogRequest& request, std::string& path, int& error) override {
    return answer(request, path, error);
  }
  bool chooseColor(Color& color) override {
    if (colors.empty()) {
      ADD_FAILURE() << "unexpected colour dialog";
      return false;
    }
    const Color chosen = colors.front();
    colors.pop_front();
    if (chosen == kNoColor) return false;
    color = chosen;
    return true;
  }
  bool choosePrinter(PrinterRequest&) override { return false; }
  std::string chooseFolder(const std::string&, const std::string&) override { return next(); }

 private:
  std::string next() {
    if (paths.empty()) {
      ADD_FAILURE() << "unexpected dialog";
      return {};
    }
    const std::string path = paths.front();
    paths.pop_front();
    return path;
  }
  bool answer(const FileDialogRequest& request, std::string& path, int& error) {
    requests.push_back(request);
    if (auto action = std::exchange(inside, nullptr)) action();
    path = next();
    error = path.empty() ? errorOnCancel : 0;
    return !path.empty();
  }
};

// Returns the picture that a test provides, for any file.
class ScriptedPictures : public PictureLoader {
 public:
  LoadedPicture next;
  LoadedPicture loadPicture(const std::string&, int, int) override { return next; }
};

// Runs `inside` once, at the next pump: what a user does during a work loop.
class ScriptedPump : public MessagePump {
 public:
  std::function<void()> inside;
  int pumps = 0;
  int waitedMilliseconds = 0;

  void pump() override {
    ++pumps;
    if (auto action = std::exchange(inside, nullptr)) action();
  }
  void wait(int milliseconds) override {
    waitedMilliseconds += milliseconds;
    pump();
  }
};

}  // namespace gp::test

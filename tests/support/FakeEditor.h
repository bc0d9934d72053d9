// An Editor and a Display that record their calls, for tests of one subsystem alone.
#pragma once

#include "document/Display.h"
#include "document/Editor.h"

#include <algorithm>
#include <functional>
#include <map>
#include <string>
#include <utility>
#include <vector>

namespace gp::test {

class RecordingDisplay : public Display {
 public:
  std::vector<DisplayPart> parts;
  int repaints = 0, popUpMenus = 0, nudges = 0, colorValueFocuses = 0;
  std::vector<std::string> announced;
  std::function<void(DisplayPart part)> onChanged;

  void changed(DisplayPart part) override {
    parts.push_back(part);
    if (onChanged) onChanged(part);
  }
  void repaintEditingArea(int, int, int, int) override { ++repaints; }
  void showPopUpMenu() override { ++popUpMenus; }
  void nudgeMousePointer() override { ++nudges; }
  void focusColorValue() override { ++colorValueFocuses; }
  void announce(const std::string& text) override { announced.push_back(text); }
  int count(DisplayPart part) const { return static_cast<int>(std::count(parts.begin(), parts.end(), part)); }
  bool hasChanged(DisplayPart part) const { return count(part) > 0; }
};

class FakeEditor : public Editor {
 public:
  std::vector<std::string> calls;  // names in the order of the calls
  Tool tool = kNoTool;
  bool askSaveProceeds = true;
  bool openSucceeds = true;

  // The action of a test at each call with that name.
  void atCall(const std::string& name, std::function<void()> action) { actions_[name] = std::move(action); }
  int count(const std::string& name) const { return static_cast<int>(std::count(calls.begin(), calls.end(), name)); }

  void chooseColorChart() override { log("chooseColorChart"); }
  void showChart16() override { log("showChart16"); }
  void clearAllTools() override { log("clearAllTools"); }
  Tool selectedTool() const override { return tool; }
  void clearRegion() override { log("clearRegion"); }
  void redrawRegion() override { log("redrawRegion"); }
  void recordUndo() override { log("recordUndo"); }
  void clearUndoHistory() override { log("clearUndoHistory"); }
  void doOpenIconFileQuietly(const std::string& path, bool& ok) override {
    log("doOpenIconFileQuietly " + path), ok = openSucceeds;
  }
  void offerIconsOfFile(const std::string& path, int container) override {
    log("offerIconsOfFile " + path + " " + std::to_string(container));
  }
  void AskSaveCurrent(const std::string& message, bool& proceed) override {
    log("AskSaveCurrent " + message), proceed = askSaveProceeds;
  }
  void setHotspotByClick(int x, int y) override {
    log("setHotspotByClick " + std::to_string(x) + " " + std::to_string(y));
  }
  void UpdateCommands() override { log("UpdateCommands"); }
  void showPanel(int panel) override { log("showPanel " + std::to_string(panel)); }
  void closePanels() override { log("closePanels"); }
  void AddHistory(const std::string& path) override { log("AddHistory " + path); }
  void AddAniHistory(const std::string& path) override { log("AddAniHistory " + path); }
  void endAniSession() override { log("endAniSession"); }
  void aniPaneHidden() override { log("aniPaneHidden"); }
  void ShowRunTimeError(const std::string& name, const std::string&) override { log("ShowRunTimeError " + name); }

 protected:
  void log(const std::string& call) {
    calls.push_back(call);
    if (const auto found = actions_.find(call); found != actions_.end()) found->second();
  }

 private:
  std::map<std::string, std::function<void()>> actions_;
};

}  // namespace gp::test

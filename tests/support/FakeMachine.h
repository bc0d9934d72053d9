// A machine for tests: screen, folders and processes as a test sets them.
#pragma once

#include "platform/ports/SystemInfo.h"

#include <set>
#include <string>
#include <vector>

namespace gp::test {

class FakeSystem : public SystemInfo {
 public:
  int bits = 32;
  int width = 1280;
  int height = 1024;
  double scale = 1;  // physical pixels per pixel of a window
  int pixelsPerInch = 96;
  long long memoryKb = 8000000;
  std::string windows = "/usr", system = "/usr/lib", temp = "/tmp/", desktop = "/home/ana/Desktop";

  int GetScreenBPP() override { return bits; }
  int screenWidth() override { return width; }
  int screenHeight() override { return height; }
  int physicalScreenWidth() override { return static_cast<int>(width * scale); }
  int physicalScreenHeight() override { return static_cast<int>(height * scale); }
  int GetPixelsPerInch() override { return pixelsPerInch; }
  long long totalMemoryKb() override { return memoryKb; }
  std::string windowsDirectory() override { return windows; }
  std::string systemDirectory() override { return system; }
  std::string tempDirectory() override { return temp; }
  std::string desktopDirectory() override { return desktop; }
};

class FakeProcesses : public Processes {
 public:
  bool previousInstance = false;
  std::set<std::string> running;
  std::vector<std::string> calls;  // what was closed, ended and started, in order
  bool startSucceeds = true;

  bool IsPrevInstance() override { return previousInstance; }
  void CloseWindowByTitle(const std::string& title) override { calls.push_back("close " + title); }
  bool IsProcessRunning(const std::string& executable) override { return running.count(executable) > 0; }
  void TerminateProcessByName(const std::string& executable) override {
    calls.push_back("terminate " + executable);
    running.erase(executable);
  }
  bool start(const std::string& path) override {
    calls.push_back("start " + path);
    return startSucceeds;
  }
  bool openDocument(const std::string& path) override {
    calls.push_back("open " + path);
    return true;
  }
};

}  // namespace gp::test

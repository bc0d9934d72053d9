// The ports for facts about the machine: the screen, folders, memory and other processes.
#pragma once

#include <string>

namespace gp {

class SystemInfo {
 public:
  virtual ~SystemInfo() = default;
  virtual int GetScreenBPP() = 0;  // bits per pixel
  // The screen in the pixels of windows, which a desktop's scale makes larger than those of the screen.
  virtual int screenWidth() = 0;
  virtual int screenHeight() = 0;
  // The screen in its physical pixels.
  virtual int physicalScreenWidth() = 0;
  virtual int physicalScreenHeight() = 0;
  virtual int GetPixelsPerInch() = 0;
  virtual long long totalMemoryKb() = 0;
  // Folders; empty when unknown.
  virtual std::string windowsDirectory() = 0;
  virtual std::string systemDirectory() = 0;
  virtual std::string tempDirectory() = 0;
  virtual std::string desktopDirectory() = 0;
};

class Processes {
 public:
  virtual ~Processes() = default;
  // Returns true when another instance of this program runs.
  virtual bool IsPrevInstance() = 0;
  // Asks the window with that title to close; does nothing when there is none.
  virtual void CloseWindowByTitle(const std::string& title) = 0;
  // Compares the end of each process's executable path with the name, case ignored.
  virtual bool IsProcessRunning(const std::string& executable) = 0;
  virtual void TerminateProcessByName(const std::string& executable) = 0;
  // Starts a program without waiting for it. Returns false when it cannot be started.
  virtual bool start(const std::string& path) = 0;
  // Opens a document with the desktop's default program. Returns false when there is none.
  virtual bool openDocument(const std::string& path) = 0;
};

}  // namespace gp

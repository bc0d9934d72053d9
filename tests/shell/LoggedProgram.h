// The shell over logged and scripted ports, in one of the states of CommandStates.h. The display is the one that the
// test needs: a RecordingDisplay, or the QtDisplay of a main form.
#pragma once

#include "document/EditState.h"
#include "shell/CommandStates.h"
#include "shell/LoggedPorts.h"
#include "shell/Shell.h"
#include "shell/ShellSnapshot.h"
#include "support/FakeClipboard.h"
#include "support/FakeFileTypeIcons.h"
#include "support/FakeMachine.h"
#include "support/FakeTextDrawing.h"
#include "support/FakeTimer.h"
#include "support/FoldersIn.h"
#include "support/ScriptedPorts.h"
#include "support/TempFolder.h"

#include <string>

namespace gp::test {

template <class DisplayType>
class LoggedProgram {
 public:
  Snapshot snapshot() { return SnapshotMaker(shell, clipboard_, folder_).make(); }

  // The log with paths as a snapshot writes them.
  Log logWithoutFolder() {
    const SnapshotMaker maker(shell, clipboard_, folder_);
    Log entries;
    for (const std::string& entry : log) entries.push_back(maker.withoutFolder(entry));
    return entries;
  }

  Log log;  // boxes, dialogs and forms, in order

 protected:
  // Brings the started program into the state.
  void make(const CommandState& state) {
    StateMaker maker{shell, clipboard_, folder_};
    state.make(maker);
  }

 private:
  KeptDirectory directory_;
  TempFolder folder_;
  LoggedBoxes boxes_{log};
  CancelledDialogs dialogs_{log};
  ScriptedPump pump_;
  FakeSystem system_;
  FakeProcesses processes_;
  FakeClipboard clipboard_;
  ScriptedPictures pictures_;
  FakeTextDrawing text_;
  FakeTimer timer_;
  FakeFileTypeIcons fileTypes_;
  EditState state_;

 protected:
  LoggedForms forms_{log};
  DisplayType display_;

 public:
  Shell shell{state_,
              Ports{boxes_, dialogs_, pump_, system_, processes_, clipboard_, pictures_, text_, timer_, fileTypes_},
              display_, test::foldersIn(folder_.path())};
};

inline std::string nameOf(const Command& row) { return objectNameOf(row.control, row.index); }

}  // namespace gp::test

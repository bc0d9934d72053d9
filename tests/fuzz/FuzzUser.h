// A user of the forms on icon files whose answers are taken from the input, and the ports that pass these answers to
// the code under test.
#pragma once

#include "../support/FakeClipboard.h"
#include "../support/FakeEditor.h"
#include "FuzzInput.h"
#include "colour/ColorSelection.h"
#include "document/Document.h"
#include "document/EditState.h"
#include "drawing/Drawing.h"
#include "files/FilesContext.h"
#include "files/browser/MultiIconExchange.h"
#include "platform/dialogs/clsGPDialog.h"
#include "platform/ports/FileDialogs.h"
#include "platform/ports/MessageBoxes.h"
#include "platform/ports/MessagePump.h"

namespace gp::fuzz {

class UserBoxes : public MessageBoxes {
 public:
  explicit UserBoxes(Choices& choices) : choices_(choices) {}
  BoxAnswer show(const std::string& text, BoxButtons buttons, BoxIcon, BoxAnswer) override {
    require(!text.empty());
    if (buttons == BoxButtons::Ok) return BoxAnswer::Ok;
    const bool yes = choices_.next() % 2 == 0;
    agreed_ = agreed_ || yes;
    return yes ? BoxAnswer::Yes : BoxAnswer::No;
  }
  // True once a question was answered with Yes.
  bool agreed() const { return agreed_; }

 private:
  Choices& choices_;
  bool agreed_ = false;
};

// Files are saved under one name, and split into the folder of the file.
class UserDialogs : public FileDialogs {
 public:
  UserDialogs(Choices& choices, const ScratchFolder& folder) : choices_(choices), folder_(folder) {}
  bool openFile(const FileDialogRequest&, std::string&, int&) override { return false; }
  bool saveFile(const FileDialogRequest&, std::string& path, int& error) override {
    error = 0;
    path = choices_.next() % 2 ? std::string() : folder_.path("saved.ico");
    return !path.empty();
  }
  bool chooseColor(Color&) override { return false; }
  bool choosePrinter(PrinterRequest&) override { return false; }
  std::string chooseFolder(const std::string&, const std::string&) override {
    return choices_.next() % 2 ? std::string() : folder_.path("split");
  }

 private:
  Choices& choices_;
  const ScratchFolder& folder_;
};

class NoPump : public MessagePump {
 public:
  void pump() override {}
  void wait(int) override {}
};

// Creating the state of the whole program takes longer than a run, and the forms on icon files only read it.
inline EditState& sharedState() {
  static EditState state;
  return state;
}

struct User {
  User(Choices& choices, const ScratchFolder& folder) : boxes(choices), dialogs(choices, folder) {}

  EditState& state = sharedState();
  test::FakeEditor editor;
  test::RecordingDisplay display;
  NoPump pump;
  UserBoxes boxes;
  UserDialogs dialogs;
  clsGPDialog dialog{dialogs};
  test::FakeClipboard clipboard;
  const Context rooms{state, editor, display, boxes, pump};
  Document document{rooms};
  ColorSelection colors{rooms, dialog};
  Drawing drawing{rooms, document, colors, clipboard};
  MultiIconExchange exchange;
  FileForms* forms = nullptr;
  const FilesContext context{rooms, state.process, document, drawing, dialog, exchange, forms};
};

}  // namespace gp::fuzz

// Ports of a user who answers every question with No or Cancel. Everything shown is written to a log, in order.
#pragma once

#include "files/FileForms.h"
#include "platform/ports/FileDialogs.h"
#include "platform/ports/MessageBoxes.h"
#include "shell/ShellForms.h"

#include <string>
#include <vector>

namespace gp::test {

using Log = std::vector<std::string>;

class LoggedBoxes : public MessageBoxes {
 public:
  explicit LoggedBoxes(Log& log) : log_(log) {}
  BoxAnswer show(const std::string& text, BoxButtons buttons, BoxIcon icon, BoxAnswer) override {
    log_.push_back(std::to_string(static_cast<int>(icon)) + " " + text);
    if (buttons == BoxButtons::Ok) return BoxAnswer::Ok;
    return buttons == BoxButtons::YesNo ? BoxAnswer::No : BoxAnswer::Cancel;
  }

 private:
  Log& log_;
};

class CancelledDialogs : public FileDialogs {
 public:
  explicit CancelledDialogs(Log& log) : log_(log) {}
  bool openFile(const FileDialogRequest& request, std::string&, int&) override { return cancel("open", request); }
  bool saveFile(const FileDialogRequest& request, std::string&, int&) override { return cancel("save", request); }
  bool chooseColor(Color&) override { return log_.push_back("colour dialog"), false; }
  bool choosePrinter(PrinterRequest&) override { return false; }
  std::string chooseFolder(const std::string&, const std::string&) override { return {}; }

 private:
  bool cancel(const char* kind, const FileDialogRequest& request) {
    log_.push_back(std::string(kind) + " dialog for " + request.fileName);
    return false;
  }
  Log& log_;
};

class LoggedForms : public ShellForms, public FileForms, public AlphaForms {
 public:
  explicit LoggedForms(Log& log) : log_(log) {}
  FormPlace place() const override { return {}; }
  void setPlace(const FormPlace&) override {}
  void maximize() override {}
  void showAbout() override { log_.push_back("about"); }
  void unload() override { log_.push_back("unload"); }
  void showMultiIcon() override { log_.push_back("browser"); }
  void showHeaderDiff() override { log_.push_back("headers"); }
  AlphaOutcome showAlpha(const IconImage&, AlphaMode, const std::optional<AlphaMatrix>&) override {
    log_.push_back("alpha");
    return {};
  }

 private:
  Log& log_;
};

// The log entry for a command that cannot run.
inline Log logOf(const char* refusal) {
  const Log nothing;
  return *refusal ? Log{std::to_string(static_cast<int>(BoxIcon::None)) + " " + refusal} : nothing;
}

}  // namespace gp::test

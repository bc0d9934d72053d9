// The face of the room: creates the commands on icon and cursor files and gives access to them.
#pragma once

#include "files/FileForms.h"
#include "files/FilesContext.h"
#include "files/browser/MultiIconCommands.h"
#include "files/browser/MultiIconExchange.h"
#include "files/cursor/CursorFiles.h"
#include "files/opening/IconFiles.h"
#include "files/saving/IconSaver.h"

#include <string>

namespace gp {

class Files {
 public:
  // `scratchFile` is the path of gptmp.ico, which exists only between two steps of one command.
  Files(const Context& context, Document& document, Drawing& drawing, clsGPDialog& dialog,
        const std::string& scratchFile);
  Files(const Files&) = delete;
  Files& operator=(const Files&) = delete;

  // Sets the forms to show; null when the main form is destroyed. Without forms, commands that need one do nothing.
  void attach(FileForms* forms) { forms_ = forms; }
  // Shows the form that compares the headers of a file with its pixels.
  void showHeaderDiff(const std::string& path);
  const FilesContext& context() const { return context_; }

 private:
  MultiIconExchange exchange_;
  FileForms* forms_ = nullptr;
  FilesContext context_;

 public:
  MultiIconCommands multiIcon;
  IconFiles iconFiles;
  CursorFiles cursorFiles;
  IconSaver iconSaver;
};

}  // namespace gp

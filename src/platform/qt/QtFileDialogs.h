// The common dialogs. They are Qt's own on every desktop, so that they look and behave the same and are accessible
// everywhere. The folder chooser is a form of the program and is passed in, and so is what gives files their pictures.
#pragma once

#include "platform/ports/FileDialogs.h"
#include "platform/qt/FilePictures.h"

#include <functional>
#include <memory>
#include <string>

class QFileDialog;
class QPrinter;

namespace gp {

class QtFileDialogs final : public FileDialogs {
 public:
  // Takes a pattern and a start folder; returns the chosen folder or an empty text.
  using FolderChooser = std::function<std::string(const std::string& pattern, const std::string& startFolder)>;

  explicit QtFileDialogs(FolderChooser folderChooser, FilePicture pictureOf = {});
  ~QtFileDialogs() override;

  bool openFile(const FileDialogRequest& request, std::string& path, int& error) override;
  bool saveFile(const FileDialogRequest& request, std::string& path, int& error) override;
  bool chooseColor(Color& color) override;
  bool choosePrinter(PrinterRequest& request) override;
  std::string chooseFolder(const std::string& pattern, const std::string& startFolder) override;

  // The printer that was accepted last; null if none was.
  QPrinter* printer() const { return printer_.get(); }

  // Set up a file dialog for a request without showing it.
  static void prepareOpen(QFileDialog& dialog, const FileDialogRequest& request);
  static void prepareSave(QFileDialog& dialog, const FileDialogRequest& request);

 private:
  FolderChooser folderChooser_;
  FilePictures pictures_;
  std::unique_ptr<QPrinter> printer_;
};

}  // namespace gp

#include "files/FileQuestions.h"

#include "document/CurrentIconGuard.h"
#include "document/ProcessValues.h"
#include "platform/dialogs/StartFolder.h"
#include "platform/dialogs/clsGPDialog.h"
#include "platform/text/Paths.h"

namespace gp {
namespace {

// A path that is too long to be parsed has no folder; the former one is kept.
std::string remembered(ProcessValues& process, const std::string& path) {
  const std::string folder = ParseFileName(path, PathPart::DriveAndFolder);
  if (!folder.empty()) process.mLastFolder = folder;
  return path;
}

}  // namespace

std::string askToOpen(FilesContext& context, const char* filter) {
  return askToOpen(context.process, context.dialog, filter);
}

std::string askToOpen(ProcessValues& process, clsGPDialog& dialog, const char* filter) {
  OpenOptions options;
  options.filter = filter;
  options.initialFolder = process.mLastFolder;
  return remembered(process, dialog.ShowOpen(options));
}

std::string askToSave(FilesContext& context, const std::string& proposedName, const char* filter, const char* extension,
                      OverwriteQuestion question, const std::string& folder) {
  SaveOptions options;
  options.fileName = proposedName;
  options.filter = filter;
  options.defaultExtension = extension;
  options.overwritePrompt = question == OverwriteQuestion::ByDialog;
  options.initialFolder = existingStartFolder(context.boxes, folder.empty() ? context.process.mLastFolder : folder);
  return remembered(context.process, context.dialog.ShowSave(options));
}

void openChosenFile(FilesContext& context, const char* filter, const OpenFile& open) {
  if (!mayCurrentIconGo(context)) return;
  const std::string path = askToOpen(context, filter);
  if (path.empty()) return;
  bool ok = false;
  open(path, ok);
  if (ok) context.process.mCommandFile = path;
}

}  // namespace gp

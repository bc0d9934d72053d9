#include "files/saving/HeldFiles.h"

#include "document/EditState.h"
#include "files/FileQuestions.h"
#include "files/saving/PanelFiles.h"
#include "platform/ports/MessageBoxes.h"

#include <optional>

namespace gp {
namespace {

std::optional<int> holderOf(const FilesContext& context, std::span<const std::string> paths, Saved saved) {
  const int except = saved == Saved::CurrentIcon ? context.state.mCurContainer : kNoContainer;
  for (const std::string& path : paths)
    if (const auto container = findContainerOf(context.state, path, except)) return container;
  return std::nullopt;
}

bool agreesToWriteOver(const FilesContext& context, int container) {
  return context.boxes.ask("Container " + std::to_string(container + 1) + " holds an icon of this file.\nProceed?");
}

}  // namespace

bool mayWriteOver(const FilesContext& context, std::span<const std::string> paths, Saved saved) {
  const auto holder = holderOf(context, paths, saved);
  return !holder || agreesToWriteOver(context, *holder);
}

bool mayWriteOver(const FilesContext& context, const std::string& path, Saved saved) {
  return mayWriteOver(context, std::span(&path, 1), saved);
}

bool mayWriteOverOriginal(const FilesContext& context, const std::string& path) {
  const auto holder = holderOf(context, std::span(&path, 1), Saved::CurrentIcon);
  return holder ? agreesToWriteOver(context, *holder) : context.boxes.ask(path + kOverwriteQuestion);
}

}  // namespace gp

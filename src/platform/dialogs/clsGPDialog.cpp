#include "platform/dialogs/clsGPDialog.h"

#include <algorithm>

namespace gp {
namespace {

enum OpenFlag : unsigned {
  kReadOnly = 1,
  kOverwritePrompt = 2,
  kHideReadOnly = 4,
  kHookAndTemplate = 0x60,
  kAllowMultiSelect = 0x200,
  kFileMustExist = 0x1000,
};

enum PrinterFlag : unsigned {
  kSelection = 1,
  kPageNumbers = 2,
  kReturnDeviceWithoutSelection = 0x40100,
};

constexpr char kNul = '\0';

unsigned flagIf(bool condition, unsigned flag) { return condition ? flag : 0; }

unsigned openFlags(const OpenOptions& options) {
  const unsigned flags = flagIf(options.multiSelect, kAllowMultiSelect) |
                         flagIf(options.fileMustExist, kFileMustExist) | flagIf(options.readOnly, kReadOnly) |
                         flagIf(options.hideReadOnly, kHideReadOnly);
  return flags & ~kHookAndTemplate;
}

unsigned saveFlags(const SaveOptions& options) {
  return (flagIf(options.overwritePrompt, kOverwritePrompt) | kHideReadOnly) & ~kHookAndTemplate;
}

std::string cutAtNul(const std::string& text) { return text.substr(0, text.find(kNul)); }

template <class Options>
FileDialogRequest requestOf(const Options& options, unsigned flags) {
  return {options.title,
          cutAtNul(options.fileName),
          options.initialFolder,
          parseFilter(options.filter),
          options.defaultExtension,
          flags};
}

// Returns the text up to the next NUL and removes it, with the NUL, from `text`.
std::string takeUpToNul(std::string_view& text) {
  const std::size_t end = std::min(text.find(kNul), text.size());
  std::string taken(text.substr(0, end));
  text.remove_prefix(std::min(end + 1, text.size()));
  return taken;
}

}  // namespace

std::string clsGPDialog::ShowOpen(const OpenOptions& options) {
  extendedError_ = 0;
  std::string path;
  if (!dialogs_.openFile(requestOf(options, openFlags(options)), path, extendedError_)) return {};
  extendedError_ = 0;
  return cutAtNul(path);
}

std::string clsGPDialog::ShowSave(const SaveOptions& options) {
  extendedError_ = 0;
  std::string path;
  if (!dialogs_.saveFile(requestOf(options, saveFlags(options)), path, extendedError_)) return {};
  extendedError_ = 0;
  return cutAtNul(path);
}

bool clsGPDialog::ShowColor(Color& color) {
  extendedError_ = 0;
  Color chosen = color;
  if (!dialogs_.chooseColor(chosen)) return false;
  color = chosen;
  return true;
}

bool clsGPDialog::ShowPrinter(bool pageRange, int& copies) {
  extendedError_ = 0;
  PrinterRequest request{kReturnDeviceWithoutSelection | (pageRange ? kPageNumbers : kSelection), copies};
  if (!dialogs_.choosePrinter(request)) return false;
  copies = request.copies;
  return true;
}

std::string clsGPDialog::chooseFolder(const std::string& pattern, const std::string& startFolder) {
  extendedError_ = 0;
  return dialogs_.chooseFolder(pattern, startFolder);
}

// Filter descriptions contain no colon, so a colon is always a separator.
std::string separateFilter(std::string_view filter) {
  std::string separated(filter);
  std::replace_if(
      separated.begin(), separated.end(), [](char c) { return c == ':' || c == '|'; }, kNul);
  return separated.append(2, kNul);
}

std::vector<FileFilter> parseFilter(std::string_view filter) {
  const std::string separated = separateFilter(filter);
  std::string_view rest = separated;
  std::vector<FileFilter> filters;
  while (!rest.empty() && rest.front() != kNul) {
    FileFilter entry{takeUpToNul(rest), {}};
    entry.pattern = takeUpToNul(rest);
    if (!entry.pattern.empty()) filters.push_back(entry);
  }
  return filters;
}

}  // namespace gp

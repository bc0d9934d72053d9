#include "cli/IconsInside.h"

#include "animation/format/AniFile.h"
#include "cli/Streams.h"
#include "platform/files/Files.h"

#include <algorithm>

namespace gp::cli {
namespace {

using Bytes = std::span<const std::uint8_t>;

constexpr std::size_t kStartSize = 8;
constexpr std::uint8_t kLinkStart[] = {0x4C, 0, 0, 0, 1, 0x14, 2, 0};

bool isLink(Bytes start) {
  return std::ranges::equal(start.first(std::min(start.size(), std::size(kLinkStart))), kLinkStart);
}
bool isProgram(Bytes start) { return start.size() >= 2 && start[0] == 'M' && start[1] == 'Z'; }

OpenedIcons refused(const char* reason) { return {nullptr, std::nullopt, reason}; }

OpenedIcons opened(std::unique_ptr<IconsInside> icons) {
  return icons ? OpenedIcons{std::move(icons), std::nullopt, nullptr} : refused(kNoIconInFile);
}

OpenedIcons openLink(Bytes bytes) {
  auto link = readShellLink(bytes);
  return link ? OpenedIcons{nullptr, std::move(link), nullptr} : refused(kNoIconInFile);
}

OpenedIcons openWhole(FileBytes bytes) {
  if (isProgram(bytes.span())) return opened(iconsOfLibrary(std::move(bytes)));
  if (isRiffFile(bytes.span())) return opened(framesOfFilm(std::move(bytes)));
  if (isLink(bytes.span())) return openLink(bytes.span());
  IconFile file = parseIconFile(std::move(bytes));
  return file.isIcon() || file.isCursor() ? opened(iconOfIconFile(std::move(file))) : refused(kNoIconInFile);
}

}  // namespace

std::vector<ImageRow> IconsInside::bounded(std::vector<ImageRow> rows, bool& isCut) {
  if (rows.size() > rowsLeft_) {
    isCut = true;
    rows.resize(rowsLeft_);
  }
  rowsLeft_ -= rows.size();
  return rows;
}

// Of a program only the needed parts are read, and of a file without icons only its start.
OpenedIcons openIcons(const std::string& path) {
  constexpr const char* kNotReadable = "cannot be read";
  if (!isStream(path)) {
    const auto start = readFileStart(path, kStartSize);
    if (!start) return refused(kNotReadable);
    if (isProgram(start->span())) return opened(iconsOfLibrary(path));
    const IconFile file = parseIconFile(FileBytes(start->span()));
    if (!file.isIcon() && !file.isCursor() && !isRiffFile(start->span()) && !isLink(start->span()))
      return refused(kNoIconInFile);
  }
  auto bytes = readInput(path);
  return bytes ? openWhole(std::move(*bytes)) : refused(kNotReadable);
}

}  // namespace gp::cli

#include "extraction/sources/FileTypeSource.h"

#include "extraction/format/IconHandle.h"
#include "extraction/sources/DesktopIcon.h"
#include "platform/ports/FileTypeIcons.h"

namespace gp {
namespace {

constexpr const char* kNotExtracted = "Failed to extract the clicked one";

}  // namespace

std::optional<IconImage> FileTypeSource::handle(int index) const {
  return handleOf(icons_.iconOfFile(path_, index == 0 ? kLargeIcon : kSmallIcon));
}

ListCell FileTypeSource::cell(int index) {
  const auto icon = handle(index);
  return icon ? drawnCell(*icon, "") : invalidCell("");
}

FetchedIcon FileTypeSource::fetch(int index) {
  const auto icon = handle(index);
  if (!icon) return kNotExtracted;
  return surfacesOf(*icon);
}

}  // namespace gp

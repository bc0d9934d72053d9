#include "extraction/sources/LibrarySource.h"

#include "extraction/format/IconHandle.h"

namespace gp {
namespace {

constexpr const char* kNotExtracted = "Failed to extract the clicked one";

}  // namespace

std::unique_ptr<LibrarySource> LibrarySource::open(const std::string& path, int size) {
  auto library = IconLibrary::open(path);
  if (!library || library->groups().empty()) return nullptr;
  return std::unique_ptr<LibrarySource>(new LibrarySource(path, size, std::move(library)));
}

std::optional<IconImage> LibrarySource::handle(int index) const {
  return libraryIcon(*library_, library_->groups().at(static_cast<std::size_t>(index)), size_);
}

ListCell LibrarySource::cell(int index) {
  const auto icon = handle(index);
  return icon ? drawnCell(*icon, numberLabel(index)) : invalidCell(numberLabel(index));
}

FetchedIcon LibrarySource::fetch(int index) {
  const auto icon = handle(index);
  if (!icon) return kNotExtracted;
  return surfacesOf(*icon);
}

int countLibraryIcons(const std::string& path) {
  const auto library = IconLibrary::open(path);
  return library ? static_cast<int>(library->groups().size()) : 0;
}

}  // namespace gp

// The icons of a program or library, large or small.
#pragma once

#include "extraction/IconSource.h"
#include "platform/resources/IconLibrary.h"

namespace gp {

class LibrarySource final : public IconSource {
 public:
  // Icons of size x size pixels, kLargeIcon or kSmallIcon. Null when the file has none.
  static std::unique_ptr<LibrarySource> open(const std::string& path, int size);

  int count() const override { return static_cast<int>(library_->groups().size()); }
  std::string fileOf(int) const override { return path_; }
  bool isOneFile() const override { return true; }
  ListCell cell(int index) override;
  FetchedIcon fetch(int index) override;

 private:
  LibrarySource(std::string path, int size, std::unique_ptr<IconLibrary> library)
      : path_(std::move(path)), size_(size), library_(std::move(library)) {}
  std::optional<IconImage> handle(int index) const;

  std::string path_;
  int size_;
  std::unique_ptr<IconLibrary> library_;
};

// The number of icons in a program or library; 0 for another file.
int countLibraryIcons(const std::string& path);

}  // namespace gp

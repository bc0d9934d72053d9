// The icon files of a folder.
#pragma once

#include "extraction/IconSource.h"

#include <vector>

namespace gp {

class FolderSource final : public IconSource {
 public:
  // Lists the files that end in .ico, sorted by name.
  explicit FolderSource(std::string folder);

  int count() const override { return static_cast<int>(names_.size()); }
  std::string fileOf(int index) const override;
  // The icon that opening the file shows.
  ListCell cell(int index) override;
  // The files are opened, so that nothing is fetched here.
  FetchedIcon fetch(int) override { return "Unable to retrieve this one."; }

 private:
  std::string folder_;
  std::vector<std::string> names_;
};

}  // namespace gp

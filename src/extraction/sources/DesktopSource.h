// The files on the desktop. A shell link counts as the file that it leads to.
#pragma once

#include "extraction/IconSource.h"

#include <vector>

namespace gp {

class FileTypeIcons;

class DesktopSource final : public IconSource {
 public:
  // Lists the folder. `icons` must outlive it.
  DesktopSource(const std::string& folder, FileTypeIcons& icons);

  int count() const override { return static_cast<int>(files_.size()); }
  std::string fileOf(int index) const override { return files_.at(static_cast<std::size_t>(index)); }
  ListCell cell(int index) override;
  FetchedIcon fetch(int index) override;
  std::string nameOf(int index) const override { return pathStem(fileOf(index)) + "_Extract"; }

 private:
  std::optional<IconImage> handle(int index) const;
  std::optional<IconImage> namedIcon(const std::string& name) const;

  std::vector<std::string> files_;
  FileTypeIcons& icons_;
};

}  // namespace gp

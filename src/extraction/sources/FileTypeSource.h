// The two icons that the desktop shows for a file: the large one and the small one.
#pragma once

#include "extraction/IconSource.h"

namespace gp {

class FileTypeIcons;

class FileTypeSource final : public IconSource {
 public:
  static constexpr int kIcons = 2;

  // `icons` must outlive it.
  FileTypeSource(std::string path, FileTypeIcons& icons) : path_(std::move(path)), icons_(icons) {}

  int count() const override { return kIcons; }
  std::string fileOf(int) const override { return path_; }
  ListCell cell(int index) override;
  FetchedIcon fetch(int index) override;
  std::string nameOf(int) const override { return pathStem(path_) + "_Extract"; }

 private:
  std::optional<IconImage> handle(int index) const;

  std::string path_;
  FileTypeIcons& icons_;
};

}  // namespace gp

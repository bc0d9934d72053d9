// The icons that a scan finds in a file by their bitmap headers.
#pragma once

#include "extraction/IconSource.h"
#include "extraction/format/IclScan.h"
#include "platform/files/Files.h"

#include <vector>

namespace gp {

class ScanSource final : public IconSource {
 public:
  // It has no entries when nothing is found or the file cannot be read.
  explicit ScanSource(std::string path);

  int count() const override { return static_cast<int>(mIclEntries_.size()); }
  std::string fileOf(int) const override { return path_; }
  bool isOneFile() const override { return true; }
  ListCell cell(int index) override;
  FetchedIcon fetch(int index) override;
  bool marksFailures() const override { return true; }

 private:
  std::optional<IconImage> decoded(int index) const;

  std::string path_;
  FileBytes mFileBytes_;
  std::vector<IclScanEntry> mIclEntries_;
};

}  // namespace gp

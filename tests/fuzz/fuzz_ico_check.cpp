// Discrepancies as `gpicon check` finds them, in icon and cursor files.
#include "FuzzIcons.h"
#include "cli/Discrepancies.h"
#include "cli/ImageFile.h"

#include <set>
#include <string>

namespace {

using gp::cli::Discrepancy;
using gp::fuzz::require;

// Receives the discrepancies of one file, in the order of the entries.
class Report {
 public:
  explicit Report(const gp::IconFile& file) : most_(file.directory.presentCount()) {}

  void take(const Discrepancy& discrepancy) {
    require(discrepancy.index >= last_ && discrepancy.index < most_);
    require(!discrepancy.directory.empty() && !discrepancy.header.empty() && !discrepancy.pixels.empty());
    if (discrepancy.index != last_) ofEntry_.clear();
    require(ofEntry_.insert(discrepancy.what).second);  // each only once for an entry
    require((discrepancy.index < 0) == (ofEntry_.contains("count")));
    last_ = discrepancy.index;
    isCutShort_ = isCutShort_ || ofEntry_.contains("count") || ofEntry_.contains("end");
  }
  bool isCutShort() const { return isCutShort_; }

 private:
  const int most_;
  int last_ = -1;
  std::set<std::string> ofEntry_;
  bool isCutShort_ = false;
};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  gp::IconFile file = gp::parseIconFile(gp::FileBytes(std::span(data, size)));
  if (!file.isIcon() && !file.isCursor()) return 0;
  Report report(file);
  gp::cli::findDiscrepancies(file, [&](const Discrepancy& discrepancy) { report.take(discrepancy); });
  for (int i = 0; i < gp::fuzz::entriesToDecode(file); ++i)
    require(gp::cli::decodeImage(file, i).has_value() == gp::cli::isUsableImage(file, i));
  if (!file.isIcon()) return 0;
  // A file that does not contain all that it states is reported, and is refused for updates.
  gp::IconArrays arrays;
  const gp::ArraysDefect defect = gp::takeIconArrays(std::move(file), gp::ReservedField::Any, arrays);
  require((defect == gp::ArraysDefect::CutShort) == report.isCutShort());
  return 0;
}

#include "files/saving/ScratchIcon.h"

#include "files/format/IconWriter.h"

#include <filesystem>
#include <system_error>

namespace gp {
namespace {

void removeFile(const std::string& path) {
  std::error_code ignored;
  std::filesystem::remove(path, ignored);
}

class ScratchFile {
 public:
  // A former scratch file is removed first: it might be a link to a file that has to be kept.
  explicit ScratchFile(const std::string& path) : path_(path) { removeFile(path_); }
  ~ScratchFile() { removeFile(path_); }
  ScratchFile(const ScratchFile&) = delete;
  ScratchFile& operator=(const ScratchFile&) = delete;

 private:
  const std::string& path_;
};

}  // namespace

ScratchDefect makeNewImage(const IconImage& icon, ColorDepth depth, const std::string& scratchFile,
                           const std::string& target, std::optional<NewImage>& image) {
  image.reset();
  if (isSameFile(scratchFile, target)) return ScratchDefect::NotWritten;
  const ScratchFile scratch(scratchFile);
  bool ok = false;
  WriteSingleIconFile(icon, depth, scratchFile, ok);
  if (!ok) return ScratchDefect::NotWritten;
  if (auto bytes = readFile(scratchFile)) image = imageOfSingleIcon(std::move(*bytes));
  return image ? ScratchDefect::None : ScratchDefect::NotRead;
}

}  // namespace gp

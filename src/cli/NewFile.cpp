#include "cli/NewFile.h"

#include "cli/Console.h"
#include "cli/Streams.h"
#include "platform/files/FileWriting.h"

#include <filesystem>

namespace gp::cli {
namespace {

WriteDefect writeNew(const std::filesystem::path& path, std::span<const std::uint8_t> bytes) {
  const std::string folder = path.parent_path().string();
  return writeInto(folder.empty() ? "." : folder, path.filename().string(), bytes, ExistingFile::Keep);
}

}  // namespace

int writeNewFile(const std::string& path, std::span<const std::uint8_t> bytes, bool replaces) {
  const bool isAnywhere = replaces || isStream(path);
  const WriteDefect defect = !isAnywhere                ? writeNew(path, bytes)
                             : writeOutput(path, bytes) ? WriteDefect::None
                                                        : WriteDefect::NotWritten;
  if (defect == WriteDefect::None) return kDone;
  complain(path, describe(defect));
  return kRefused;
}

}  // namespace gp::cli

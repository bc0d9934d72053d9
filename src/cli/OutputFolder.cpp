#include "cli/OutputFolder.h"

#include "cli/Streams.h"
#include "platform/files/FileWriting.h"
#include "platform/files/Files.h"

#include <filesystem>

namespace gp::cli {
namespace {

constexpr const char* kInputName = "stdin";

// A number of megabytes. Every file takes at least a byte, so the bound of bytes is enough.
bool parseBounds(const std::string& text, OutputBounds& bounds) {
  int megabytes = 0;
  if (!parseNumber(text, megabytes) || megabytes == 0) return false;
  bounds.bytes = static_cast<std::uint64_t>(megabytes) << 20;
  bounds.files = bounds.bytes;
  return true;
}

}  // namespace

bool OutputFolder::write(const std::string& name, std::span<const std::uint8_t> bytes) {
  const char* const reason = tryWrite(name, bytes);
  if (reason) complain(pathOf(name), reason);
  return !reason;
}

const char* OutputFolder::tryWrite(const std::string& name, std::span<const std::uint8_t> bytes) {
  if (!hasRoomFor(1, bytes.size())) return kTooMuch;
  const WriteDefect defect = writeInto(folder_, name, bytes, replaces_ ? ExistingFile::Replace : ExistingFile::Keep);
  if (defect != WriteDefect::None) return describe(defect);
  --left_.files;
  left_.bytes -= bytes.size();
  return nullptr;
}

std::string OutputNames::nameFor(const std::string& bare) {
  int& number = last_[bare];
  for (;;) {
    ++number;
    std::string name = number == 1 ? bare : bare + "-" + std::to_string(number);
    if (taken_.insert(name).second) return name;
  }
}

std::string stemOf(const std::string& path) {
  return isStream(path) ? kInputName : std::filesystem::path(path).stem().string();
}

int parseFolderArguments(const std::string& command, Arguments arguments, FolderArguments& given) {
  if (!takeOption(arguments, "-d", given.folder) || given.folder.empty())
    return badUsage(command + ": one -d DIR is needed");
  std::string size;
  if (!takeOption(arguments, "--max-size", size) || (!size.empty() && !parseBounds(size, given.bounds)))
    return badUsage(command + ": --max-size takes a number of megabytes");
  given.replaces = takeFlag(arguments, "--force");
  Split split = splitOptions(arguments);
  if (!split.options.empty()) return badUsage(command + ": unknown option " + split.options.front());
  if (split.files.empty()) return badUsage(command + ": no file given");
  given.files = split.files;
  return kDone;
}

int makeFolderFor(const FolderArguments& given) {
  std::error_code error;
  std::filesystem::create_directories(given.folder, error);
  if (directoryExists(given.folder)) return kDone;
  complain(given.folder, "not a folder, and cannot be made");
  return kRefused;
}

int takeFolderArguments(const std::string& command, const Arguments& arguments, FolderArguments& given) {
  const int status = parseFolderArguments(command, arguments, given);
  return status == kDone ? makeFolderFor(given) : status;
}

}  // namespace gp::cli

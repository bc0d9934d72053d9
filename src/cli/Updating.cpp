#include "cli/Updating.h"

#include "cli/Streams.h"
#include "files/format/IconDecoder.h"

#include <array>
#include <filesystem>

namespace gp::cli {
namespace {

constexpr std::chrono::seconds kLongestWait{30};
constexpr const char* kInUse = "being updated by another program";
constexpr const char* kNotOrdinary = "not an ordinary file, and not written over";
constexpr const char* kChanged = "changed by another program meanwhile, and not written";
constexpr const char* kShorterThanTold = "shorter than its directory says";

const char* describeUnread(ArraysDefect defect) {
  if (defect == ArraysDefect::CutShort) return kShorterThanTold;
  return describe(defect == ArraysDefect::NotReadable ? IconDefect::NotReadable : IconDefect::NotAnIcon);
}

WriteDefect writeTarget(IconArrays& arrays, const std::string& path, const std::string& output) {
  const std::string& target = targetOf(path, output);
  if (isStream(target))
    return writeOutput(target, composeWholeFile(arrays)) ? WriteDefect::None : WriteDefect::NotWritten;
  return output.empty() ? writeBack(arrays, path) : writeWholeFile(arrays, output);
}

// True also if there is no file.
bool isOrdinary(const std::string& path) {
  std::error_code error;
  const auto status = std::filesystem::status(path, error);
  return !std::filesystem::exists(status) || std::filesystem::is_regular_file(status);
}

// False, after an error message, for a defect.
bool isDone(WriteDefect defect, const std::string& target, const FailureText& failure) {
  if (defect == WriteDefect::None) return true;
  if (defect == WriteDefect::Changed)
    complain(target, kChanged);
  else
    complain(target, isOrdinary(target) ? failure() : kNotOrdinary);
  return false;
}

}  // namespace

std::optional<UpdateArguments> parseUpdate(const std::string& command, Arguments arguments, UpdateOptions options) {
  UpdateArguments given;
  struct Option {
    bool isTaken;
    const char* name;
    const char* usage;
    std::string& value;
  };
  for (const Option& option : {Option{true, "-o", "-o OUT", given.output},
                               {options.at, "--at", "--at N", given.position},
                               {options.image, "--image", "--image N", given.image}}) {
    if (!option.isTaken || takeOption(arguments, option.name, option.value)) continue;
    badUsage(command + ": one " + option.usage + " is all it takes");
    return std::nullopt;
  }
  Split split = splitOptions(arguments);
  if (!split.options.empty()) {
    badUsage(command + ": unknown option " + split.options.front());
    return std::nullopt;
  }
  given.files = std::move(split.files);
  return given;
}

std::optional<FileLock> lockForUpdate(const std::string& path) {
  auto lock = FileLock::take(path, kLongestWait);
  if (!lock) complain(path, kInUse);
  return lock;
}

bool readForUpdate(const std::string& path, IconArrays& arrays) {
  const ArraysDefect defect = readArraysInput(path, ReservedField::Any, arrays);
  if (defect == ArraysDefect::None) return true;
  complain(path, describeUnread(defect));
  return false;
}

const std::string& targetOf(const std::string& path, const std::string& output) {
  return output.empty() ? path : output;
}

bool writeUpdate(IconArrays& arrays, const std::string& path, const std::string& output, const FailureText& failure) {
  return isDone(writeTarget(arrays, path, output), targetOf(path, output), failure);
}

bool writeUpdate(std::span<const std::uint8_t> bytes, const FileBytes& read, const std::string& path,
                 const std::string& output, const FailureText& failure) {
  const std::string& target = targetOf(path, output);
  if (!isStream(target) && output.empty())
    return isDone(writeFile(target, std::array{bytes}, read.version()), target, failure);
  return isDone(writeOutput(target, bytes) ? WriteDefect::None : WriteDefect::NotWritten, target, failure);
}

}  // namespace gp::cli

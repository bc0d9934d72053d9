// Code of the subcommands that change a file with several icons: parsing their arguments, reading the file, and writing
// it once. When they refuse, nothing is written.
#pragma once

#include "cli/Console.h"
#include "files/format/IconArrays.h"
#include "platform/files/FileLock.h"

#include <functional>
#include <optional>
#include <span>
#include <string>

namespace gp::cli {

// The arguments of such a subcommand.
struct UpdateArguments {
  Arguments files;       // and other positional arguments
  std::string output;    // value of -o, or empty
  std::string position;  // value of --at, or empty
  std::string image;     // value of --image, or empty
};
// The options that a subcommand takes besides -o.
struct UpdateOptions {
  bool at = false;
  bool image = false;
};
// Empty, after an error message, for an unknown option, one that occurs twice and one without its value.
std::optional<UpdateArguments> parseUpdate(const std::string& command, Arguments arguments, UpdateOptions options);

// Waits until no other call updates the file, and keeps others waiting as long as the result lives. Empty, after an
// error message, when that takes too long.
std::optional<FileLock> lockForUpdate(const std::string& path);

// Reads a file as the browser does. False, after an error message, when it cannot be read, is not an icon file, or is
// shorter than its directory states.
[[nodiscard]] bool readForUpdate(const std::string& path, IconArrays& arrays);

// The file that an update writes: `output`, or the input file if that is empty.
const std::string& targetOf(const std::string& path, const std::string& output);
// The text for a failure, which can take a look at the file.
using FailureText = std::function<std::string()>;
// Writes the arrays, which were read from `path`, to that file. If this fails, the former content is kept, `failure` is
// printed and the result is false.
[[nodiscard]] bool writeUpdate(IconArrays& arrays, const std::string& path, const std::string& output,
                               const FailureText& failure);

// The same with the bytes of a file that is not of icons. `read` are those that were read from `path`.
[[nodiscard]] bool writeUpdate(std::span<const std::uint8_t> bytes, const FileBytes& read, const std::string& path,
                               const std::string& output, const FailureText& failure);

}  // namespace gp::cli

// What the subcommands that change a file of several icons share: their arguments, reading the file, and writing it
// once. Nothing is written on a refusal.
#pragma once

#include "cli/Console.h"
#include "files/format/IconArrays.h"

#include <optional>
#include <string>

namespace gp::cli {

// What such a subcommand was told.
struct UpdateArguments {
  Arguments files;       // and what else stands there by its place
  std::string output;    // -o, empty without
  std::string position;  // --at, likewise
};
enum class PositionOption { None, At };
// Nothing on an option that is unknown, twice there or without its value, which has been complained about.
std::optional<UpdateArguments> parseUpdate(const std::string& command, Arguments arguments, PositionOption position);

// Reads a file as the browser does. False, after a complaint, when it cannot be read, is no icon file, or is shorter
// than its directory says.
[[nodiscard]] bool readForUpdate(const std::string& path, IconArrays& arrays);

// The file that an update writes: `output`, or if that is empty the file that it comes from.
const std::string& targetOf(const std::string& path, const std::string& output);
// Writes the arrays, which come from `path`, there. What cannot be written whole leaves there what was there before;
// then it complains with the text given and gives false.
[[nodiscard]] bool writeUpdate(IconArrays& arrays, const std::string& path, const std::string& output,
                               const std::string& failure);

}  // namespace gp::cli

// Standard input and output in place of files: "-" names standard input where a file is read, and standard output where
// one file is written. A file of that name is "./-".
#pragma once

#include "files/format/IconArrays.h"

#include <cstdint>
#include <optional>
#include <span>
#include <string>

namespace gp::cli {

bool isStream(const std::string& path);

// Read a file or standard input. Empty as readFile, and for an input of more than kMaxFileBytes.
std::optional<FileBytes> readInput(const std::string& path);
std::optional<IconFile> readIconInput(const std::string& path);
// The same for commands that also accept animated cursors, which are read whole; see isRiffFile.
std::optional<IconFile> readImageInput(const std::string& path);
// Reads all bytes, see readWholeIconFile.
std::optional<IconFile> readWholeIconInput(const std::string& path);

// As readIconArrays.
[[nodiscard]] ArraysDefect readArraysInput(const std::string& path, ReservedField rule, IconArrays& arrays);

// Writes to a file as replaceFile does, or to standard output.
[[nodiscard]] bool writeOutput(const std::string& path, std::span<const std::uint8_t> bytes);

// The reason why a file could not be written, in one line.
const char* describe(WriteDefect defect);

}  // namespace gp::cli

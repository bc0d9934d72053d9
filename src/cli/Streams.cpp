#include "cli/Streams.h"

#include "animation/format/AniFile.h"
#include "platform/files/FileWriting.h"

#include <array>
#include <cstdio>
#include <vector>

namespace gp::cli {
namespace {

constexpr const char* kStream = "-";
constexpr std::size_t kPieceSize = std::size_t{1} << 16;

std::optional<FileBytes> readStandardInput() {
  std::vector<std::uint8_t> bytes;
  std::array<std::uint8_t, kPieceSize> piece;
  while (const std::size_t count = std::fread(piece.data(), 1, piece.size(), stdin)) {
    if (bytes.size() + count > kMaxFileBytes) return std::nullopt;
    bytes.insert(bytes.end(), piece.begin(), piece.begin() + static_cast<std::ptrdiff_t>(count));
  }
  if (std::ferror(stdin) != 0) return std::nullopt;
  return FileBytes(bytes);
}

std::optional<IconFile> parseStandardInput() {
  auto bytes = readStandardInput();
  return bytes ? std::optional(parseIconFile(std::move(*bytes))) : std::nullopt;
}

}  // namespace

bool isStream(const std::string& path) { return path == kStream; }

std::optional<FileBytes> readInput(const std::string& path) {
  return isStream(path) ? readStandardInput() : readFile(path);
}

std::optional<IconFile> readIconInput(const std::string& path) {
  return isStream(path) ? parseStandardInput() : readIconFile(path);
}

std::optional<IconFile> readImageInput(const std::string& path) {
  auto file = readIconInput(path);
  const bool isPart = file && !isStream(path) && isRiffFile(file->span());
  return isPart ? readWholeIconFile(path) : std::move(file);
}

std::optional<IconFile> readWholeIconInput(const std::string& path) {
  return isStream(path) ? parseStandardInput() : readWholeIconFile(path);
}

ArraysDefect readArraysInput(const std::string& path, ReservedField rule, IconArrays& arrays) {
  if (!isStream(path)) return readIconArrays(path, rule, arrays);
  auto file = parseStandardInput();
  if (file) return takeIconArrays(std::move(*file), rule, arrays);
  arrays = {};
  return ArraysDefect::NotReadable;
}

bool writeOutput(const std::string& path, std::span<const std::uint8_t> bytes) {
  if (!isStream(path)) return replaceFile(path, bytes);
  return std::fwrite(bytes.data(), 1, bytes.size(), stdout) == bytes.size() && std::fflush(stdout) == 0;
}

const char* describe(WriteDefect defect) {
  return defect == WriteDefect::AlreadyThere ? "already there, and not replaced" : "cannot be written";
}

}  // namespace gp::cli

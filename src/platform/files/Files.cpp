#include "platform/files/Files.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <new>
#include <system_error>

namespace gp {
namespace {

namespace fs = std::filesystem;

// Larger than any icon file and nearly any program, and still read in a fraction of a second.
constexpr std::uintmax_t kMaxFileBytes = std::uintmax_t{256} << 20;

bool isRegularFile(const fs::path& path) {
  std::error_code error;
  return fs::is_regular_file(path, error);
}

std::optional<std::uintmax_t> sizeOf(const fs::path& path) {
  if (!isRegularFile(path)) return std::nullopt;
  std::error_code error;
  const std::uintmax_t size = fs::file_size(path, error);
  return error ? std::nullopt : std::optional(size);
}

// Memory filled with zeros, which the system allocates only when it is touched. Null when there is not enough.
FileBytes::Memory zeros(std::size_t size) {
  return FileBytes::Memory(static_cast<std::uint8_t*>(std::calloc(std::max<std::size_t>(size, 1), 1)));
}

std::optional<FileBytes> readBytes(const fs::path& path, std::size_t size, std::span<const FileRange> ranges) {
  std::ifstream stream(path, std::ios::binary);
  FileBytes::Memory bytes = zeros(size);
  if (!stream || !bytes) return std::nullopt;
  for (const auto& [begin, end] : ranges) {
    if (begin >= size) break;
    const std::size_t wanted = std::min<std::uint64_t>(end, size) - begin;
    stream.seekg(static_cast<std::streamoff>(begin));
    stream.read(reinterpret_cast<char*>(bytes.get()) + begin, static_cast<std::streamsize>(wanted));
    if (stream.bad()) return std::nullopt;
    const auto read = static_cast<std::size_t>(stream.gcount());
    if (read < wanted) return FileBytes(std::move(bytes), begin + read);  // the file was shortened meanwhile
  }
  return FileBytes(std::move(bytes), size);
}

std::optional<FileBytes> readBytes(const fs::path& path, std::size_t size) {
  const FileRange whole{0, size};
  return readBytes(path, size, {&whole, 1});
}

bool mayReplace(const fs::path& path) {
  std::error_code error;
  const fs::file_status status = fs::status(path, error);
  if (!fs::exists(status)) return true;
  return fs::is_regular_file(status) && (status.permissions() & fs::perms::owner_write) != fs::perms::none;
}

using Piece = std::span<const std::uint8_t>;

WriteOutcome writePieces(const fs::path& path, std::span<const Piece> pieces) {
  std::ofstream stream(path, std::ios::binary | std::ios::trunc);
  if (!stream) return {};
  for (const Piece piece : pieces)
    stream.write(reinterpret_cast<const char*>(piece.data()), static_cast<std::streamsize>(piece.size()));
  stream.close();
  if (stream) return {.opened = true, .whole = true};
  std::error_code ignored;
  fs::remove(path, ignored);
  return {.opened = true, .whole = false};
}

bool writeBytes(const fs::path& path, Piece bytes) { return writePieces(path, {&bytes, 1}); }

using Pieces = std::span<const Piece>;

std::uintmax_t totalSize(Pieces pieces) {
  std::uintmax_t size = 0;
  for (const Piece piece : pieces) size += piece.size();
  return size;
}

// Writes the bytes [begin, end) of the content at the same positions of the file. Returns false when writing fails.
bool writeRange(std::fstream& stream, Pieces pieces, std::uintmax_t begin, std::uintmax_t end) {
  stream.seekp(static_cast<std::streamoff>(begin));
  std::uintmax_t start = 0;
  for (const Piece piece : pieces) {
    const std::uintmax_t from = std::clamp(begin, start, start + piece.size()) - start;
    const std::uintmax_t to = std::clamp(end, start, start + piece.size()) - start;
    stream.write(reinterpret_cast<const char*>(piece.data()) + from, static_cast<std::streamsize>(to - from));
    start += piece.size();
  }
  stream.flush();
  return stream.good();
}

bool cutTo(const fs::path& path, std::uintmax_t size) {
  std::error_code error;
  fs::resize_file(path, size, error);
  return !error;
}

// Restores the former content. That needs no free space: bytes that could not be written were not overwritten either.
void putBack(const fs::path& path, Piece former) {
  std::error_code ignored;
  if (former.empty()) {
    fs::remove(path, ignored);
    return;
  }
  std::fstream stream(path, std::ios::in | std::ios::out | std::ios::binary);
  writeRange(stream, {&former, 1}, 0, former.size());
  stream.close();
  cutTo(path, former.size());
}

// Extends the file first: when the disk is full, this fails before any former content is overwritten.
WriteOutcome overwrite(const fs::path& path, Pieces pieces, Piece former, std::uintmax_t formerSize) {
  constexpr WriteOutcome kNotWhole{.opened = true, .whole = false};
  std::fstream stream(path, std::ios::in | std::ios::out | std::ios::binary);
  if (!stream) return {};
  const std::uintmax_t size = totalSize(pieces);
  const std::uintmax_t shared = std::min(size, formerSize);
  if (!writeRange(stream, pieces, shared, size)) {
    stream.close();
    cutTo(path, formerSize);
    return kNotWhole;
  }
  const bool written = writeRange(stream, pieces, 0, shared);
  stream.close();
  if (written && stream && cutTo(path, size)) return {.opened = true, .whole = true};
  putBack(path, former);
  return kNotWhole;
}

}  // namespace

FileBytes::FileBytes(std::span<const std::uint8_t> bytes) : bytes_(zeros(bytes.size())), size_(bytes.size()) {
  if (!bytes_) throw std::bad_alloc();
  std::copy(bytes.begin(), bytes.end(), bytes_.get());
}

std::optional<FileBytes> readFile(const std::string& path) {
  const auto size = sizeOf(path);
  return size && *size <= kMaxFileBytes ? readBytes(path, static_cast<std::size_t>(*size)) : std::nullopt;
}

std::optional<FileBytes> readFileStart(const std::string& path, std::size_t count) {
  const auto size = sizeOf(path);
  return size ? readBytes(path, static_cast<std::size_t>(std::min({*size, std::uintmax_t{count}, kMaxFileBytes})))
              : std::nullopt;
}

std::optional<FileBytes> readFileRanges(const std::string& path, std::span<const FileRange> ranges) {
  const auto size = sizeOf(path);
  const std::uint64_t extent = ranges.empty() ? 0 : ranges.back().end;
  return size ? readBytes(path, static_cast<std::size_t>(std::min<std::uintmax_t>(*size, extent)), ranges)
              : std::nullopt;
}

bool replaceFile(const std::string& path, std::span<const std::uint8_t> bytes) {
  return mayReplace(path) && writeBytes(path, bytes);
}

WriteOutcome rewriteFile(const std::string& path, Pieces pieces, Piece former) {
  if (!mayReplace(path) || totalSize(pieces) > kMaxFileBytes) return {};
  const auto formerSize = sizeOf(path);
  return formerSize ? overwrite(path, pieces, former, *formerSize) : writePieces(path, pieces);
}

bool FileExists(const std::string& path) {
  return isRegularFile(path) && std::ifstream(path, std::ios::binary).is_open();
}

bool isSameFile(const std::string& first, const std::string& second) {
  std::error_code error;
  return fs::equivalent(first, second, error) && !error;
}

bool directoryExists(const std::string& path) {
  std::error_code error;
  return fs::is_directory(path, error);
}

bool HasFileAttribute(const std::string& path) {
  std::error_code error;
  const fs::file_status status = fs::status(path, error);
  if (!fs::exists(status)) return false;
  const bool isReadOnly = (status.permissions() & fs::perms::owner_write) == fs::perms::none;
  const bool isHidden = fs::path(path).filename().native().starts_with('.');
  return isReadOnly || isHidden || fs::is_directory(status);
}

}  // namespace gp

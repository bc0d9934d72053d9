#include "platform/text/ProfileFile.h"

#include "platform/files/FileWriting.h"
#include "platform/files/Files.h"
#include "platform/text/ProfileText.h"

#include <cstdint>
#include <utility>

namespace gp {
namespace {

constexpr std::size_t kMaxProfileBytes = std::size_t{1} << 20;
constexpr std::size_t kMaxValueBytes = 2047;  // a buffer of 2048 bytes with its terminator

// Returns an empty text for an absent file, nullopt for a file that is too large to be a profile file.
std::optional<std::string> load(const std::string& path) {
  const auto bytes = readFileStart(path, kMaxProfileBytes + 1);
  if (!bytes) return std::string();
  const auto span = bytes->span();
  return span.size() > kMaxProfileBytes ? std::nullopt : std::optional(std::string(span.begin(), span.end()));
}

}  // namespace

ProfileFile::ProfileFile(std::string path) : path_(std::move(path)) {
  auto text = load(path_);
  isWritable_ = text.has_value();
  text_ = std::move(text).value_or(std::string());
  saved_ = text_;
}

std::optional<std::string> ProfileFile::find(std::string_view section, std::string_view key) const {
  return findValue(text_, section, key);
}

std::string ProfileFile::read(std::string_view section, std::string_view key, std::string_view fallback) const {
  return find(section, key).value_or(std::string(fallback.substr(0, kMaxValueBytes)));
}

void ProfileFile::write(std::string_view section, std::string_view key, std::string_view value) {
  if (fitsInIni(value))
    setValue(text_, section, key, value);
  else
    isWritable_ = false;
}

void ProfileFile::remove(std::string_view section, std::string_view key) { removeValue(text_, section, key); }

bool ProfileFile::save() {
  if (!isWritable_ || text_.size() > kMaxProfileBytes) return false;
  if (text_ == saved_) return true;
  if (!replacePrivateFile(path_, {reinterpret_cast<const std::uint8_t*>(text_.data()), text_.size()})) return false;
  saved_ = text_;
  return true;
}

std::string ReadIniString(std::string_view section, std::string_view key, std::string_view fallback,
                          const std::string& file) {
  return ProfileFile(file).read(section, key, fallback);
}

bool WriteIniString(std::string_view section, std::string_view key, std::string_view value, const std::string& file) {
  ProfileFile profile(file);
  profile.write(section, key, value);
  return profile.save();
}

bool DeleteIniKey(std::string_view section, std::string_view key, const std::string& file) {
  ProfileFile profile(file);
  profile.remove(section, key);
  return profile.save();
}

}  // namespace gp

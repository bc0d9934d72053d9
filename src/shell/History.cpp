#include "shell/History.h"

#include "platform/files/Files.h"
#include "platform/text/Paths.h"
#include "platform/text/ProfileFile.h"
#include "platform/text/ProfileText.h"
#include "platform/text/Utf8.h"

namespace gp {
namespace {

// In a caption a single "&" would mark an access key.
std::string withPlainAmpersands(const std::string& text) {
  std::string result;
  for (const char c : text) result += c == '&' ? std::string("&&") : std::string(1, c);
  return result;
}

}  // namespace

std::string History::keyOf(int number) const { return std::to_string(number) + "."; }

void History::load() {
  if (FileExists(file_)) take(ProfileFile(file_));
}

void History::take(const ProfileFile& profile) {
  paths_.clear();
  for (int i = 1; i <= limit_; ++i) {
    const std::string path = trim(profile.read(section_, keyOf(i)));
    if (!path.empty()) paths_.push_back(path);
  }
}

void History::add(const std::string& path) {
  if (!fitsInIni(path)) return;
  ProfileFile profile(file_);
  const std::string top = profile.read(section_, keyOf(1));
  if (top == path) return;
  if (trim(top).empty())
    writeOnTop(profile, path);
  else
    shiftDown(profile, path);
  if (profile.save()) take(profile);
}

void History::writeOnTop(ProfileFile& profile, const std::string& path) const {
  profile.remove(section_, keyOf(1));
  profile.write(section_, keyOf(1), path);
}

void History::shiftDown(ProfileFile& profile, const std::string& path) const {
  std::vector<std::string> rows{path};
  for (int i = 1; i < limit_; ++i) rows.push_back(profile.read(section_, keyOf(i)));
  for (int i = 1; i <= limit_; ++i) profile.remove(section_, keyOf(i));
  for (int i = 0; i < limit_; ++i) profile.write(section_, keyOf(i + 1), rows[i]);
}

std::string History::path(int index) const {
  return index >= 1 && index <= count() ? paths_[index - 1] : std::string();
}

std::string History::caption(int index) const {
  const std::string entry = path(index);
  return entry.empty() ? entry : "&" + std::to_string(index) + " " + withPlainAmpersands(ShortenPath(entry));
}

bool History::isVisible(int index) const { return index >= 0 && index <= count() && count() > 0; }

}  // namespace gp

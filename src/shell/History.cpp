#include "shell/History.h"

#include "platform/files/Files.h"
#include "platform/text/Paths.h"
#include "platform/text/ProfileFile.h"
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
  if (!FileExists(file_)) return;
  paths_.clear();
  for (int i = 1; i <= limit_; ++i) {
    const std::string path = trim(ReadIniString(section_, keyOf(i), "", file_));
    if (!path.empty()) paths_.push_back(path);
  }
}

void History::add(const std::string& path) {
  if (!fitsInIni(path)) return;
  const std::string top = ReadIniString(section_, keyOf(1), "", file_);
  if (top == path) return;
  if (trim(top).empty())
    writeOnTop(path);
  else
    shiftDown(path);
  load();
}

void History::writeOnTop(const std::string& path) {
  (void)DeleteIniKey(section_, keyOf(1), file_);
  (void)WriteIniString(section_, keyOf(1), path, file_);
}

void History::shiftDown(const std::string& path) {
  std::vector<std::string> rows{path};
  for (int i = 1; i < limit_; ++i) rows.push_back(ReadIniString(section_, keyOf(i), "", file_));
  for (int i = 1; i <= limit_; ++i) (void)DeleteIniKey(section_, keyOf(i), file_);
  for (int i = 0; i < limit_; ++i) (void)WriteIniString(section_, keyOf(i + 1), rows[i], file_);
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

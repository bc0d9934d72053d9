// A settings file in profile format; see ProfileText.h. A file above 1 MB is not a settings file: it reads as empty and
// is not written.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace gp {

// One reading of a settings file, and changes that are written together.
class ProfileFile {
 public:
  // Reads the file, which may be absent.
  explicit ProfileFile(std::string path);

  // Returns the value of a key, at most 2047 bytes; `fallback`, cut to the same length, without the key or the file.
  std::string read(std::string_view section, std::string_view key, std::string_view fallback = {}) const;
  std::optional<std::string> find(std::string_view section, std::string_view key) const;

  // A value that does not fit on a line makes save return false.
  void write(std::string_view section, std::string_view key, std::string_view value);
  void remove(std::string_view section, std::string_view key);

  // Writes the file if there are changes, for its owner only. Returns false when nothing or not everything was written.
  [[nodiscard]] bool save();

 private:
  std::string path_;
  std::string text_;
  std::string saved_;  // the text in the file
  bool isWritable_;
};

// The same for one value.
std::string ReadIniString(std::string_view section, std::string_view key, std::string_view fallback,
                          const std::string& file);
[[nodiscard]] bool WriteIniString(std::string_view section, std::string_view key, std::string_view value,
                                  const std::string& file);
[[nodiscard]] bool DeleteIniKey(std::string_view section, std::string_view key, const std::string& file);

}  // namespace gp

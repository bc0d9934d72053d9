// Runs the built gpicon like a user does, in a temporary folder.
#pragma once

#include "files/IcoBuilder.h"

#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <gtest/gtest.h>
#include <sys/wait.h>

namespace gp::test {

inline std::string inShell(const std::string& argument) {
  std::string out = "'";
  for (const char c : argument) out += c == '\'' ? std::string("'\\''") : std::string(1, c);
  return out + "'";
}

struct Outcome {
  int status = -1;  // -1 when a signal ended it
  std::string out, err;
};

// The number in `count` bytes, the lowest first.
inline std::uint32_t number(const Bytes& bytes, std::size_t at, int count) {
  std::uint32_t value = 0;
  for (int i = 0; i < count; ++i) value |= std::uint32_t{bytes.at(at + i)} << 8 * i;
  return value;
}

inline long lines(const std::string& text) { return std::count(text.begin(), text.end(), '\n'); }

class Gpicon : public testing::Test {
 protected:
  IconFolder folder;

  Outcome run(const std::vector<std::string>& arguments) const { return runAfter("", arguments); }
  // Runs gpicon after shell commands that set limits, for example.
  Outcome runAfter(const std::string& before, const std::vector<std::string>& arguments) const {
    std::string command = before + inShell(GPICON);
    for (const std::string& argument : arguments) command += " " + inShell(argument);
    const std::string errors = folder.path("stderr");
    Outcome outcome;
    FILE* pipe = popen(("{ " + command + "; } 2>" + inShell(errors)).c_str(), "r");
    for (int c; (c = std::fgetc(pipe)) != EOF;) outcome.out += static_cast<char>(c);
    const int status = pclose(pipe);
    outcome.status = WIFEXITED(status) && WEXITSTATUS(status) < 128 ? WEXITSTATUS(status) : -1;
    const Bytes bytes = bytesOf(errors);
    outcome.err.assign(bytes.begin(), bytes.end());
    return outcome;
  }
  std::string icon(const std::string& name, int size, int bits) const {
    return folder.write(name, build(entryOf(anyPicture(size, bits))));
  }
  std::string textOf(const std::string& name) const {
    const Bytes bytes = bytesOf(folder.path(name));
    return {bytes.begin(), bytes.end()};
  }
  std::vector<std::string> namesIn(const std::string& name) const {
    std::vector<std::string> names;
    for (const auto& item : std::filesystem::directory_iterator(folder.path(name)))
      names.push_back(item.path().filename());
    std::sort(names.begin(), names.end());
    return names;
  }
};

inline Bytes fileOf(const std::vector<Entry>& entries) { return build(IcoFile{entries, 0, 1, {}}); }

}  // namespace gp::test

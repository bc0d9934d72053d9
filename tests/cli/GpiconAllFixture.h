// Subcommands that change all images of files and write these to a folder.
#pragma once

#include "cli/GpiconFixture.h"

namespace gp::test {

class GpiconAll : public Gpicon {
 protected:
  const std::string out = folder.path("out");

  explicit GpiconAll(std::string command) : command_(std::move(command)) {}

  // The command on all images with the words before and after `--all -d DIR`.
  Outcome runAll(std::vector<std::string> words, const std::vector<std::string>& more = {}) const {
    words.insert(words.begin(), command_);
    words.insert(words.end(), {"--all", "-d", out});
    words.insert(words.end(), more.begin(), more.end());
    return run(words);
  }
  static void expectDone(const Outcome& o) {
    EXPECT_EQ(o.status, 0);
    EXPECT_EQ(o.out + o.err, "");
  }
  void expectBadUsage(const Outcome& o, const std::string& text) const {
    EXPECT_EQ(o.status, 2);
    EXPECT_EQ(o.err, "gpicon: " + command_ + ": " + text + " (see gpicon --help)\n");
    EXPECT_FALSE(std::filesystem::exists(out));
  }
  Bytes written(const std::string& name) const { return bytesOf(out + "/" + name); }

 private:
  const std::string command_;
};

}  // namespace gp::test

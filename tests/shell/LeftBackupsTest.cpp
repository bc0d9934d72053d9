// Files whose writing was interrupted, at the next start.
#include "platform/files/Backups.h"
#include "support/ShellFixture.h"
#include "support/StateFolder.h"

#include <chrono>
#include <filesystem>
#include <gtest/gtest.h>

namespace gp {
namespace {

namespace fs = std::filesystem;

class LeftBackups : public test::ShellFixture {
 protected:
  // Leaves a backup as a program does that dies while it writes. Returns the path of the file.
  std::string interruptWriting(const std::string& name, const std::string& former) {
    const test::StateFolder made(folder.file("made"));
    {
      auto left =
          Backup::make(folder.file(name), {reinterpret_cast<const std::uint8_t*>(former.data()), former.size()});
    }
    for (const auto& item : fs::directory_iterator(folder.file("made/Glimmerpane")))
      fs::rename(item.path(), folder.file(item.path().filename().native()));
    return folder.write(name, "half");
  }
  static std::string question(const std::string& path) {
    return path +
           "\n\nWriting this file was interrupted, so it may be damaged.  Its former content has been kept.\n"
           "Yes puts the former content back, No leaves the file as it is and removes what was kept,\n"
           "Cancel asks again at the next start.\n\n"
           "Put the former content back?";
  }
  void expectQuestion(const std::string& path, BoxAnswer answer) {
    boxes.expect(question(path), BoxButtons::YesNoCancel, BoxIcon::Question, answer);
  }
  std::size_t count() const { return leftBackups(folder.path()).size(); }
};

TEST_F(LeftBackups, YesPutsTheFormerContentBack) {
  const std::string path = interruptWriting("a.ico", "whole content");
  expectQuestion(path, BoxAnswer::Yes);
  start();
  EXPECT_EQ(folder.read("a.ico"), "whole content");
  EXPECT_EQ(count(), 0u);
}

TEST_F(LeftBackups, NoLeavesTheFileAndIsAskedOnce) {
  const std::string path = interruptWriting("a.ico", "whole content");
  expectQuestion(path, BoxAnswer::No);
  start();
  EXPECT_EQ(folder.read("a.ico"), "half");
  EXPECT_EQ(count(), 0u);
}

TEST_F(LeftBackups, CancelKeepsBoth) {
  const std::string path = interruptWriting("a.ico", "whole content");
  expectQuestion(path, BoxAnswer::Cancel);
  start();
  EXPECT_EQ(folder.read("a.ico"), "half");
  EXPECT_EQ(count(), 1u);
}

TEST_F(LeftBackups, WhatCannotBePutBackIsKept) {
  const std::string path = interruptWriting("a.ico", "whole content");
  fs::permissions(path, fs::perms::owner_read);
  const std::string backup = leftBackups(folder.path()).at(0).backup;
  expectQuestion(path, BoxAnswer::Yes);
  boxes.expectTold(path + "\n\nThe former content cannot be put back.  It is kept in\n" + backup, BoxIcon::Exclamation);
  start();
  EXPECT_EQ(folder.read("a.ico"), "half");
  EXPECT_EQ(count(), 1u);
}

TEST_F(LeftBackups, OfAFileWithSeveralTheOldestIsOfferedAndYesIsEnough) {
  interruptWriting("a.ico", "whole content");
  fs::last_write_time(leftBackups(folder.path()).at(0).backup,
                      fs::file_time_type::clock::now() - std::chrono::hours(1));
  const std::string path = interruptWriting("a.ico", "damaged before");
  expectQuestion(path, BoxAnswer::Yes);
  start();
  EXPECT_EQ(folder.read("a.ico"), "whole content");
  EXPECT_EQ(count(), 0u);
}

TEST_F(LeftBackups, AFileWithThatContentIsNotAskedAbout) {
  interruptWriting("a.ico", "half");
  start();
  EXPECT_EQ(count(), 0u);
}

}  // namespace
}  // namespace gp

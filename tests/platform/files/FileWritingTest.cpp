#include "platform/files/Backups.h"
#include "platform/files/FileWriting.h"
#include "platform/files/Files.h"
#include "platform/files/ProgramFolders.h"
#include "support/FailingCalls.h"
#include "support/FullDisk.h"
#include "support/StateFolder.h"
#include "support/TempFolder.h"

#include <chrono>
#include <filesystem>
#include <gtest/gtest.h>
#include <sys/xattr.h>
#include <unistd.h>
#include <vector>

namespace gp {
namespace {

namespace fs = std::filesystem;

Piece bytesOf(std::string_view text) { return {reinterpret_cast<const std::uint8_t*>(text.data()), text.size()}; }

// In three pieces, one of them empty.
WriteDefect write(const std::string& path, std::string_view text, const std::optional<FileVersion>& read = {}) {
  const std::size_t half = text.size() / 2;
  const std::vector pieces{bytesOf(text.substr(0, half)), bytesOf(""), bytesOf(text.substr(half))};
  return writeFile(path, pieces, read);
}

class FileWriting : public testing::Test {
 protected:
  std::size_t filesIn(const std::string& folder) const {
    return static_cast<std::size_t>(std::distance(fs::directory_iterator(folder), fs::directory_iterator()));
  }

  test::TempFolder folder_;
  const std::string work_ = folder_.makeFolder("work");
  const std::string path_ = work_ + "/a";
  const test::StateFolder state_{folder_.file("state")};
};

TEST_F(FileWriting, TheContentIsThePiecesInTheirOrder) {
  for (const std::string content : {"longer than before", "short", ""}) {
    folder_.write("work/a", "of ten let");
    EXPECT_EQ(write(path_, content), WriteDefect::None);
    EXPECT_EQ(folder_.read("work/a"), content);
  }
  EXPECT_EQ(filesIn(work_), 1u);
}

TEST_F(FileWriting, ANewFileHasTheUsualPermissions) {
  EXPECT_EQ(write(path_, "x"), WriteDefect::None);
  const std::string usual = folder_.write("usual", "");
  EXPECT_EQ(folder_.read("work/a"), "x");
  EXPECT_EQ(fs::status(path_).permissions(), fs::status(usual).permissions());
}

TEST_F(FileWriting, PermissionsAttributesAndSymbolicLinksAreKept) {
  folder_.write("work/a", "old");
  fs::permissions(path_, fs::perms::owner_read | fs::perms::owner_write | fs::perms::group_exec);
  const bool hasAttributes = setxattr(path_.c_str(), "user.origin", "here", 4, 0) == 0;
  fs::create_symlink("work/a", folder_.file("soft"));
  fs::create_symlink("soft", folder_.file("softer"));
  EXPECT_EQ(write(folder_.file("softer"), "new"), WriteDefect::None);
  EXPECT_EQ(folder_.read("work/a"), "new");
  EXPECT_TRUE(fs::is_symlink(folder_.file("soft")) && fs::is_symlink(folder_.file("softer")));
  EXPECT_EQ(fs::status(path_).permissions(), fs::perms::owner_read | fs::perms::owner_write | fs::perms::group_exec);
  char value[8] = {};
  getxattr(path_.c_str(), "user.origin", value, sizeof(value));
  EXPECT_STREQ(value, hasAttributes ? "here" : "");
}

TEST_F(FileWriting, ALinkToNothingYetBecomesALinkToTheNewFile) {
  fs::create_symlink("work/a", folder_.file("soft"));
  EXPECT_EQ(write(folder_.file("soft"), "new"), WriteDefect::None);
  EXPECT_TRUE(fs::is_symlink(folder_.file("soft")));
  EXPECT_EQ(folder_.read("work/a"), "new");
}

TEST_F(FileWriting, LinksInACircleAreNoFile) {
  fs::create_symlink("second", folder_.file("first"));
  fs::create_symlink("first", folder_.file("second"));
  EXPECT_EQ(write(folder_.file("first"), "new"), WriteDefect::NotOpened);
}

TEST_F(FileWriting, EveryNameOfAFileHasTheNewContent) {
  folder_.write("work/a", "old");
  fs::create_hard_link(path_, folder_.file("hard"));
  EXPECT_EQ(write(path_, "content"), WriteDefect::None);
  EXPECT_EQ(folder_.read("hard"), "content");
  EXPECT_TRUE(leftBackups(stateFolder()).empty());
}

TEST_F(FileWriting, OwnerAndGroupAreKept) {
  if (geteuid() != 0) GTEST_SKIP() << "only root can own files of others";
  folder_.write("work/a", "old");
  ASSERT_EQ(chown(path_.c_str(), 1234, 4321), 0);
  EXPECT_EQ(write(path_, "new"), WriteDefect::None);
  struct stat status;
  ASSERT_EQ(stat(path_.c_str(), &status), 0);
  EXPECT_EQ(status.st_uid, 1234u);
  EXPECT_EQ(status.st_gid, 4321u);
}

TEST_F(FileWriting, WhatIsNoWritableFileStaysAsItWas) {
  folder_.write("work/a", "old");
  fs::permissions(path_, fs::perms::owner_read);
  ASSERT_EQ(mkfifo(folder_.file("pipe").c_str(), 0600), 0);
  for (const std::string& target : {path_, folder_.file("pipe"), folder_.path(), folder_.file("absent/a"),
                                    std::string(), std::string("/dev/full"), folder_.file(std::string(300, 'n'))})
    EXPECT_EQ(write(target, "new"), WriteDefect::NotOpened) << target;
  EXPECT_EQ(folder_.read("work/a"), "old");
  EXPECT_EQ(filesIn(work_), 1u);
}

TEST_F(FileWriting, OnlyTheFileThatWasReadIsReplaced) {
  folder_.write("work/a", "old");
  const auto read = readFile(path_);
  ASSERT_TRUE(read);
  EXPECT_EQ(write(path_, "new", read->version()), WriteDefect::None);
  EXPECT_EQ(write(path_, "newer", read->version()), WriteDefect::Changed);
  EXPECT_EQ(folder_.read("work/a"), "new");
  fs::remove(path_);
  EXPECT_EQ(write(path_, "newer", read->version()), WriteDefect::Changed);
  EXPECT_FALSE(fs::exists(path_));
}

// Another program replaces the file while the new content is being written.
class Interrupting : public SystemCalls {
 public:
  explicit Interrupting(std::string path) : path_(std::move(path)) {}
  int sync(int file) override {
    std::ofstream(path_) << "of the other program";
    return SystemCalls::sync(file);
  }

 private:
  const std::string path_;
};

TEST_F(FileWriting, AFileThatChangesDuringTheWriteIsKept) {
  for (const bool isThere : {true, false}) {
    fs::remove(path_);
    if (isThere) folder_.write("work/a", "old");
    Interrupting calls(path_);
    const SystemCallsFor replaced(calls);
    EXPECT_EQ(write(path_, "new"), isThere ? WriteDefect::Changed : WriteDefect::AlreadyThere);
    EXPECT_EQ(folder_.read("work/a"), "of the other program");
  }
  EXPECT_EQ(filesIn(work_), 1u);
}

TEST_F(FileWriting, AWriteWithoutRoomLeavesTheFileAsItWas) {
  const std::string old(60000, 'o');
  folder_.write("work/a", old);
  const test::FullDisk full(50000);
  EXPECT_EQ(write(path_, std::string(100000, 'n')), WriteDefect::NotWritten);
  EXPECT_EQ(write(work_ + "/new", std::string(100000, 'n')), WriteDefect::NotWritten);
  EXPECT_TRUE(folder_.read("work/a") == old);
  EXPECT_EQ(filesIn(work_), 1u);
  EXPECT_EQ(write(path_, "small"), WriteDefect::None);
}

TEST_F(FileWriting, OnAFullDiskAFileStaysAsItWas) {
  const test::SmallDisk disk(work_);
  if (!disk.isMounted()) GTEST_SKIP() << "only root can mount a disk";
  const std::string old(5000, 'o');
  folder_.write("work/a", old);
  disk.fillUpTo(4096);
  EXPECT_EQ(write(path_, std::string(20000, 'n')), WriteDefect::NotWritten);
  EXPECT_TRUE(folder_.read("work/a") == old);
  EXPECT_EQ(filesIn(work_), 2u) << "the file and the ballast";
}

// How the file is written, and the number of names that it has.
struct Way {
  const char* name;
  bool exists;
  bool hasOtherName;
};

class FailingWrites : public FileWriting, public testing::WithParamInterface<Way> {
 protected:
  void SetUp() override {
    if (GetParam().exists) folder_.write("work/a", old_);
    if (GetParam().hasOtherName) fs::create_hard_link(path_, folder_.file("hard"));
  }
  void removeAll() {
    for (const LeftBackup& left : leftBackups(stateFolder())) discard(left);
    fs::remove(folder_.file("hard"));
    fs::remove_all(work_);
    folder_.makeFolder("work");
    SetUp();
  }
  // Puts the content back that a write left behind in a backup.
  void restoreAll() {
    for (const LeftBackup& left : leftBackups(stateFolder())) EXPECT_TRUE(restore(left));
  }
  std::string content() const { return fs::exists(path_) ? folder_.read("work/a") : kNone; }
  std::string formerContent() const { return GetParam().exists ? old_ : kNone; }

  static constexpr const char* kNone = "no file";
  const std::string old_ = std::string(3000, 'o');
  const std::string new_ = std::string(5000, 'n');
};

TEST_P(FailingWrites, LeaveTheWholeFormerOrTheWholeNewContent) {
  for (const test::Failure failure : {test::Failure::Once, test::Failure::Lasting, test::Failure::Death}) {
    bool hasFailed = true;
    int first = 0;
    while (hasFailed) {
      ++first;
      removeAll();
      WriteDefect defect;
      {
        test::FailingCalls failing(first, failure, EIO);
        const SystemCallsFor replaced(failing);
        defect = write(path_, new_);
        hasFailed = failing.count() >= first;
      }
      SCOPED_TRACE("call " + std::to_string(first) + ", failure " + std::to_string(static_cast<int>(failure)));
      restoreAll();
      EXPECT_TRUE(content() == formerContent() || content() == new_) << content();
      EXPECT_TRUE(defect != WriteDefect::None || content() == new_);
      if (failure == test::Failure::Death) continue;
      EXPECT_LE(filesIn(work_), 1u) << "nothing is left beside the file";
    }
    EXPECT_GT(first, 5);
  }
}

INSTANTIATE_TEST_SUITE_P(All, FailingWrites,
                         testing::Values(Way{"New", false, false}, Way{"Replaced", true, false},
                                         Way{"InPlace", true, true}),
                         [](const auto& way) { return way.param.name; });

// Where files cannot be made without a name.
class OldSystem : public SystemCalls {
 public:
  int open(int folder, const char* name, int flags, mode_t mode) override {
    if ((flags & O_TMPFILE) != O_TMPFILE) return SystemCalls::open(folder, name, flags, mode);
    errno = EOPNOTSUPP;
    return -1;
  }
};

TEST_F(FileWriting, SystemsWithoutNamelessFilesDoTheSame) {
  OldSystem calls;
  const SystemCallsFor replaced(calls);
  EXPECT_EQ(write(path_, "new"), WriteDefect::None);
  EXPECT_EQ(write(path_, "newer"), WriteDefect::None);
  EXPECT_EQ(folder_.read("work/a"), "newer");
  EXPECT_EQ(filesIn(work_), 1u);
  const test::FullDisk full(10);
  EXPECT_EQ(write(path_, "much too long for this disk"), WriteDefect::NotWritten);
  EXPECT_EQ(filesIn(work_), 1u);
}

TEST_F(FileWriting, ABackupIsOfferedUntilItIsRestoredOrDiscarded) {
  folder_.write("work/a", "old");
  { auto kept = Backup::make(path_, bytesOf("former")); }
  const auto left = leftBackups(stateFolder());
  ASSERT_EQ(left.size(), 1u);
  EXPECT_EQ(left[0].path, path_);
  EXPECT_TRUE(restore(left[0]));
  EXPECT_EQ(folder_.read("work/a"), "former");
  EXPECT_TRUE(leftBackups(stateFolder()).empty());
  { auto kept = Backup::make(path_, bytesOf("other")); }
  discard(leftBackups(stateFolder()).at(0));
  EXPECT_TRUE(leftBackups(stateFolder()).empty());
  EXPECT_EQ(folder_.read("work/a"), "former");
}

TEST_F(FileWriting, ABackupInUseAndOneThatIsNotNeededAreNotOffered) {
  folder_.write("work/a", "old");
  {
    const auto used = Backup::make(path_, bytesOf("former"));
    EXPECT_TRUE(leftBackups(stateFolder()).empty()) << "the program that writes is still there";
    used->remove();
  }
  { auto kept = Backup::make(path_, bytesOf("old")); }
  EXPECT_TRUE(leftBackups(stateFolder()).empty()) << "the file has that content";
  EXPECT_EQ(filesIn(stateFolder()), 0u);
}

// A device that fails for good once new content has been written over a file.
class FailingAfterwards : public SystemCalls {
 public:
  ssize_t write(int file, const iovec* pieces, int count, off_t position) override {
    return hasFailed_ ? -1 : SystemCalls::write(file, pieces, count, position);
  }
  int resize(int, off_t) override {
    hasFailed_ = true;
    errno = EIO;
    return -1;
  }

 private:
  bool hasFailed_ = false;
};

// A file that was written in place twice, in vain.
class FailedRepeatedly : public FileWriting {
 protected:
  FailedRepeatedly() {
    folder_.write("work/a", "whole content");
    fs::create_hard_link(path_, folder_.file("hard"));
    for (const std::string text : {"first", "second"}) {
      for (const LeftBackup& older : left())
        fs::last_write_time(older.backup, fs::file_time_type::clock::now() - std::chrono::hours(1));
      FailingAfterwards calls;
      const SystemCallsFor replaced(calls);
      EXPECT_EQ(write(path_, text), WriteDefect::NotWritten);
    }
    EXPECT_EQ(folder_.read("hard"), "secondcontent");
  }
  std::vector<LeftBackup> left() const { return leftBackups(stateFolder()); }
};

TEST_F(FailedRepeatedly, TheOldestBackupIsOfferedFirstAndItsRestorationRemovesTheOthers) {
  ASSERT_EQ(left().size(), 2u);
  EXPECT_TRUE(restore(left()[0]));
  EXPECT_EQ(folder_.read("hard"), "whole content");
  EXPECT_TRUE(left().empty());
}

TEST_F(FailedRepeatedly, AWriteThatSucceedsRemovesTheBackupsOfItsFileAlone) {
  const std::string other = folder_.write("work/b", "other");
  { auto kept = Backup::make(other, bytesOf("former")); }
  ASSERT_EQ(left().size(), 3u);
  EXPECT_EQ(write(path_, "third try"), WriteDefect::None);
  EXPECT_EQ(folder_.read("hard"), "third try");
  ASSERT_EQ(left().size(), 1u);
  EXPECT_EQ(left()[0].path, other);
}

TEST_F(FileWriting, TheStateFolderIsForItsOwnerOnly) {
  EXPECT_EQ(stateFolder(), folder_.file("state/Glimmerpane"));
  EXPECT_EQ(fs::status(stateFolder()).permissions(), fs::perms::owner_all);
  fs::permissions(stateFolder(), fs::perms::all);
  EXPECT_EQ(fs::status(stateFolder()).permissions(), fs::perms::owner_all);
}

TEST_F(FileWriting, IntoAFolderOnlyNewPlainNamesAreWritten) {
  const auto into = [this](const std::string& name, ExistingFile existing) {
    return writeInto(work_, name, bytesOf("new"), existing);
  };
  EXPECT_EQ(into("a", ExistingFile::Keep), WriteDefect::None);
  EXPECT_EQ(into("a", ExistingFile::Keep), WriteDefect::AlreadyThere);
  EXPECT_EQ(into("a", ExistingFile::Replace), WriteDefect::None);
  for (const std::string name : {"", ".", "..", "../b", "c/d"})
    EXPECT_EQ(into(name, ExistingFile::Replace), WriteDefect::NotOpened) << name;
  EXPECT_EQ(filesIn(work_), 1u);
}

TEST_F(FileWriting, PlantedLinksAreNeverFollowed) {
  const std::string outside = folder_.write("outside", "precious");
  fs::create_symlink(outside, work_ + "/soft");
  fs::create_symlink(folder_.file("absent"), work_ + "/dangling");
  fs::create_hard_link(outside, work_ + "/hard");
  for (const ExistingFile existing : {ExistingFile::Keep, ExistingFile::Replace})
    for (const std::string name : {"soft", "dangling", "hard"})
      EXPECT_EQ(writeInto(work_, name, bytesOf("new"), existing), WriteDefect::AlreadyThere) << name;
  EXPECT_EQ(folder_.read("outside"), "precious");
  EXPECT_FALSE(fs::exists(folder_.file("absent")));
  EXPECT_EQ(filesIn(work_), 3u);
}

}  // namespace
}  // namespace gp

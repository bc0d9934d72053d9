// A command that writes files, run again and again, each time with another system call that fails, until all calls have
// failed once. Afterwards each file must have its whole former content or the whole content that the command gives it.
#pragma once

#include "platform/files/Backups.h"
#include "platform/files/ProgramFolders.h"
#include "support/FailingCalls.h"
#include "support/StateFolder.h"
#include "support/TempFolder.h"

#include <array>
#include <filesystem>
#include <gtest/gtest.h>
#include <map>
#include <string>

namespace gp::test {

// By path below the folder.
using Contents = std::map<std::string, std::string>;

inline Contents contentsOf(const TempFolder& folder, const std::string& name) {
  Contents contents;
  for (const auto& item : std::filesystem::recursive_directory_iterator(folder.file(name)))
    if (item.is_regular_file()) {
      const std::string path = item.path().lexically_relative(folder.file(name)).native();
      contents[path] = folder.read(name + "/" + path);
    }
  return contents;
}

// The target of the command before it.
enum class Target { New, Existing, WithOtherName };
inline constexpr std::array<Target, 3> kTargets{Target::New, Target::Existing, Target::WithOtherName};
inline std::string nameOf(Target target) {
  static constexpr const char* kNames[] = {"New", "Existing", "WithOtherName"};
  return kNames[static_cast<int>(target)];
}

class CommandUnderFailures : public testing::Test {
 protected:
  // Makes the files in work(), among them the target if it exists.
  virtual void makeFiles() = 0;
  // Prepares the command, without failures.
  virtual void begin() {}
  // Runs the command. Returns false when it reported a failure.
  virtual bool run() = 0;
  // Called after each run that has not ended with Failure::Death.
  virtual void checkState(bool /*isDone*/) {}
  // True for files of which a failure is not reported.
  virtual bool isSilent(const std::string& /*path*/) const { return false; }

  std::string work() const { return folder_.file("work"); }
  std::string path(const std::string& name) const { return work() + "/" + name; }
  const TempFolder& folder() const { return folder_; }

  void failEveryCall(Target target, const std::string& targetName) {
    target_ = target, targetName_ = targetName;
    FailingCalls none(0, Failure::Once);
    ASSERT_TRUE(runUnder(none)) << "without a failure";
    former_ = before_, done_ = contentsOf(folder_, "work");
    ASSERT_NE(former_, done_) << "the command writes nothing";
    checkState(true);
    for (const Failure failure : {Failure::Once, Failure::Lasting, Failure::Death})
      failEveryCall(failure, none.count());
  }

 private:
  void failEveryCall(Failure failure, int error) {
    int first = 0;
    for (bool hasFailed = true; hasFailed;) {
      FailingCalls failing(++first, failure, error);
      SCOPED_TRACE("call " + std::to_string(first) + ", failure " + std::to_string(static_cast<int>(failure)) +
                   ", error " + std::to_string(error));
      const bool isDone = runUnder(failing);
      hasFailed = failing.count() >= first;
      check(failure, isDone);
      if (HasFailure()) return;
    }
    EXPECT_GT(first, kFewestCalls);
  }
  bool runUnder(FailingCalls& calls) {
    for (const LeftBackup& left : leftBackups(stateFolder())) discard(left);
    for (const char* name : {"work", "links"}) {
      std::filesystem::remove_all(folder_.file(name));
      folder_.makeFolder(name);
    }
    makeFiles();
    if (target_ == Target::WithOtherName)
      for (const auto& [name, content] : contentsOf(folder_, "work"))
        std::filesystem::create_hard_link(path(name), folder_.file("links/" + name));
    begin();
    before_ = contentsOf(folder_, "work");
    EXPECT_EQ(before_.contains(targetName_), target_ != Target::New);
    const SystemCallsFor replaced(calls);
    return run();
  }
  void check(Failure failure, bool isDone) {
    for (const LeftBackup& left : leftBackups(stateFolder())) EXPECT_TRUE(restore(left));
    const Contents now = contentsOf(folder_, "work");
    for (const auto& [name, content] : now) EXPECT_TRUE(isWhole(name, content, failure)) << name;
    for (const auto& [name, content] : former_) EXPECT_TRUE(now.contains(name)) << name << " is gone";
    if (failure == Failure::Death) return;
    for (const auto& [name, content] : done_)
      EXPECT_TRUE(!isDone || isSilent(name) || isIn(now, name, content)) << name << " was not written";
    checkState(isDone);
  }
  bool isWhole(const std::string& name, const std::string& content, Failure failure) const {
    const bool isLeft =
        failure == Failure::Death && std::filesystem::path(name).filename().native().starts_with(".glimmerpane-");
    return isLeft || isIn(former_, name, content) || isIn(done_, name, content);
  }
  static bool isIn(const Contents& contents, const std::string& name, const std::string& content) {
    const auto found = contents.find(name);
    return found != contents.end() && found->second == content;
  }

  static constexpr int kFewestCalls = 5;  // folder, file, write, sync, name

  TempFolder folder_;
  const StateFolder state_{folder_.file("state")};
  Target target_ = Target::New;
  std::string targetName_;
  Contents before_, former_, done_;
};

}  // namespace gp::test

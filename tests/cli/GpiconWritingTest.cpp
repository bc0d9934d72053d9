// Files that gpicon writes while it is killed, runs out of room, or works beside another gpicon.
#include "cli/GpiconFixture.h"

#include <csignal>
#include <fstream>
#include <spawn.h>
#include <unistd.h>

namespace gp::test {
namespace {

namespace fs = std::filesystem;

class GpiconWriting : public Gpicon {
 protected:
  pid_t start(const std::vector<std::string>& arguments) const {
    std::vector<char*> pointers{const_cast<char*>(GPICON)};
    for (const std::string& argument : arguments) pointers.push_back(const_cast<char*>(argument.c_str()));
    pointers.push_back(nullptr);
    pid_t process = 0;
    EXPECT_EQ(posix_spawn(&process, GPICON, nullptr, nullptr, pointers.data(), environ), 0);
    return process;
  }
  static int statusOf(pid_t process) {
    int status = 0;
    EXPECT_EQ(waitpid(process, &status, 0), process);
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
  }
  // Three icons, the first one of the given number of bytes.
  std::string large(std::size_t size) const {
    std::vector<Entry> entries{anyEntry(16, 4), anyEntry(32, 8), anyEntry(48, 24)};
    entries[0].image.resize(size);
    entries[0].bytesInRes = static_cast<std::uint32_t>(size);
    return folder.write("large.ico", fileOf(entries));
  }
  int countIn(const std::string& path) const { return static_cast<int>(number(bytesOf(path), 4, 2)); }
};

TEST_F(GpiconWriting, AKillLeavesTheWholeFormerOrTheWholeNewFile) {
  const std::string path = large(1'000'000);
  const Bytes former = bytesOf(path);
  ASSERT_EQ(run({"remove", path, "2", "-o", folder.path("new.ico")}).status, 0);
  const Bytes after = bytesOf(folder.path("new.ico"));
  for (int i = 0; i < 12; ++i) {
    folder.write("large.ico", former);
    const pid_t process = start({"remove", path, "2"});
    usleep(static_cast<useconds_t>(i * 800));
    kill(process, SIGKILL);
    statusOf(process);
    const Bytes now = bytesOf(path);
    ASSERT_TRUE(now == former || now == after) << "killed after " << i * 800 << " microseconds";
  }
}

TEST_F(GpiconWriting, TwoCallsOnOneFileLoseNothing) {
  for (int i = 0; i < 8; ++i) {
    const std::string path = folder.write("two.ico", fileOf({anyEntry(16, 4), anyEntry(32, 8), anyEntry(48, 24)}));
    const std::string extra = icon("extra.ico", 24, 4);
    const pid_t removing = start({"remove", path, "0"});
    const pid_t adding = start({"add", path, extra});
    const bool removed = statusOf(removing) == 0;
    const bool added = statusOf(adding) == 0;
    EXPECT_TRUE(removed && added);
    EXPECT_EQ(countIn(path), 3);
  }
}

TEST_F(GpiconWriting, ALimitOnFileSizesIsAnErrorAndLeavesTheFile) {
  const std::string path = large(300'000);
  const Bytes former = bytesOf(path);
  const Outcome o = runAfter("ulimit -f 100; ", {"remove", path, "2"});
  EXPECT_EQ(o.status, 1);
  EXPECT_EQ(lines(o.err), 1);
  EXPECT_TRUE(bytesOf(path) == former);
}

TEST_F(GpiconWriting, AReaderThatLeavesIsAnError) {
  const std::string path = icon("a.ico", 16, 4);
  std::string command = inShell(GPICON) + " list";
  for (int i = 0; i < 1500; ++i) command += " " + inShell(path);
  const std::string script = folder.path("script");
  std::ofstream(script) << command << " 2>" << inShell(folder.path("errors")) << " | true\nexit ${PIPESTATUS[0]}\n";
  const int status = std::system(("bash " + inShell(script)).c_str());
  EXPECT_TRUE(WIFEXITED(status));
  EXPECT_EQ(WEXITSTATUS(status), 1);
  EXPECT_EQ(textOf("errors"), "gpicon: stdout: cannot be written\n");
}

TEST_F(GpiconWriting, ControlCharactersOfNamesStayOnOneLine) {
  const Outcome bad = run({"check", folder.path("a\nb\x1B[31m\xC2\x9B.ico")});
  EXPECT_EQ(lines(bad.err), 1);
  EXPECT_NE(bad.err.find("a\\x0Ab\\x1B[31m\xC2\\x9B.ico"), std::string::npos) << bad.err;
  const Outcome listed = run({"list", icon("a\nb.ico", 16, 4)});
  EXPECT_EQ(lines(listed.out), 1);
  EXPECT_NE(listed.out.find("a\\x0Ab.ico\t0\t16x16"), std::string::npos) << listed.out;
}

TEST_F(GpiconWriting, ALinkStaysALinkAndEveryNameGetsTheNewContent) {
  const std::string path = large(1000);
  fs::create_symlink("large.ico", folder.path("soft.ico"));
  fs::create_hard_link(path, folder.path("hard.ico"));
  EXPECT_EQ(runAfter("XDG_STATE_HOME=" + inShell(folder.path("state")) + " ", {"remove", folder.path("soft.ico"), "0"})
                .status,
            0);
  EXPECT_TRUE(fs::is_symlink(folder.path("soft.ico")));
  EXPECT_EQ(countIn(folder.path("hard.ico")), 2);
  EXPECT_TRUE(namesIn("state/Glimmerpane").empty());
}

}  // namespace
}  // namespace gp::test

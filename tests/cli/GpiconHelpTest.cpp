// What gpicon prints about itself, from its table of commands.
#include "cli/CommandTable.h"
#include "cli/GpiconFixture.h"

#include <set>

namespace gp::test {
namespace {

using GpiconHelp = Gpicon;

TEST_F(GpiconHelp, EachCommandIsDescribedWithAnExampleOfItself) {
  for (const cli::Command& command : cli::commandTable()) {
    const std::string name(command.name);
    const Outcome o = run({"help", name});
    EXPECT_EQ(o.status, 0) << name;
    EXPECT_EQ(o.out, "gpicon " + command.wholeUsage() + "\n" + command.wholeHelp() + "\n\nExample:\n  gpicon " +
                         command.example + "\n");
    EXPECT_EQ(run({name, "--help"}).out, o.out);
    EXPECT_EQ(std::string(command.example).substr(0, name.size() + 1), name + " ");
    EXPECT_EQ(std::string(command.usage).substr(0, name.size() + 1), name + " ");
  }
}

TEST_F(GpiconHelp, NoTwoCommandsShareAName) {
  std::set<std::string_view> names;
  for (const cli::Command& command : cli::commandTable()) EXPECT_TRUE(names.insert(command.name).second);
  EXPECT_EQ(cli::findCommand("nonsense"), nullptr);
}

TEST_F(GpiconHelp, AllCommandsAreDescribedByHelpAndItsOptions) {
  const std::string all = run({"--help"}).out;
  for (const cli::Command& command : cli::commandTable())
    EXPECT_NE(all.find("gpicon " + command.wholeUsage() + "\n" + command.wholeHelp() + "\n"), std::string::npos)
        << command.name;
  EXPECT_EQ(run({"help"}).out, all);
  EXPECT_EQ(run({"-h"}).out, all);
}

TEST_F(GpiconHelp, TheVersionIsOneLine) {
  const Outcome o = run({"--version"});
  EXPECT_EQ(o.status, 0);
  EXPECT_EQ(o.out.substr(0, 7), "gpicon ");
  EXPECT_EQ(o.out.find_first_not_of("0123456789.", 7), o.out.size() - 1);
  EXPECT_EQ(lines(o.out), 1);
}

TEST_F(GpiconHelp, UnknownAndSurplusNamesAreBadUsage) {
  EXPECT_EQ(run({"help", "nonsense"}).err, "gpicon: help: unknown subcommand nonsense (see gpicon --help)\n");
  EXPECT_EQ(run({"help", "nonsense"}).status, 2);
  EXPECT_EQ(run({"help", "list", "check"}).status, 2);
  EXPECT_EQ(run({"lst"}).err, "gpicon: unknown subcommand lst (see gpicon --help)\n");
}

TEST_F(GpiconHelp, TheOptionsOfACommandAreThoseOfItsUsage) {
  EXPECT_EQ(cli::findCommand("split")->options(), (std::vector<std::string>{"-d", "--force", "--max-size"}));
  EXPECT_EQ(cli::findCommand("reduce")->options(), (std::vector<std::string>{"--to", "--method", "--threshold"}));
  EXPECT_EQ(cli::findCommand("effect")->options(), (std::vector<std::string>{"--color", "--style"}));
  EXPECT_EQ(cli::findCommand("resave")->options(), std::vector<std::string>());
}

}  // namespace
}  // namespace gp::test

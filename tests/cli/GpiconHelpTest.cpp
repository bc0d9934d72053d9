// What gpicon prints about itself, from its table of commands.
#include "cli/CommandTable.h"
#include "cli/GpiconFixture.h"
#include "effects/EffectTable.h"

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
    EXPECT_EQ((std::string(command.example) + " ").substr(0, name.size() + 1), name + " ");
    EXPECT_EQ((std::string(command.usage) + " ").substr(0, name.size() + 1), name + " ");
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
  std::set<std::string> ofEffects;
  for (const EffectRow* effect : commandLineEffects())
    for (const Setting& setting : effect->settings) ofEffects.insert("--" + std::string(setting.option));
  std::vector<std::string> ofEffect{"--all", "-d", "--force", "--max-size"};
  ofEffect.insert(ofEffect.end(), ofEffects.begin(), ofEffects.end());
  EXPECT_EQ(cli::findCommand("effect")->options(), ofEffect);
  EXPECT_EQ(cli::findCommand("resave")->options(), std::vector<std::string>());
}

TEST_F(GpiconHelp, TheManualPageDescribesAllCommands) {
  const Outcome o = run({"manual"});
  EXPECT_EQ(o.status, 0);
  for (const cli::Command& command : cli::commandTable())
    EXPECT_NE(o.out.find("\n.SS gpicon " + std::string(command.name)), std::string::npos) << command.name;
  // Roff would take these for requests and for escapes.
  EXPECT_EQ(o.out.find("\\\""), std::string::npos);
  EXPECT_EQ(o.out.find("\\x"), std::string::npos);
  EXPECT_EQ(run({"manual", "x"}).status, 2);
}

TEST_F(GpiconHelp, TheCompletionsOfEachShellHaveAllCommandsAndOptions) {
  for (const std::string shell : {"bash", "zsh", "fish"}) {
    const Outcome o = run({"completions", shell});
    EXPECT_EQ(o.status, 0);
    for (const cli::Command& command : cli::commandTable()) {
      EXPECT_NE(o.out.find(command.name), std::string::npos) << command.name;
      for (const std::string& option : command.options())
        EXPECT_NE(o.out.find(shell == "fish" ? option.substr(option.rfind('-') == 0 ? 1 : 2) : option),
                  std::string::npos)
            << shell << " " << option;
    }
  }
  EXPECT_EQ(run({"completions"}).status, 2);
  EXPECT_EQ(run({"completions", "csh"}).status, 2);
}

TEST_F(GpiconHelp, BashCompletesCommandsAndOptions) {
  const std::string script = folder.write("gpicon.bash", [&] {
    const std::string text = run({"completions", "bash"}).out;
    return Bytes(text.begin(), text.end());
  }());
  const auto completed = [&](const std::string& words) {
    const std::string call = "bash -c 'source " + script + "; COMP_WORDS=(" + words +
                             "); COMP_CWORD=$((${#COMP_WORDS[@]} - 1)); _gpicon; echo ${COMPREPLY[@]}' > " +
                             folder.path("reply") + "; exit; ";
    runAfter("(" + call + "); ", {"--version"});
    return textOf("reply");
  };
  EXPECT_EQ(completed("gpicon st"), "strip\n");
  EXPECT_EQ(completed("gpicon split --f"), "--force\n");
  EXPECT_EQ(completed("gpicon help sal"), "salvage\n");
}

}  // namespace
}  // namespace gp::test

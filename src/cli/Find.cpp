#include "cli/OrderedJobs.h"
#include "cli/Streams.h"
#include "cli/Subcommands.h"
#include "extraction/FolderSearch.h"
#include "platform/files/FileWriting.h"
#include "platform/files/Files.h"

#include <atomic>
#include <climits>
#include <cstdio>
#include <filesystem>
#include <set>
#include <span>

namespace gp::cli {
namespace {

namespace fs = std::filesystem;

struct Wish {
  std::string folder;
  std::string patterns = "*.exe";
  bool withSubfolders = false;
  int jobs = 1;
  bool saves = false;
  bool replaces = false;
  SearchChoices choices;
};

std::vector<std::string> programsOf(const Wish& wish) {
  std::vector<std::string> programs;
  FolderVisitor visitor;
  visitor.file = [&](const std::string& path) {
    programs.push_back(path);
    return true;
  };
  walkFolder(wish.folder, wish.patterns, wish.withSubfolders, visitor);
  return programs;
}

int list(const std::vector<std::string>& programs, int jobs) {
  return runInOrder(programs.size(), jobs, nullptr, [&](std::size_t i, ItemOutput& output) {
    if (const int count = countIconsOfFile(programs[i]); count > 0)
      output.print(printable(programs[i]) + "\t" + std::to_string(count) + "\n");
  });
}

struct DrawnIcon {
  int index = 0;  // in its program
  std::vector<std::uint8_t> file;
  std::string name;
};

// Saves the icons of all programs. Drawing and writing take place on several threads; the icons get their names and
// numbers in the order of the programs.
class Saving {
 public:
  Saving(const Wish& wish, const std::vector<std::string>& programs) : wish_(wish), programs_(programs) {}

  int run() {
    const int status = runInOrder(programs_.size(), wish_.jobs, nullptr,
                                  [this](std::size_t i, ItemOutput& output) { save(i, output); });
    std::printf("Total: %d icons\n", written_.load());
    return status;
  }

 private:
  // Of a program with more icons, the others are drawn when it is its turn.
  static constexpr std::size_t kMostKept = 1024;

  void save(std::size_t item, ItemOutput& output) {
    std::vector<DrawnIcon> icons;
    if (hasRoom()) draw(item, icons, output);
    named_.await(item);
    giveNames(programs_[item], icons, output);
    named_.end(item);
    write(icons, output);
  }

  void draw(std::size_t item, std::vector<DrawnIcon>& icons, ItemOutput& output) {
    // The index of an icon is in its name. The number of files is known only in its turn.
    SearchChoices choices = wish_.choices;
    choices.naming = SearchNaming::ByFile;
    choices.maximum = INT_MAX;
    int drawn = 0, index = -1;
    const auto keep = [&](const std::string&, std::span<const std::uint8_t> bytes) {
      icons.push_back({index, {bytes.begin(), bytes.end()}, {}});
      return true;
    };
    const auto next = [&] {
      ++index;
      if (icons.size() == kMostKept) saveInTurn(item, icons, output);
      return hasRoom();
    };
    extractIconsOfFile(programs_[item], choices, keep, drawn, next);
  }

  bool hasRoom() const { return total_ < wish_.choices.maximum; }

  void saveInTurn(std::size_t item, std::vector<DrawnIcon>& icons, ItemOutput& output) {
    named_.await(item);
    giveNames(programs_[item], icons, output);
    write(icons, output);
    icons.clear();
  }

  // The reason why a file with that name is not written; null for none.
  const char* refusalOf(const std::string& name) const {
    std::error_code ignored;
    if (names_.contains(name)) return "is from another program of this name (see --serial)";
    const bool isThere = fs::exists(fs::symlink_status(fs::path(wish_.choices.target) / name, ignored));
    return isThere && !wish_.replaces ? describe(WriteDefect::AlreadyThere) : nullptr;
  }

  // Icons without a name are not written: those beyond the maximum, and those whose file would replace another one.
  void giveNames(const std::string& program, std::vector<DrawnIcon>& icons, ItemOutput& output) {
    for (DrawnIcon& icon : icons) {
      if (!hasRoom()) return;
      const std::string name = searchedName(wish_.choices, program, total_, icon.index);
      if (const char* const reason = refusalOf(name)) {
        output.complain(program, name + " " + reason);
        continue;
      }
      names_.insert(name);
      icon.name = name;
      ++total_;
    }
  }

  void write(const std::vector<DrawnIcon>& icons, ItemOutput& output) {
    const ExistingFile existing = wish_.replaces ? ExistingFile::Replace : ExistingFile::Keep;
    for (const DrawnIcon& icon : icons) {
      if (icon.name.empty()) continue;
      const WriteDefect defect = writeInto(wish_.choices.target, icon.name, icon.file, existing);
      if (defect == WriteDefect::None)
        ++written_;
      else
        output.complain(wish_.choices.target + "/" + icon.name, describe(defect));
    }
  }

  const Wish& wish_;
  const std::vector<std::string>& programs_;
  Turns named_;
  std::set<std::string> names_;  // in its turn only
  std::atomic<int> total_ = 0;   // icons with a name
  std::atomic<int> written_ = 0;
};

bool takeMaximum(Arguments& arguments, int& maximum) {
  std::string text;
  if (!takeOption(arguments, "--max", text)) return false;
  return text.empty() || (parseNumber(text, maximum) && maximum > 0);
}

// Returns kDone, or kBadUsage after an error message.
int takeWish(Arguments rest, Wish& wish) {
  if (!takeJobs(rest, wish.jobs)) return badUsage("find: --jobs takes a number above 0");
  if (!takeOption(rest, "--pattern", wish.patterns) || wish.patterns.empty())
    return badUsage("find: --pattern takes a list of patterns");
  wish.withSubfolders = takeFlag(rest, "--recursive");
  Arguments probe = rest;
  wish.saves = takeOption(probe, "-d", wish.choices.target) && !wish.choices.target.empty();
  if (wish.saves) {
    rest = probe;
    if (!takeMaximum(rest, wish.choices.maximum)) return badUsage("find: --max takes a number above 0");
    if (takeFlag(rest, "--small")) wish.choices.size = kSearchedSmall;
    if (takeFlag(rest, "--serial")) wish.choices.naming = SearchNaming::Serial;
    wish.replaces = takeFlag(rest, "--force");
  }
  const Split split = splitOptions(rest);
  if (!split.options.empty()) return badUsage("find: unknown option " + split.options.front());
  if (split.files.size() != 1) return badUsage("find: one FOLDER is needed");
  wish.folder = split.files.front();
  return kDone;
}

}  // namespace

int runFind(const Arguments& arguments) {
  Wish wish;
  wish.choices.maximum = INT_MAX;
  if (const int status = takeWish(arguments, wish); status != kDone) return status;
  for (const std::string& folder : {wish.folder, wish.choices.target})
    if (!folder.empty() && !directoryExists(folder)) {
      complain(folder, "not a folder");
      return kRefused;
    }
  const std::vector<std::string> programs = programsOf(wish);
  return wish.saves ? Saving(wish, programs).run() : list(programs, wish.jobs);
}

}  // namespace gp::cli

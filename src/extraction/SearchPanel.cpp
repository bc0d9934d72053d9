#include "extraction/SearchPanel.h"

#include "document/Display.h"
#include "document/EditState.h"
#include "document/Editor.h"
#include "platform/dialogs/clsGPDialog.h"
#include "platform/files/Files.h"
#include "platform/ports/MessageBoxes.h"
#include "platform/ports/MessagePump.h"
#include "platform/scope/FlagFor.h"
#include "platform/text/Utf8.h"

#include <charconv>

namespace gp {
namespace {

constexpr const char* kSession = "You are already in Search & Extract Icons From EXE Files In Folder session.";
constexpr const char* kAniQuestion = "Terminate animated cursor session?";
constexpr const char* kPattern = "*.exe";
constexpr const char* kIconPattern = "*.ico";
constexpr int kSource = 0, kTarget = 1;                      // of the folders
constexpr int kWithSubfolders = 0, kSmall = 1, kSerial = 2;  // of the ticks
constexpr std::chrono::milliseconds kEventInterval{15}, kShowInterval{33};

// 0 for a text that is no number, or too large.
int numberIn(const std::string& text) {
  int number = 0;
  const char* const end = text.data() + text.size();
  const auto result = std::from_chars(text.data(), end, number);
  return result.ec == std::errc() && result.ptr == end ? number : 0;
}

}  // namespace

void SearchPanel::open() {
  if (context_.state.screen.mActivePanel == kNumber) return context_.boxes.tell(kSession);
  const bool isFilm = context_.state.screen.aniContainerVisible;
  if (isFilm && !context_.boxes.ask(kAniQuestion)) return;
  if (isFilm) context_.editor.endAniSession();
  context_.editor.closePanels();
  context_.editor.showPanel(kNumber);
}

void SearchPanel::setFolder(int i, const std::string& path) {
  if (!isWalking_) folders_.at(static_cast<std::size_t>(i)) = path;
}

void SearchPanel::cmdInvokeSearchPath(int i) {
  if (isWalking_) return;
  const std::string former = trim(folder(i));
  const std::string start = directoryExists(former) ? former : context_.process.mLastFolder;
  const std::string chosen = context_.dialog.chooseFolder(i == kSource ? kPattern : "", start);
  if (chosen.empty()) return;
  setFolder(i, chosen);
  notify();
}

void SearchPanel::setTick(int i, bool isOn) {
  if (isWalking_) return;
  ticks_.at(static_cast<std::size_t>(i)) = isOn;
  progressText_.clear();
  notify();
}

void SearchPanel::setMaximum(const std::string& text) {
  const int number = numberIn(text);
  if (number > 0 && !isWalking_) maximum_ = number;
}

void SearchPanel::doSearchExtract() {
  if (isWalking_) return;
  const FlagFor walking(isWalking_);
  if (isReady()) search();
}

bool SearchPanel::isReady() {
  for (std::string& folder : folders_) folder = trim(folder);
  const char* missing = nullptr;
  if (folder(kSource).empty())
    missing = "Source directory not entered yet";
  else if (folder(kTarget).empty())
    missing = "Save to directory not entered yet";
  if (missing) context_.boxes.tell(missing);
  return !missing && mayOverwrite(folder(kTarget));
}

bool SearchPanel::mayOverwrite(const std::string& target) {
  return filesInFolder(target, kIconPattern).empty() ||
         context_.boxes.ask(target +
                            "\n\nThere are icon files in this folder, which the search can overwrite.\n\nGo on?");
}

// A command between two files can throw, and the search has ended then too.
void SearchPanel::search() {
  struct End {
    SearchPanel& panel;
    ~End() {
      panel.mSearchRunning_ = false;
      panel.progressText_ = "Total: " + std::to_string(panel.mSearchCount_) + " icons";
      panel.currentFile_.clear();
    }
  };
  {
    const End end{*this};
    currentFile_ = "Search in progress......    ";
    progressText_ = "In progress... (To halt click Stop)";
    foundFiles_.clear();
    mSearchCount_ = 0;
    mSearchStop_ = false;
    mSearchRunning_ = true;
    lastEvents_ = lastShown_ = {};
    walk();
  }
  isWalking_ = false;
  notify();
}

void SearchPanel::walk() {
  const SearchChoices choices = this->choices();
  FolderVisitor visitor;
  visitor.folder = [this](const std::string&) { return letsGoOn(); };
  visitor.goesOn = [this] { return letsGoOn(); };
  visitor.file = [&](const std::string& path) {
    visit(path, choices);
    return letsGoOn();
  };
  walkFolder(folder(kSource), kPattern, tick(kWithSubfolders), visitor);
}

SearchChoices SearchPanel::choices() const {
  return {.target = folder(kTarget),
          .size = tick(kSmall) ? kSearchedSmall : kSearchedLarge,
          .naming = tick(kSerial) ? SearchNaming::Serial : SearchNaming::ByFile,
          .maximum = maximum_};
}

void SearchPanel::visit(const std::string& path, const SearchChoices& choices) {
  currentFile_ = " " + path;
  if (!letsGoOn()) return;
  const int count = countIconsOfFile(path);
  if (count > 0) foundFiles_.push_back(path + "  " + std::to_string(count));
  extractIconsOfFile(path, choices, mSearchCount_, [this] { return letsGoOn(); });
  if (mSearchCount_ >= choices.maximum) mSearchRunning_ = false;
}

// Shows the progress and processes events, each not more often than is seen. False when the search is to end.
bool SearchPanel::letsGoOn() {
  const Clock::time_point now = Clock::now();
  if (now - lastShown_ >= kShowInterval) {
    lastShown_ = now;
    notify();
  }
  if (now - lastEvents_ >= kEventInterval) {
    context_.pump.pump();
    lastEvents_ = Clock::now();
  }
  return mSearchRunning_ && !mSearchStop_;
}

void SearchPanel::notify() { context_.display.changed(DisplayPart::SidePanel); }

void SearchPanel::cmdStopBrowse() {
  if (!isWalking_) return;
  mSearchStop_ = true;
  mSearchRunning_ = false;
  progressText_.clear();
  notify();
}

void SearchPanel::finish() {
  mSearchStop_ = true;
  mSearchRunning_ = false;
}

}  // namespace gp

#include "animation/AniFiles.h"

#include "animation/AniState.h"
#include "animation/AniTexts.h"
#include "animation/format/FilmReading.h"
#include "animation/format/FilmWriting.h"
#include "document/Announcements.h"
#include "document/Display.h"
#include "document/EditState.h"
#include "document/Editor.h"
#include "document/Hourglass.h"
#include "files/FileQuestions.h"
#include "files/saving/HeldFiles.h"
#include "platform/files/FileWriting.h"
#include "platform/files/Files.h"
#include "platform/ports/MessageBoxes.h"
#include "platform/ports/MessagePump.h"
#include "platform/text/Paths.h"

#include <filesystem>

namespace gp {
namespace {

constexpr const char* kAniFilter = "Animated cursor files (*.ani)|*.ani|";
constexpr const char* kAniExtension = "ani";
constexpr const char* kNotSaved = "SaveANIFile.  Failed to save this ani file.";

// The progress on the status bar, which lets events in to be seen.
class SaveProgress {
 public:
  explicit SaveProgress(const Context& context) : context_(context) {
    show(0);
    context_.pump.pump();
  }
  ~SaveProgress() { show(kHidden); }
  SaveProgress(const SaveProgress&) = delete;
  SaveProgress& operator=(const SaveProgress&) = delete;
  void finish() { show(kDone); }

 private:
  static constexpr int kHidden = -1, kDone = 100;

  void show(int percent) {
    context_.state.screen.progressPercent = percent;
    context_.display.changed(DisplayPart::StatusBar);
  }

  const Context context_;
};

std::string nameOf(const std::string& path) { return std::filesystem::path(path).filename().string(); }

ReadFilm readFilm(const std::string& path) {
  const auto bytes = readFile(path);
  return ReadANIFileFrames(bytes ? bytes->span() : std::span<const std::uint8_t>());
}

}  // namespace

bool AniFiles::mayFramesGo() { return !ani_.mAniChanged || context_.boxes.ask(kUnsavedFramesQuestion); }

void AniFiles::open() {
  const unsigned serial = ani_.filmSerial;
  const std::string path = mayFramesGo() ? askToOpen(context_, kAniFilter) : std::string();
  // Another command can have ended the session meanwhile.
  if (!path.empty() && ani_.filmSerial == serial) open(path);
}

void AniFiles::open(const std::string& path) {
  ReadFilm film;
  {
    const Hourglass hourglass(context_);
    film = readFilm(path);
  }
  if (!film.isRead()) return context_.boxes.tell(refusalOf(film, path), BoxIcon::Exclamation);
  ani_.replaceFilm(AniFrames(std::move(film.frames)), AniMode::Read, path);
  ani_.losses = film.losses;
  ani_.choices.hotspotX = ani_.frames.frame(1).hotspotX;
  ani_.choices.hotspotY = ani_.frames.frame(1).hotspotY;
  context_.process.mCommandFile = path;
  showAniPath(context_, ani_);
  context_.editor.AddAniHistory(path);
  const std::string notice = ani_.lossesNotice();
  context_.display.announce(notice.empty() ? news::opened(nameOf(path)) : notice);
}

void AniFiles::save() {
  // The box names a hot spot, so this one is saved.
  const AniChoices choices = ani_.choices;
  const unsigned serial = ani_.filmSerial;
  if (!maySave(choices) || ani_.filmSerial != serial) return;
  const std::string path = askForName();
  if (path.empty() || !mayWriteOver(context_, path, Saved::Other) || ani_.filmSerial != serial) return;
  if (!write(path, choices)) return context_.boxes.tell(kNotSaved, BoxIcon::Exclamation);
  if (ani_.filmSerial == serial) showSaved(path, choices);
  context_.editor.AddAniHistory(path);
  context_.display.announce(news::kSaved);
}

// The count of pictures cannot differ from that of the frames' records, since a frame holds both.
bool AniFiles::maySave(const AniChoices& choices) {
  if (!isBlank(ani_.frames.frame(1).picture)) return context_.boxes.ask(saveAniQuestion(ani_.frames, choices));
  context_.boxes.tell(kBlankFirstFrame);
  return false;
}

std::string AniFiles::askForName() {
  const std::string& path = ani_.mAniPath;
  const bool isFile = path.find('.') != std::string::npos;
  return askToSave(context_, isFile ? ParseFileName(path, PathPart::BareName) : path, kAniFilter, kAniExtension);
}

bool AniFiles::write(const std::string& path, const AniChoices& choices) {
  const Hourglass hourglass(context_);
  // Composed before events are let in, so that the file has the frames that the user has confirmed.
  const std::vector<std::uint8_t> bytes = composeFilm(ani_.frames.all(), choices.hotspotX, choices.hotspotY);
  SaveProgress progress(context_);
  if (!replaceFile(path, bytes)) return false;
  progress.finish();
  return true;
}

void AniFiles::showSaved(const std::string& path, const AniChoices& choices) {
  ani_.frames.setHotspot(choices.hotspotX, choices.hotspotY);
  ani_.mAniPath = path;
  ani_.mAniChanged = false;
  ani_.losses = {};
  showAniPath(context_, ani_);
}

}  // namespace gp

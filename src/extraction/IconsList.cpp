#include "extraction/IconsList.h"

#include "document/CurrentIconGuard.h"
#include "document/Display.h"
#include "document/Document.h"
#include "document/EditState.h"
#include "document/Editor.h"
#include "document/Hourglass.h"
#include "document/PanelNumbers.h"
#include "extraction/format/ExtractedIcon.h"
#include "extraction/sources/AniSource.h"
#include "platform/files/Files.h"
#include "platform/ports/MessageBoxes.h"
#include "platform/scope/FlagFor.h"

#include <algorithm>
#include <filesystem>
#include <utility>

namespace gp {
namespace {

constexpr const char* kAniQuestion = "Terminate animated cursor session?";

}  // namespace

IconsList::IconsList(const FilesContext& context, Files& files, FileTypeIcons& fileTypes)
    : context_(context), files_(files), fileTypes_(fileTypes), work_(context) {}

IconsList::~IconsList() = default;

void IconsList::notify() { context_.display.changed(DisplayPart::SidePanel); }

// Opening and closing.

void IconsList::displayIconsInFolder() { mnuExtractSub(kFolderCommand); }

void IconsList::mnuExtractSub(int index) {
  const SourceRow* const row = findSource(index);
  if (!row || !isIdle()) return;
  if (isSameSession(*row)) return context_.boxes.tell(sessionMessage());
  const FlagFor opening(isOpening_);
  if (context_.state.screen.aniContainerVisible && !context_.boxes.ask(kAniQuestion)) return;
  if (mayCurrentIconGo(context_)) open(*row);
}

void IconsList::cmdInvokeFolderOrFileDialog() {
  if (!row_ || !isIdle()) return;
  const FlagFor opening(isOpening_);
  open(*row_);
}

bool IconsList::isSameSession(const SourceRow& row) const { return row_ == &row; }

std::string IconsList::sessionMessage() const {
  return row_ ? std::string("You are already in ") + row_->session + " session." : std::string();
}

void IconsList::open(const SourceRow& row) {
  const bool isDesktop = row.source == ListSource::Desktop;
  const std::string path = isDesktop ? context_.process.mDesktopFolder : askForSource(context_, row);
  if (path.empty() && !isDesktop) return;
  OpenedList opened;
  {
    const Hourglass hourglass(context_);
    opened = row.list(context_, row, path, fileTypes_);
  }
  showOpened(std::move(opened), path);
}

// The animated cursor session goes on when nothing takes its place.
void IconsList::showOpened(OpenedList opened, const std::string& path) {
  const bool isFailed = !opened.source;
  if (isFailed) context_.boxes.tell(opened.failure, BoxIcon::Exclamation);
  if (isFailed && context_.state.screen.aniContainerVisible) return;
  if (isFailed) opened.source = std::make_unique<EmptySource>();
  const bool isEmptyFolder = opened.row->source == ListSource::Folder && opened.source->count() == 0;
  if (isEmptyFolder) return closeEmptyFolder();
  replaceList(std::move(opened), path);
}

void IconsList::closeEmptyFolder() {
  if (row_) context_.editor.closePanels();
  context_.display.announce(countLabel());
}

void IconsList::replaceList(OpenedList opened, const std::string& path) {
  if (context_.state.screen.aniContainerVisible) context_.editor.endAniSession();
  if (context_.state.screen.mActivePanel != kIconsListPanel) context_.editor.closePanels();
  ++serial_;
  row_ = opened.row;
  source_ = std::move(opened.source);
  mListFolder_ = path;
  // The user has just been asked about its icon.
  filledContainer_ = context_.state.mCurContainer;
  invalid_.assign(static_cast<std::size_t>(source_->count()), false);
  pages_.fill(source_->count());
  markedCell_ = -1;
  if (context_.state.screen.mActivePanel != kIconsListPanel) context_.editor.showPanel(kIconsListPanel);
  draw();
}

void IconsList::finish() {
  work_.stop();
  ++serial_;
  row_ = nullptr;
  source_.reset();
  mListFolder_.clear();
  cells_.clear();
  invalid_.clear();
  pages_.clear();
  markedCell_ = -1;
  notify();
}

bool IconsList::mayClose() {
  if (!row_ || !isUnsavedExtraction(context_.state.current())) return true;
  return mayCurrentIconGo(context_);
}

// Drawing.

void IconsList::draw() {
  isRedrawn_ = true;
  if (work_.isRunning()) return work_.stop();
  while (source_ && isRedrawn_) {
    isRedrawn_ = false;
    drawPanel();
  }
}

void IconsList::drawPanel() {
  cells_.assign(static_cast<std::size_t>(pages_.mListOnPanel()), ListCell());
  notify();
  if (cells_.empty()) return;
  const std::string file = source_->fileOf(0);
  if (source_->isOneFile() && !FileExists(file)) return context_.boxes.tell(file + " missing");
  if (!source_->begin()) return;
  work_.run(static_cast<int>(cells_.size()), [this](int cell) {
    drawCell(cell);
    return true;
  });
}

void IconsList::drawCell(int cell) {
  const int entry = pages_.firstEntry() + cell;
  ListCell& drawn = cells_.at(static_cast<std::size_t>(cell));
  drawn = source_->cell(entry);
  invalid_.at(static_cast<std::size_t>(entry)) = !drawn.valid;
  notify();
}

bool IconsList::stopDrawing() {
  if (!work_.isRunning()) return false;
  isRedrawn_ = false;
  work_.stop();
  return true;
}

void IconsList::setGrid(const ListGrid& grid) {
  grid_ = grid;
  pages_.fit(grid_.scrollMaximum());
  notify();
}

// Panels and pages.

void IconsList::choosePanel(int item) {
  if (source_ && item != pages_.panelItem()) showPanelWithMark(item, -1);
}

void IconsList::showPanelWithMark(int item, int cell) {
  if (!pages_.choosePanel(item)) return;
  markedCell_ = cell;
  draw();
}

void IconsList::cmdNextPanel() {
  if (pages_.isNextPanelEnabled())
    showPanelWithMark(pages_.panelItem() + 1 < pages_.panelCount() ? pages_.panelItem() + 1 : 0, -1);
}

void IconsList::cmdPageRef(int page) {
  pages_.showPage(page, grid_.scrollMaximum());
  notify();
}

void IconsList::cmdNextPage() {
  const bool isNextPanel = pages_.nextPage(grid_.scrollMaximum());
  if (isNextPanel) showPanelWithMark(pages_.panelItem(), -1);
  notify();
}

void IconsList::scrollTo(int value) {
  pages_.scrollTo(value, grid_.scrollMaximum());
  notify();
}

// The mark and clicks.

void IconsList::click(int x, int y, ListButton button) {
  if (!source_ || !isIdle()) return;
  markedCell_ = -1;
  notify();
  const int cell = grid_.cellAt(x, y);
  if (cell >= 0 && cell < pages_.mListOnPanel()) take(cell, button);
}

void IconsList::takeMarked(ListButton button) {
  if (markedCell_ >= 0 && isIdle()) take(markedCell_, button);
}

void IconsList::take(int cell, ListButton button) {
  const FlagFor taking(isTaking_);
  const int entry = pages_.firstEntry() + cell;
  ListPick pick(context_, files_, *row_, *source_, entry);
  if (!pick.isTakable(!invalid_.at(static_cast<std::size_t>(entry)))) return;
  markedCell_ = cell;
  notify();
  const unsigned serial = serial_;
  if (!mayIconBeReplaced(context_, filledContainer_) || serial_ != serial) return;
  const PickResult result = pick.run(button);
  if (result == PickResult::Taken) filledContainer_ = context_.state.mCurContainer;
  if (serial_ == serial) show(result, cell, button);
}

void IconsList::show(PickResult result, int cell, ListButton button) {
  if (result == PickResult::Taken && button == ListButton::Right) return context_.editor.showPanel(kColorPanel);
  if (result != PickResult::Invalid) return;
  const int entry = pages_.firstEntry() + cell;
  invalid_.at(static_cast<std::size_t>(entry)) = true;
  cells_.at(static_cast<std::size_t>(cell)).valid = false;
  notify();
}

// The 49th entry of a list of 49 is on no panel.
int IconsList::shownEntries() const { return pages_.panelCount() == 1 ? pages_.mListOnPanel() : pages_.entries(); }

void IconsList::moveMark(ListMove move) {
  const int shown = shownEntries();
  if (!source_ || shown == 0 || isTaking_ || isOpening_) return;
  const int entry =
      movedMark(move, markedCell_ < 0 ? -1 : pages_.firstEntry() + markedCell_, pages_.firstEntry(), shown);
  const int panel = entry / kCellsOnPanel;
  if (panel != pages_.panelItem())
    showPanelWithMark(panel, entry % kCellsOnPanel);
  else
    markedCell_ = entry % kCellsOnPanel;
  if (markedCell_ < 0) return;  // closed while the panel was drawn
  const int page = markedCell_ / kCellsOnPage;
  if (page != pages_.currentPage()) pages_.showPage(page, grid_.scrollMaximum());
  notify();
  context_.display.announce(spokenMark());
}

void IconsList::cmdSaveAllExtractToFiles(SavedFrames kind) {
  if (!isIdle()) return;
  const FlagFor taking(isTaking_);
  auto* const frames = dynamic_cast<AniSource*>(source_.get());
  SaveAllFrames(context_, work_).run(frames, kind);
}

// What the view shows.

ListSource IconsList::mListSource() const { return row_ ? row_->source : ListSource::None; }
bool IconsList::offersSaveAll() const { return mListSource() == ListSource::AniFrames; }
bool IconsList::isSaveAllEnabled() const { return offersSaveAll() && !work_.isRunning() && pages_.entries() > 0; }
std::string IconsList::kindLabel() const { return row_ ? row_->label : ""; }
std::string IconsList::sourceLabel() const { return row_ ? " " + mListFolder_ : ""; }

// Intended: the count of a list of 49 is that of a whole panel and one more.
std::string IconsList::countLabel() const {
  const int shown = pages_.panelCount() == 1 ? pages_.entries() : pages_.mListOnPanel();
  return "Icons  " + std::to_string(shown) + " / " + std::to_string(pages_.entries());
}

std::string IconsList::wholeLabel(int cell) const {
  if (source_->isOneFile()) return cells_.at(static_cast<std::size_t>(cell)).label;
  return std::filesystem::path(source_->fileOf(pages_.firstEntry() + cell)).filename().string();
}

std::string IconsList::spokenMark() const {
  if (markedCell_ < 0 || !source_) return {};
  const int entry = pages_.firstEntry() + markedCell_;
  const std::string name = std::filesystem::path(source_->fileOf(entry)).filename().string();
  const ListCell& cell = cells_.at(static_cast<std::size_t>(markedCell_));
  std::string text = "Icon " + std::to_string(entry + 1) + " of " + std::to_string(pages_.entries()) + ", " + name;
  if (!cell.valid) return text + ", invalid";
  const std::string side = std::to_string(cell.side);
  return cell.isDrawn ? text + ", " + side + " by " + side : text;
}

}  // namespace gp

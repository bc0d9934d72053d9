#include "extraction/IconsList.h"

#include "extraction/IconSource.h"

namespace gp {

IconsList::IconsList(const FilesContext& context, Files& files, FileTypeIcons& fileTypes)
    : context_(context), files_(files), fileTypes_(fileTypes) {}

IconsList::~IconsList() = default;

void IconsList::displayIconsInFolder() {}
void IconsList::mnuExtractSub(int) {}
void IconsList::cmdInvokeFolderOrFileDialog() {}
void IconsList::finish() {}
bool IconsList::mayClose() { return true; }
std::string IconsList::sessionMessage() const { return {}; }
void IconsList::setGrid(const ListGrid& grid) { grid_ = grid; }
void IconsList::choosePanel(int) {}
void IconsList::cmdNextPanel() {}
void IconsList::cmdPageRef(int) {}
void IconsList::cmdNextPage() {}
void IconsList::scrollTo(int) {}
void IconsList::click(int, int, ListButton) {}
void IconsList::moveMark(ListMove) {}
void IconsList::takeMarked(ListButton) {}
bool IconsList::stopDrawing() { return false; }
void IconsList::cmdSaveAllExtractToFiles(SavedFrames) {}
ListSource IconsList::mListSource() const { return ListSource::None; }
bool IconsList::isDrawing() const { return false; }
int IconsList::markedCell() const { return -1; }
int IconsList::scrollValue() const { return 0; }
int IconsList::panelCount() const { return 0; }
int IconsList::panelItem() const { return 0; }
int IconsList::pageCount() const { return 0; }
int IconsList::currentPage() const { return 0; }
bool IconsList::isNextPanelEnabled() const { return false; }
bool IconsList::isNextPageVisible() const { return false; }
bool IconsList::offersSaveAll() const { return false; }
bool IconsList::isSaveAllEnabled() const { return false; }
std::string IconsList::kindLabel() const { return {}; }
std::string IconsList::countLabel() const { return {}; }
std::string IconsList::sourceLabel() const { return {}; }
std::string IconsList::spokenMark() const { return {}; }

}  // namespace gp

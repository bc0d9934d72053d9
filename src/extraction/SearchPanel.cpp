#include "extraction/SearchPanel.h"

namespace gp {

void SearchPanel::open() {}
void SearchPanel::setFolder(int i, const std::string& path) { folders_.at(static_cast<std::size_t>(i)) = path; }
void SearchPanel::cmdInvokeSearchPath(int) {}
void SearchPanel::setTick(int i, bool isOn) { ticks_.at(static_cast<std::size_t>(i)) = isOn; }
void SearchPanel::setMaximum(const std::string&) {}
void SearchPanel::doSearchExtract() {}
void SearchPanel::cmdStopBrowse() {}
void SearchPanel::finish() {}

}  // namespace gp

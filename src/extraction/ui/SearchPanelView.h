// fraPanel(20): the folders and choices of a search for icons, its progress, and the files in which it found some. It
// stores nothing: refresh() shows what the SearchPanel contains.
#pragma once

#include "extraction/SearchPanel.h"
#include "platform/qt/widgets/PanelFrame.h"

#include <array>
#include <functional>

class QCheckBox;
class QLineEdit;

namespace gp {

class FoundFiles;
class PictureButton;
class TextCell;

class SearchPanelView final : public PanelFrame {
  Q_OBJECT

 public:
  using Guarded = std::function<void(const char* event, const std::function<void()>& handler)>;

  // The panel must outlive the view. `guarded` runs a handler, and reports its exceptions under the name of the event.
  SearchPanelView(QWidget* parent, SearchPanel& panel, Guarded guarded);

  void refresh();

 protected:
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void addFolder(int i);
  QWidget* makeTicks();
  QCheckBox* makeTick(QWidget* parent, int i);
  QWidget* makeMaximum();
  void stop();
  void refreshFolders();
  void refreshButtons();

  SearchPanel& panel_;
  const Guarded guarded_;
  std::array<QLineEdit*, SearchPanel::kFolders> txbSearchExeDir_{};
  std::array<PictureButton*, SearchPanel::kFolders> cmdInvokeSearchPath_{};
  std::array<QCheckBox*, SearchPanel::kTicks> ckbExtractEXE_{};
  QLineEdit* txbMaxIcons_ = nullptr;
  QPushButton* cmdStopBrowse_ = nullptr;
  TextCell* lblProgress_ = nullptr;  // lblSearchExeDir(2)
  TextCell* lblForExtendedFrame_ = nullptr;
  FoundFiles* lsbFoundFiles_ = nullptr;
};

}  // namespace gp

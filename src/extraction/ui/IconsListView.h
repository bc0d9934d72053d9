// fraPanel(1): the Icons List with its panels, pages and commands. It stores nothing: refresh() shows what the
// IconsList contains.
#pragma once

#include "extraction/ui/ListEvents.h"
#include "platform/qt/widgets/PanelFrame.h"

#include <QPointer>

#include <array>

class QComboBox;

namespace gp {

class IconsListStrip;
class PageButton;
class PictureButton;
class TextCell;

class IconsListView final : public PanelFrame {
  Q_OBJECT

 public:
  // The list must outlive the panel.
  IconsListView(QWidget* parent, const ListEvents& events);

  void refresh();

 private:
  QWidget* makeSource();
  QWidget* makePanels();
  QWidget* makePages();
  QWidget* makeSaves();
  PictureButton* makeButton(QWidget* parent, const char* objectName, const char* picture, const char* tooltip);
  QPushButton* makeSave(QWidget* parent, SavedFrames kind);
  // Runs an action of the list as the event of a control.
  void forward(const char* event, const std::function<void(IconsList&)>& action);
  void refreshPanels();
  void refreshPages();
  void refreshSaves();
  void holdFocus();

  const ListEvents events_;
  QLabel* lblKind_ = nullptr;     // lblExtract(0)
  TextCell* lblCount_ = nullptr;  // lblExtract(1)
  TextCell* lblForExtendedFrame_ = nullptr;
  PictureButton* cmdInvokeFolderOrFileDialog_ = nullptr;
  QComboBox* cboPanelNum_ = nullptr;
  PictureButton* cmdNextPanel_ = nullptr;
  IconsListStrip* picIconsListBase_ = nullptr;
  std::array<PageButton*, kListPages> cmdPageRef_{};
  PictureButton* cmdNextPage_ = nullptr;
  std::array<QPushButton*, 2> cmdSaveAllExtractToFiles_{};
  QPointer<QWidget> focusBeforeDrawing_;
};

}  // namespace gp

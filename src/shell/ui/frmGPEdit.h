// The main form. It arranges the views, forwards their events to the subsystems and notifies the views of changes. It
// makes no decisions and has no document state.
#pragma once

#include "alpha/AlphaForms.h"
#include "files/FileForms.h"
#include "shell/ShellForms.h"

#include <QMainWindow>

#include <memory>
#include <string>

class QTimer;

namespace gp {

class AniPane;
class CommandMenus;
class CurrentIconView;
class EditingAreaRoom;
class IconsPanelView;
class PanelStack;
class PointerView;
class QtDisplay;
class ReadoutsView;
class Shell;
class ShiftPad;
class StatusBarView;
class ToolBox;
class ToolbarView;

class frmGPEdit final : public QMainWindow, public ShellForms, public FileForms, public AlphaForms {
  Q_OBJECT

 public:
  // The shell and the display must outlive the form. `commandLine` is opened after the form was first painted.
  frmGPEdit(Shell& shell, QtDisplay& display, std::string commandLine);
  ~frmGPEdit() override;

  // ShellForms.
  FormPlace place() const override;
  void setPlace(const FormPlace& place) override;
  void maximize() override;
  void showAbout() override;
  void unload() override;
  // FileForms.
  void showMultiIcon() override;
  void showHeaderDiff() override;
  // AlphaForms.
  AlphaOutcome showAlpha(const IconImage& icon, AlphaMode mode, const std::optional<AlphaMatrix>& resumed) override;

 protected:
  void closeEvent(QCloseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  bool event(QEvent* event) override;

 private:
  QWidget* makeMiddle(QWidget* parent);
  QWidget* makeToolColumn(QWidget* parent);
  QWidget* makeEditingColumn(QWidget* parent);
  void connectEditingArea();
  void connectIconsPanel();
  void connectToolBox();
  void listen();
  void setRequests();

  void activate();
  void chooseTool(int tool);
  void refreshCommands();
  void refreshCommandsSoon();
  void refreshCurrentIcon();
  void resizeRoom(const QSize& client);
  void popUp(const QPoint& at);

  Shell& shell_;
  QtDisplay& display_;
  const std::string commandLine_;
  bool activated_ = false;
  QTimer* commandsTimer_;
  CommandMenus* menus_ = nullptr;
  ToolbarView* toolbar_ = nullptr;
  IconsPanelView* iconsPanel_ = nullptr;
  ToolBox* toolBox_ = nullptr;
  ShiftPad* shiftPad_ = nullptr;
  CurrentIconView* picIcon_ = nullptr;
  QWidget* lblIcon_ = nullptr;
  ReadoutsView* readouts_ = nullptr;
  EditingAreaRoom* room_ = nullptr;
  PanelStack* panels_ = nullptr;
  AniPane* aniPane_ = nullptr;
  StatusBarView* statusBar_ = nullptr;
  std::unique_ptr<PointerView> pointer_;
};

}  // namespace gp

// The alpha screen: shows an icon magnified, paints its alpha values, and offers to save or convert it. The form shows
// the state of an AlphaEditor and forwards input to it.
#pragma once

#include "alpha/AlphaEditor.h"

#include <QDialog>

#include <array>

class QBoxLayout;
class QPushButton;

namespace gp {

class AlphaAreaView;
class AlphaSampleView;
class AlphaValueView;
class TextCell;

class frmGPAlpha final : public QDialog {
  Q_OBJECT

 public:
  // The icon must have one of the icon sizes. The objects that the context refers to must outlive the form.
  frmGPAlpha(const FilesContext& context, const IconImage& icon, AlphaMode mode, QWidget* parent);

  // Before it is shown: goes on with the values of a session that could not be saved.
  void resume(const AlphaMatrix& values);
  const AlphaOutcome& outcome() const { return editor_.outcome(); }

  // The close box and Escape.
  void reject() override;

 protected:
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void layOut();
  QBoxLayout* makeControls();
  QLayout* makeReadouts();
  QLayout* makeButtons();
  QWidget* makeSamples();
  AlphaSampleView* makeSample(QWidget* parent, int index);
  QPushButton* makeButton(int index);
  void connectArea();
  void showPixels();
  void refresh();

  AlphaEditor editor_;
  AlphaAreaView* area_ = nullptr;
  std::array<TextCell*, 3> lblDispXY_{};
  std::array<AlphaSampleView*, AlphaCanvas::kGrounds.size() + 1> samples_{};
  AlphaValueView* fraAlphaValuePanel_ = nullptr;
  std::array<QPushButton*, 4> cmdAlpha_{};
};

}  // namespace gp

// What the pane shows below its title: the film, and beside it all controls or, while it is compact, the most used
// ones.
#pragma once

#include <QWidget>

#include <array>
#include <memory>

class QHBoxLayout;
class QStackedWidget;
class QVBoxLayout;

namespace gp {

class AniButtons;
class AniFilmStrip;
class AniFilmView;
class AniGroup;
class AniLists;
class SampleView;
class TextCell;
struct AniEvents;

class AniBody final : public QWidget {
  Q_OBJECT

 public:
  // The events and the buttons must outlive the body.
  AniBody(QWidget* parent, const AniEvents& events, AniButtons& buttons);
  ~AniBody() override;

  void setCompact(bool compact);
  // The control that gets the focus when the pane appears.
  QWidget* firstControl() const;
  AniFilmView* film() const;

  void refresh();
  void refreshTest();

 private:
  void makeTop(QVBoxLayout* rows);
  QVBoxLayout* makeColumn();
  QWidget* makeLabels();
  AniGroup* makeTest();

  const AniEvents& events_;
  AniButtons& buttons_;
  AniFilmStrip* picANISeriesBase_ = nullptr;
  std::unique_ptr<AniLists> lists_;
  QHBoxLayout* top_ = nullptr;     // the groups above film and column
  QHBoxLayout* moving_ = nullptr;  // the row of the frame's buttons
  AniGroup* fraFile_ = nullptr;
  AniGroup* fraExchange_ = nullptr;
  AniGroup* fraFrame_ = nullptr;
  AniGroup* fraTest_ = nullptr;
  QStackedWidget* texts_ = nullptr;  // the labels, or a hint without frames
  std::array<TextCell*, 2> lblANI_{};
  SampleView* picANITest_ = nullptr;
};

}  // namespace gp

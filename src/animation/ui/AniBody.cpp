#include "animation/ui/AniBody.h"

#include "animation/ui/AniButtons.h"
#include "animation/ui/AniEvents.h"
#include "animation/ui/AniFilmStrip.h"
#include "animation/ui/AniFilmView.h"
#include "animation/ui/AniGroup.h"
#include "animation/ui/AniLists.h"
#include "document/ui/SampleView.h"
#include "platform/qt/PathText.h"
#include "platform/qt/widgets/TextCell.h"

#include <QAbstractButton>
#include <QHBoxLayout>
#include <QLabel>
#include <QStackedWidget>

namespace gp {
namespace {

constexpr int kGap = 4;
constexpr int kCreate = 3;
constexpr int kFrameColumns = 4;
// In compact size, which leaves the others out, the buttons of the two groups are in one row.
constexpr int kNotInCompact[] = {9, 12, 13, 14, 15, 16, 17};
constexpr const char* kWidestLabels[] = {"Frame:  70 / 70", "Jiffies:  90"};
constexpr const char* kHint = "No frames yet: create or open a film.";
constexpr const char* kLabelNames[] = {"Current frame", "Time of the frame"};

AniGroup* groupOf(QWidget* parent, const char* name, const char* caption, QWidget* content) {
  auto* group = new AniGroup(parent, QLatin1String(name), QLatin1String(caption));
  content->setParent(group);
  group->addRow()->addWidget(content);
  return group;
}

}  // namespace

// The order in which the controls are made is that of Tab.
AniBody::AniBody(QWidget* parent, const AniEvents& events, AniButtons& buttons)
    : QWidget(parent), events_(events), buttons_(buttons), picANISeriesBase_(new AniFilmStrip(this, events)) {
  auto* rows = new QVBoxLayout(this);
  rows->setContentsMargins(kGap, kGap, kGap, kGap);
  rows->setSpacing(kGap);
  makeTop(rows);
  auto* middle = new QHBoxLayout;
  middle->setSpacing(kGap);
  middle->addWidget(picANISeriesBase_);
  middle->addLayout(makeColumn(), 1);
  rows->addLayout(middle, 1);
}

AniBody::~AniBody() = default;

void AniBody::makeTop(QVBoxLayout* rows) {
  fraFile_ = groupOf(this, "fraANIFile", "File", buttons_.makeGroup(this, {3, 4, 5, 6}, 4));
  fraFile_->setAccessibleName(QStringLiteral("Film file"));  // "File" is the path in the status bar
  fraExchange_ = groupOf(this, "fraANIExchange", "Exchange", buttons_.makeGroup(this, {10, 11, 15}, 3));
  top_ = new QHBoxLayout;
  top_->setSpacing(kGap);
  top_->addWidget(fraFile_, 1);
  top_->addWidget(fraExchange_, 1);
  rows->addLayout(top_);
}

QVBoxLayout* AniBody::makeColumn() {
  auto* column = new QVBoxLayout;
  column->setSpacing(kGap);
  column->addWidget(makeLabels());
  fraFrame_ =
      groupOf(this, "fraANIFrame", "Frame", buttons_.makeGroup(this, {18, 19, 16, 17, 12, 13, 14, 9}, kFrameColumns));
  moving_ = new QHBoxLayout;
  moving_->setSpacing(kGap);
  moving_->addWidget(fraFrame_, 1);
  column->addLayout(moving_);
  lists_ = std::make_unique<AniLists>(this, events_, buttons_);
  column->addWidget(lists_->jiffyGroup());
  column->addWidget(lists_->hotspotGroup());
  column->addWidget(makeTest(), 1);
  return column;
}

QWidget* AniBody::makeLabels() {
  auto* labels = new QWidget;
  auto* rows = new QVBoxLayout(labels);
  rows->setContentsMargins(0, 0, 0, 0);
  rows->setSpacing(0);
  for (std::size_t i = 0; i < lblANI_.size(); ++i) {
    lblANI_[i] = new TextCell(labels, QStringLiteral("lblANI(%1)").arg(i), QLatin1String(kLabelNames[i]));
    lblANI_[i]->setText(QLatin1String(kWidestLabels[i]));
    lblANI_[i]->setMinimumSize(lblANI_[i]->sizeHint());
    rows->addWidget(lblANI_[i]);
  }
  auto* hint = new QLabel(QLatin1String(kHint));
  hint->setObjectName(QStringLiteral("lblANIHint"));
  hint->setWordWrap(true);
  hint->setAlignment(Qt::AlignLeft | Qt::AlignTop);
  texts_ = new QStackedWidget(this);
  texts_->addWidget(labels);
  texts_->addWidget(hint);
  texts_->setFixedHeight(labels->sizeHint().height());
  return texts_;
}

AniGroup* AniBody::makeTest() {
  fraTest_ = new AniGroup(this, QStringLiteral("fraANITest"), QStringLiteral("Test"));
  QHBoxLayout* row = fraTest_->addRow();
  row->addWidget(buttons_.makeTest(fraTest_), 0, Qt::AlignTop);
  picANITest_ = new SampleView(fraTest_, QStringLiteral("picANITest"), QStringLiteral("Test of the animation"),
                               events_.session.test().picANITest(), kFrameSide);
  row->addWidget(picANITest_, 1);
  return fraTest_;
}

void AniBody::setCompact(bool compact) {
  for (const int index : kNotInCompact) buttons_.button(index)->setVisible(!compact);
  for (AniGroup* group : {fraFile_, lists_->jiffyGroup(), lists_->hotspotGroup()}) group->setVisible(!compact);
  for (AniGroup* group : {fraExchange_, fraFrame_, fraTest_}) group->setFlat(compact);
  if (compact)
    moving_->insertWidget(0, fraExchange_);
  else
    top_->addWidget(fraExchange_, 1);
}

AniFilmView* AniBody::film() const { return &picANISeriesBase_->film(); }

QWidget* AniBody::firstControl() const {
  QWidget* create = buttons_.button(kCreate);
  const bool hasFilm = events_.session.frames().count() > 0;
  if (hasFilm || !create->isVisible()) return film();
  return create;
}

void AniBody::refresh() {
  picANISeriesBase_->refresh();
  texts_->setCurrentIndex(events_.session.frames().count() > 0 ? 0 : 1);
  lblANI_[0]->setText(toText(events_.session.frameLabel()));
  lblANI_[1]->setText(toText(events_.session.jiffiesLabel()));
  lists_->refresh();
  refreshTest();
}

void AniBody::refreshTest() {
  picANITest_->setValueText(events_.session.test().isRunning() ? QStringLiteral("The test runs")
                                                               : QStringLiteral("No test"));
}

}  // namespace gp

#include "platform/qt/widgets/TabbedList.h"

#include "platform/qt/PathText.h"

#include <QApplication>
#include <QPainter>
#include <QScrollBar>
#include <QStyledItemDelegate>

#include <algorithm>
#include <cmath>

namespace gp {
namespace {

constexpr double kUnitsPerCharacter = 4;
// The letters for the average character width: a font's own average includes all its signs and does not suit text.
constexpr QLatin1String kLetters("ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz");
constexpr int kMargin = 4;      // left and right of a text, pixels
constexpr int kRowLeading = 4;  // between two lines
constexpr int kLeastColumnGap = 2;
constexpr int kLeastRows = 5;

constexpr QChar kTab = u'\t';

QString withoutTrailingBlanks(const QString& text) {
  qsizetype length = text.size();
  while (length > 0 && text[length - 1] == u' ') --length;
  return text.left(length);
}

QString spokenText(const QString& text) {
  QStringList columns = text.split(kTab);
  for (QString& column : columns) column = column.simplified();
  return columns.join(QStringLiteral(", "));
}

QPalette::ColorGroup colorGroupOf(QStyle::State state) {
  if (!(state & QStyle::State_Enabled)) return QPalette::Disabled;
  return state & QStyle::State_Active ? QPalette::Active : QPalette::Inactive;
}

QRect columnRect(const QRect& item, const TabbedColumns& columns, std::size_t column) {
  return item.adjusted(kMargin + columns.begins[column], 0, 0, 0);
}

// The style paints background and focus; this class paints the columns.
class ColumnsDelegate final : public QStyledItemDelegate {
 public:
  explicit ColumnsDelegate(TabbedList* list) : QStyledItemDelegate(list), list_(*list) {}

  void paint(QPainter* painter, const QStyleOptionViewItem& given, const QModelIndex& index) const override {
    QStyleOptionViewItem option = given;
    initStyleOption(&option, index);
    const QString text = std::exchange(option.text, {});
    list_.style()->drawControl(QStyle::CE_ItemViewItem, &option, painter, &list_);
    const bool selected = option.state & QStyle::State_Selected;
    painter->setFont(option.font);
    painter->setPen(
        option.palette.color(colorGroupOf(option.state), selected ? QPalette::HighlightedText : QPalette::Text));
    paintColumns(*painter, option.rect, text);
  }

  // Width 1: the list itself is as wide as its widest item.
  QSize sizeHint(const QStyleOptionViewItem&, const QModelIndex&) const override {
    return {1, list_.fontMetrics().height() + kRowLeading};
  }

 private:
  void paintColumns(QPainter& painter, const QRect& item, const QString& text) const {
    const TabbedColumns columns = list_.columnsOf(text);
    const QStringList pieces = text.split(kTab);
    for (qsizetype i = 0; i < pieces.size(); ++i)
      painter.drawText(columnRect(item, columns, static_cast<std::size_t>(i)),
                       Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine, pieces[i]);
  }

  const TabbedList& list_;
};

// The desktop's font size in the lists' own family, where that is installed.
QFont listFont() {
  QFont font = QApplication::font();
  font.setFamilies({QStringLiteral("Tahoma"), font.family()});
  return font;
}

}  // namespace

TabbedList::TabbedList(QWidget* parent, const QString& objectName, const QString& accessibleName,
                       std::vector<int> tabStops)
    : QListWidget(parent), tabStops_(std::move(tabStops)) {
  setObjectName(objectName);
  setAccessibleName(accessibleName);
  setFont(listFont());
  setUniformItemSizes(true);
  setSelectionMode(SingleSelection);
  setEditTriggers(NoEditTriggers);
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  setItemDelegate(new ColumnsDelegate(this));
}

void TabbedList::setItems(const std::vector<std::string>& texts) {
  if (texts == texts_) return;
  texts_ = texts;
  known_ = -1;
  clear();
  for (const std::string& text : texts) {
    auto* item = new QListWidgetItem(toText(text), this);
    item->setData(Qt::AccessibleTextRole, spokenText(item->text()));
  }
  widest_ = -1;
  updateGeometry();
}

void TabbedList::setSelected(int item) {
  known_ = item >= 0 && item < count() ? item : -1;
  if (selected() != known_ || currentRow() != known_) setCurrentRow(known_, QItemSelectionModel::ClearAndSelect);
}

int TabbedList::selected() const {
  const QModelIndexList indexes = selectedIndexes();
  return indexes.isEmpty() ? -1 : indexes.first().row();
}

void TabbedList::setReadOnly(bool readOnly) { setSelectionMode(readOnly ? NoSelection : SingleSelection); }

TabbedColumns TabbedList::columnsOf(const QString& text) const {
  TabbedColumns columns;
  const QStringList pieces = text.split(kTab);
  for (const QString& piece : pieces) {
    const int begin = columns.begins.empty() ? 0 : stopAfter(columns.end);
    columns.begins.push_back(begin);
    columns.end = begin + fontMetrics().horizontalAdvance(withoutTrailingBlanks(piece));
  }
  return columns;
}

int TabbedList::stopAfter(int position) const {
  const double average = QFontMetricsF(font()).horizontalAdvance(kLetters) / static_cast<double>(kLetters.size());
  const double unit = average / kUnitsPerCharacter;
  const auto pixels = [unit](int units) { return static_cast<int>(std::ceil(units * unit)); };
  const int free = position + kLeastColumnGap;
  for (const int stop : tabStops_)
    if (pixels(stop) >= free) return pixels(stop);
  const int last = tabStops_.back();
  const int distance = tabStops_.size() > 1 ? last - tabStops_[tabStops_.size() - 2] : last;
  int stop = last;
  while (pixels(stop) < free) stop += distance;
  return pixels(stop);
}

int TabbedList::widestItem() const {
  if (widest_ >= 0) return widest_;
  widest_ = 0;
  for (int i = 0; i < count(); ++i) widest_ = std::max(widest_, columnsOf(item(i)->text()).end);
  return widest_;
}

QSize TabbedList::sizeHint() const {
  return {minimumSizeHint().width(), std::max(QListWidget::sizeHint().height(), minimumSizeHint().height())};
}

QSize TabbedList::minimumSizeHint() const {
  const int frame = 2 * frameWidth();
  const int scrollBar = style()->pixelMetric(QStyle::PM_ScrollBarExtent, nullptr, verticalScrollBar());
  return {widestItem() + 2 * kMargin + scrollBar + frame, kLeastRows * (fontMetrics().height() + kRowLeading) + frame};
}

void TabbedList::keyPressEvent(QKeyEvent* event) {
  QListWidget::keyPressEvent(event);
  reportChoice();
}

void TabbedList::mousePressEvent(QMouseEvent* event) {
  QListWidget::mousePressEvent(event);
  reportChoice();
}

void TabbedList::mouseMoveEvent(QMouseEvent* event) {
  QListWidget::mouseMoveEvent(event);
  reportChoice();
}

// Qt would make the first item the current one, and the first key press would then skip it.
void TabbedList::focusInEvent(QFocusEvent* event) {
  QListWidget::focusInEvent(event);
  if (known_ < 0 && selectionMode() == SingleSelection) selectionModel()->clearCurrentIndex();
}

void TabbedList::changeEvent(QEvent* event) {
  QListWidget::changeEvent(event);
  if (event->type() != QEvent::FontChange && event->type() != QEvent::StyleChange) return;
  widest_ = -1;
  updateGeometry();
}

// Assistive technology selects without key or mouse events. During a key press the selection changes before the current
// item, so the report is queued until both have changed.
void TabbedList::selectionChanged(const QItemSelection& selected, const QItemSelection& deselected) {
  QListWidget::selectionChanged(selected, deselected);
  QMetaObject::invokeMethod(this, &TabbedList::reportChoice, Qt::QueuedConnection);
}

QItemSelectionModel::SelectionFlags TabbedList::selectionCommand(const QModelIndex& index, const QEvent*) const {
  const bool selects = selectionMode() == SingleSelection && index.isValid();
  return selects ? QItemSelectionModel::ClearAndSelect : QItemSelectionModel::NoUpdate;
}

void TabbedList::reportChoice() {
  if (selected() == known_) return;
  if (selected() < 0) return setSelected(known_);
  known_ = selected();
  emit itemChosen(known_);
}

}  // namespace gp

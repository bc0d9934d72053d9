#include "extraction/ui/FoundFiles.h"

#include "platform/qt/PathText.h"

#include <QScrollBar>

namespace gp {
namespace {

constexpr int kLeastLines = 3;
constexpr int kLeastWidth = 100;

}  // namespace

void FoundFilesModel::follow() {
  const int count = static_cast<int>(files_.size());
  if (count < rows_) {
    beginResetModel();
    rows_ = 0;
    endResetModel();
  }
  if (count == rows_) return;
  beginInsertRows({}, rows_, count - 1);
  rows_ = count;
  endInsertRows();
}

QVariant FoundFilesModel::data(const QModelIndex& index, int role) const {
  if (!index.isValid() || index.row() >= static_cast<int>(files_.size())) return {};
  const QString text = printable(toText(files_[static_cast<std::size_t>(index.row())]));
  if (role == Qt::DisplayRole || role == Qt::AccessibleTextRole) return text;
  // Escaped, because rich text would drop parts of a name that look like a tag.
  return role == Qt::ToolTipRole ? text.toHtmlEscaped() : QVariant();
}

FoundFiles::FoundFiles(QWidget* parent, const std::vector<std::string>& files)
    : QListView(parent), model_(new FoundFilesModel(this, files)) {
  setObjectName(QStringLiteral("lsbFoundFiles"));
  setAccessibleName(QStringLiteral("Files with icons"));
  setModel(model_);
  setUniformItemSizes(true);
  setTextElideMode(Qt::ElideMiddle);
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  setEditTriggers(QAbstractItemView::NoEditTriggers);
}

QSize FoundFiles::sizeHint() const { return {kLeastWidth, kLeastLines * fontMetrics().height() + 2 * frameWidth()}; }

void FoundFiles::refresh() {
  const bool isAtEnd = verticalScrollBar()->value() == verticalScrollBar()->maximum();
  model_->follow();
  if (isAtEnd) scrollToBottom();
}

}  // namespace gp

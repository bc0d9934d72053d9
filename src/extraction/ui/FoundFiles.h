// lsbFoundFiles: the files in which a search has found icons. The entries are read from the SearchPanel when they are
// shown, so that a long search does not copy them.
#pragma once

#include <QAbstractListModel>
#include <QListView>

#include <string>
#include <vector>

namespace gp {

class FoundFilesModel final : public QAbstractListModel {
  Q_OBJECT

 public:
  // The files must outlive the model; they only grow, or are cleared.
  FoundFilesModel(QObject* parent, const std::vector<std::string>& files) : QAbstractListModel(parent), files_(files) {}

  void follow();

  int rowCount(const QModelIndex& parent) const override { return parent.isValid() ? 0 : rows_; }
  QVariant data(const QModelIndex& index, int role) const override;

 private:
  const std::vector<std::string>& files_;
  int rows_ = 0;
};

class FoundFiles final : public QListView {
  Q_OBJECT

 public:
  FoundFiles(QWidget* parent, const std::vector<std::string>& files);

  // Shows the files that were added; the last one is visible unless the user has scrolled up.
  void refresh();

  // A few lines; the panel gives it what is left.
  QSize sizeHint() const override;
  QSize minimumSizeHint() const override { return sizeHint(); }

 private:
  FoundFilesModel* model_;
};

}  // namespace gp

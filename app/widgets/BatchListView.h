#pragma once
// The batch list as a table over the core's BatchList: the model's colours as text colours,
// a click on a heading sorts, the header's menu shows and hides columns and sizes them,
// files and folders can be dropped on it, and the row menu carries the window's commands.
#include <QTableView>
#include <vector>

#include "batch/BatchWindowRules.h"

class BatchList;
class QMenu;

class CBatchListView : public QTableView {
  Q_OBJECT
 public:
  explicit CBatchListView(QWidget* parent = nullptr);
  void SetBatchList(BatchList* list);
  // The row menu, built by the window from its own actions.
  void SetRowMenu(QMenu* menu) { m_rowMenu = menu; }

  // The column layout as the settings keep it, and back.
  std::vector<BatchColumnState> ColumnLayout() const;
  void ApplyColumnLayout(const std::vector<BatchColumnState>& columns);
  void SetColumnVisible(int column, bool visible);
  // The header menu of the moment (for a right click, and for tests).
  QMenu* BuildHeaderMenu(int column);

 signals:
  void pathsDropped(const QStringList& paths);
  void rowActivated(int row);

 protected:
  void dragEnterEvent(QDragEnterEvent* e) override;
  void dragMoveEvent(QDragMoveEvent* e) override;
  void dropEvent(QDropEvent* e) override;
  void contextMenuEvent(QContextMenuEvent* e) override;

 private:
  void SortBy(int column);
  BatchList* m_list = nullptr;
  QMenu* m_rowMenu = nullptr;
  std::vector<int> m_hiddenWidths;
  int m_sortColumn = -1;
  Qt::SortOrder m_sortOrder = Qt::AscendingOrder;
};

#include "app/widgets/BatchListView.h"

#include <QContextMenuEvent>
#include <QDragEnterEvent>
#include <QHeaderView>
#include <QMenu>
#include <QMimeData>
#include <QStyledItemDelegate>
#include <QUrl>

#include "app/ColorRef.h"
#include "app/Text.h"
#include "batch/BatchList.h"

namespace {

// Text colour from the model (0x00BBGGRR); a selected row keeps the style's highlight text.
class RowColourDelegate : public QStyledItemDelegate {
 public:
  using QStyledItemDelegate::QStyledItemDelegate;

 protected:
  void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override {
    QStyledItemDelegate::initStyleOption(option, index);
    const QVariant c = index.data(BatchList::ColorRefRole);
    if (!c.isValid()) return;
    const QColor colour = QColor::fromRgb(RgbOfColorRef(c.toUInt()));
    option->palette.setColor(QPalette::Text, colour);
  }
};

}  // namespace

CBatchListView::CBatchListView(QWidget* parent) : QTableView(parent) {
  setObjectName("batchList");
  setAccessibleName(Tonvane::tr("The list of files"));
  setItemDelegate(new RowColourDelegate(this));
  setSelectionBehavior(QAbstractItemView::SelectRows);
  setSelectionMode(QAbstractItemView::ExtendedSelection);
  setShowGrid(true);
  setWordWrap(false);
  setAlternatingRowColors(false);
  setAcceptDrops(true);
  setDragDropMode(QAbstractItemView::DropOnly);
  setDropIndicatorShown(false);
  setEditTriggers(QAbstractItemView::NoEditTriggers);
  setTextElideMode(Qt::ElideMiddle);
  verticalHeader()->setVisible(false);
  verticalHeader()->setDefaultSectionSize(fontMetrics().height() + 6);
  verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
  QHeaderView* h = horizontalHeader();
  h->setSectionsMovable(true);
  h->setSectionsClickable(true);
  h->setHighlightSections(false);
  h->setStretchLastSection(false);
  h->setContextMenuPolicy(Qt::CustomContextMenu);
  connect(h, &QHeaderView::sectionClicked, this, &CBatchListView::SortBy);
  connect(h, &QHeaderView::customContextMenuRequested, this, [this](const QPoint& at) {
    QMenu* menu = BuildHeaderMenu(horizontalHeader()->logicalIndexAt(at));
    menu->exec(horizontalHeader()->mapToGlobal(at));
    menu->deleteLater();
  });
  connect(this, &QTableView::doubleClicked, this, [this](const QModelIndex& i) {
    if (m_list && i.row() < m_list->FileCount()) emit rowActivated(i.row());
  });
}

void CBatchListView::SetBatchList(BatchList* list) {
  m_list = list;
  setModel(list);
  m_hiddenWidths.assign(size_t(list->columnCount()), 0);
  for (int c = 0; c < list->columnCount(); ++c)
    setColumnWidth(c, list->headerData(c, Qt::Horizontal, BatchList::DefaultWidthRole).toInt());
  // The number column holds a check box beside the number: room for four digits.
  setColumnWidth(0, std::max(columnWidth(0), fontMetrics().horizontalAdvance(" 8888") + 30));
}

void CBatchListView::SortBy(int column) {
  if (!m_list) return;
  // A second click on the same heading turns the order round.
  m_sortOrder = column == m_sortColumn && m_sortOrder == Qt::AscendingOrder ? Qt::DescendingOrder : Qt::AscendingOrder;
  m_sortColumn = column;
  horizontalHeader()->setSortIndicatorShown(true);
  horizontalHeader()->setSortIndicator(column, m_sortOrder);
  m_list->sort(column, m_sortOrder);
}

std::vector<BatchColumnState> CBatchListView::ColumnLayout() const {
  std::vector<BatchColumnState> out;
  if (!m_list) return out;
  const QHeaderView* h = horizontalHeader();
  for (int c = 0; c < m_list->columnCount(); ++c) {
    BatchColumnState s;
    s.visible = !h->isSectionHidden(c);
    s.position = h->visualIndex(c);
    s.width = s.visible ? h->sectionSize(c) : m_hiddenWidths[size_t(c)];
    if (s.width <= 0) s.width = m_list->headerData(c, Qt::Horizontal, BatchList::DefaultWidthRole).toInt();
    out.push_back(s);
  }
  return out;
}

void CBatchListView::ApplyColumnLayout(const std::vector<BatchColumnState>& columns) {
  if (!m_list) return;
  QHeaderView* h = horizontalHeader();
  const int n = std::min<int>(int(columns.size()), m_list->columnCount());
  // Places first, lowest target first, so that each move lands where it was kept.
  std::vector<int> order;
  for (int c = 0; c < n; ++c)
    if (columns[size_t(c)].position >= 0 && columns[size_t(c)].position < n) order.push_back(c);
  std::sort(order.begin(), order.end(), [&](int a, int b) { return columns[size_t(a)].position < columns[size_t(b)].position; });
  for (int c : order) h->moveSection(h->visualIndex(c), columns[size_t(c)].position);
  const int numberRoom = fontMetrics().horizontalAdvance(" 8888") + 30;
  for (int c = 0; c < n; ++c) {
    setColumnWidth(c, c == 0 ? std::max(columns[0].width, numberRoom) : columns[size_t(c)].width);
    m_hiddenWidths[size_t(c)] = columns[size_t(c)].width;
    SetColumnVisible(c, columns[size_t(c)].visible);
  }
}

void CBatchListView::SetColumnVisible(int column, bool visible) {
  QHeaderView* h = horizontalHeader();
  if (column < 0 || column >= h->count() || h->isSectionHidden(column) == !visible) return;
  if (!visible) {
    m_hiddenWidths[size_t(column)] = h->sectionSize(column);
    h->hideSection(column);
  } else {
    h->showSection(column);
    if (m_hiddenWidths[size_t(column)] > 0) h->resizeSection(column, m_hiddenWidths[size_t(column)]);
  }
}

QMenu* CBatchListView::BuildHeaderMenu(int column) {
  auto* menu = new QMenu(this);
  menu->setObjectName("headerMenu");
  if (!m_list) return menu;
  QHeaderView* h = horizontalHeader();
  for (int c = 0; c < m_list->columnCount(); ++c) {
    QAction* a = menu->addAction(m_list->headerData(c, Qt::Horizontal).toString().trimmed());
    a->setCheckable(true);
    a->setChecked(!h->isSectionHidden(c));
    a->setData(c);
    connect(a, &QAction::toggled, this, [this, c](bool on) { SetColumnVisible(c, on); });
  }
  menu->addSeparator();
  QAction* all = menu->addAction(Tonvane::tr("Size All Columns to Fit"));
  all->setData(15);
  connect(all, &QAction::triggered, this, [this] {
    for (int c = 0; c < m_list->columnCount(); ++c)
      if (!horizontalHeader()->isSectionHidden(c)) resizeColumnToContents(c);
  });
  QAction* one = menu->addAction(Tonvane::tr("Size Column To Fit"));
  one->setData(16);
  one->setEnabled(column >= 0);
  connect(one, &QAction::triggered, this, [this, column] {
    if (column >= 0 && !horizontalHeader()->isSectionHidden(column)) resizeColumnToContents(column);
  });
  return menu;
}

namespace {
bool HasLocalFiles(const QMimeData* m) {
  if (!m || !m->hasUrls()) return false;
  for (const QUrl& u : m->urls())
    if (u.isLocalFile()) return true;
  return false;
}
}  // namespace

void CBatchListView::dragEnterEvent(QDragEnterEvent* e) {
  if (HasLocalFiles(e->mimeData())) e->acceptProposedAction();
  else e->ignore();
}

void CBatchListView::dragMoveEvent(QDragMoveEvent* e) {
  if (HasLocalFiles(e->mimeData())) e->acceptProposedAction();
  else e->ignore();
}

void CBatchListView::dropEvent(QDropEvent* e) {
  QStringList paths;
  for (const QUrl& u : e->mimeData()->urls())
    if (u.isLocalFile()) paths << u.toLocalFile();
  if (paths.isEmpty()) {
    e->ignore();
    return;
  }
  e->acceptProposedAction();
  emit pathsDropped(paths);
}

void CBatchListView::contextMenuEvent(QContextMenuEvent* e) {
  if (!m_rowMenu) return;
  const QModelIndex at = indexAt(e->pos());
  if (at.isValid() && !selectionModel()->isRowSelected(at.row(), {})) setCurrentIndex(at);
  m_rowMenu->exec(e->globalPos());
}

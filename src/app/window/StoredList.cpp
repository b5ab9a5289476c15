#include "app/window/StoredList.h"

#include <QAction>
#include <QHeaderView>
#include <QKeyEvent>
#include <QVBoxLayout>

#include "qt/Conversions.h"

namespace vantrel {

namespace {

enum Column : int { kId, kNodes, kSize, kColumns };

QString EndsOf(const WorkflowListing& pobjStored) {
  const auto shown = [](const std::string& name) { return name.empty() ? QString("–") : ToQString(name); };
  return shown(pobjStored.StartPlaceName) + " → " + shown(pobjStored.EndPlaceName);
}

QString TipOf(const WorkflowListing& pobjStored) {
  QString tip = QString("%1 places, %2 transitions, %3 arcs").arg(pobjStored.Places).arg(pobjStored.Transitions).arg(pobjStored.Arcs);
  for (std::size_t i = 0; i < pobjStored.EmbeddedIn.size(); ++i) {
    tip += (i == 0 ? "\nembedded in workflow " : ", ") + QString::number(pobjStored.EmbeddedIn[i]);
  }
  return tip;
}

QList<QStandardItem*> RowOf(const WorkflowListing& pobjStored) {
  const QString texts[kColumns] = {QString::number(pobjStored.Id), EndsOf(pobjStored),
                                   QString::number(pobjStored.Places + pobjStored.Transitions)};
  QList<QStandardItem*> row;
  for (int column = 0; column < kColumns; ++column) {
    auto* const item = new QStandardItem(texts[column]);
    item->setEditable(false);
    item->setToolTip(TipOf(pobjStored));
    item->setData(column == kNodes ? QVariant(texts[column]) : QVariant(texts[column].toInt()), Qt::UserRole);
    if (column != kNodes) item->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
    row.push_back(item);
  }
  return row;
}

}  // namespace

StoredList::StoredList(QWidget* pobjParent) : QWidget(pobjParent), mobjFilter(new QLineEdit), mobjView(new QTreeView) {
  auto* const layout = new QVBoxLayout(this);
  layout->setContentsMargins(4, 4, 4, 4);
  layout->addWidget(mobjFilter);
  layout->addWidget(mobjView);
  mobjFilter->setObjectName("Filter");
  mobjFilter->setPlaceholderText("Filter by number or name");
  mobjFilter->setAccessibleName("Filter of the stored workflows");
  mobjFilter->setClearButtonEnabled(true);
  mobjFilter->installEventFilter(this);
  BuildView();
  BuildMenu();
  connect(mobjFilter, &QLineEdit::textChanged, &mobjFiltered, &QSortFilterProxyModel::setFilterFixedString);
}

void StoredList::BuildView() {
  mobjModel.setHorizontalHeaderLabels({"No.", "Start → end", "Nodes"});
  mobjFiltered.setSourceModel(&mobjModel);
  mobjFiltered.setFilterKeyColumn(-1);
  mobjFiltered.setFilterCaseSensitivity(Qt::CaseInsensitive);
  mobjFiltered.setSortRole(Qt::UserRole);
  mobjFiltered.setSortCaseSensitivity(Qt::CaseInsensitive);
  mobjView->setObjectName("Stored");
  mobjView->setAccessibleName("Stored workflows");
  mobjView->setModel(&mobjFiltered);
  mobjView->setRootIsDecorated(false);
  mobjView->setUniformRowHeights(true);
  mobjView->setAllColumnsShowFocus(true);
  mobjView->setSortingEnabled(true);
  mobjView->sortByColumn(kId, Qt::AscendingOrder);
  mobjView->header()->setStretchLastSection(false);
  mobjView->header()->setSectionResizeMode(kNodes, QHeaderView::Stretch);
  mobjView->header()->resizeSection(kId, 44);
  mobjView->header()->resizeSection(kSize, 56);
  connect(mobjView, &QTreeView::activated, this, [this] {
    if (const auto id = Chosen()) emit OpenRequested(*id);
  });
}

void StoredList::BuildMenu() {
  const auto add = [this](const QString& text, const QKeySequence& shortcut, auto&& run) {
    auto* const action = new QAction(text, mobjView);
    action->setShortcut(shortcut);
    action->setShortcutContext(Qt::WidgetShortcut);
    mobjView->addAction(action);
    connect(action, &QAction::triggered, this, run);
  };
  mobjView->setContextMenuPolicy(Qt::ActionsContextMenu);
  add("Open", {}, [this] {
    if (const auto id = Chosen()) emit OpenRequested(*id);
  });
  add("Delete workflow…", QKeySequence::Delete, [this] {
    if (const auto id = Chosen()) emit DeleteRequested(*id);
  });
  add("Read again", QKeySequence::Refresh, [this] { emit RefreshRequested(); });
}

void StoredList::Show(const std::vector<WorkflowListing>& pcolStored) {
  const auto chosen = Chosen();
  mobjModel.removeRows(0, mobjModel.rowCount());
  for (const WorkflowListing& stored : pcolStored) mobjModel.appendRow(RowOf(stored));
  mobjFilter->setPlaceholderText("Filter by number or name");
  mobjView->setEnabled(true);
  MarkOpened();
  if (chosen) Choose(*chosen);
}

void StoredList::ShowFailure(const QString& pstrFailure) {
  mobjModel.removeRows(0, mobjModel.rowCount());
  auto* const line = new QStandardItem(pstrFailure);
  line->setToolTip(pstrFailure);
  line->setFlags(Qt::NoItemFlags);
  mobjModel.appendRow({new QStandardItem, line});
}

void StoredList::ShowOpened(std::int32_t plngId) {
  mlngOpened = plngId;
  MarkOpened();
}

void StoredList::MarkOpened() {
  for (int row = 0; row < mobjModel.rowCount(); ++row) {
    for (int column = 0; column < mobjModel.columnCount(); ++column) {
      QStandardItem* const item = mobjModel.item(row, column);
      if (!item) continue;
      const bool isOpened = mlngOpened != 0 && mobjModel.item(row, kId)->text().toInt() == mlngOpened;
      if (item->font().bold() == isOpened) continue;  // every change makes the filter look at the row again
      QFont font = mobjView->font();
      font.setBold(isOpened);
      item->setFont(font);
    }
  }
}

std::optional<std::int32_t> StoredList::Chosen() const {
  const QModelIndex index = mobjView->currentIndex();
  if (!index.isValid()) return std::nullopt;
  const int id = index.siblingAtColumn(kId).data(Qt::UserRole).toInt();
  return id > 0 ? std::optional<std::int32_t>(id) : std::nullopt;
}

void StoredList::Choose(std::int32_t plngId) {
  const auto found = mobjFiltered.match(mobjFiltered.index(0, kId), Qt::UserRole, plngId, 1, Qt::MatchExactly);
  if (!found.isEmpty()) mobjView->setCurrentIndex(found.front());
}

void StoredList::Search() {
  mobjFilter->setFocus(Qt::ShortcutFocusReason);
  mobjFilter->selectAll();
}

// In the filter, Down goes to the list, and Enter opens the chosen workflow, or the first one.
bool StoredList::eventFilter(QObject* pobjWatched, QEvent* pobjEvent) {
  if (pobjWatched != mobjFilter || pobjEvent->type() != QEvent::KeyPress) return QWidget::eventFilter(pobjWatched, pobjEvent);
  const int key = static_cast<QKeyEvent*>(pobjEvent)->key();
  const bool isEnter = key == Qt::Key_Return || key == Qt::Key_Enter;
  if ((!isEnter && key != Qt::Key_Down) || mobjFiltered.rowCount() == 0) return false;
  if (!mobjView->currentIndex().isValid()) mobjView->setCurrentIndex(mobjFiltered.index(0, kId));
  if (!isEnter) mobjView->setFocus(Qt::OtherFocusReason);
  if (const auto id = Chosen(); id && isEnter) emit OpenRequested(*id);
  return true;
}

}  // namespace vantrel

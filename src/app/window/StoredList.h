// The list of the stored workflows.
#pragma once

#include <QLineEdit>
#include <QSortFilterProxyModel>
#include <QStandardItemModel>
#include <QTreeView>
#include <QWidget>
#include <cstdint>
#include <optional>
#include <vector>

#include "persistence/WorkflowList.h"

namespace vantrel {

/// Shows what it is given, filtered by what the user types; Enter or a double-click opens a workflow, Delete asks to delete it.
class StoredList final : public QWidget {
  Q_OBJECT

 public:
  explicit StoredList(QWidget* pobjParent = nullptr);

  /// Keeps filter and selection.
  void Show(const std::vector<WorkflowListing>& pcolStored);
  /// Shows why there is no list.
  void ShowFailure(const QString& pstrFailure);
  /// Marks the workflow that is open; 0 marks none.
  void ShowOpened(std::int32_t plngId);
  std::optional<std::int32_t> Chosen() const;
  /// Gives the keyboard focus to the filter.
  void Search();

 signals:
  void OpenRequested(std::int32_t plngId);
  void DeleteRequested(std::int32_t plngId);
  void RefreshRequested();

 protected:
  bool eventFilter(QObject* pobjWatched, QEvent* pobjEvent) override;

 private:
  void BuildView();
  void BuildMenu();
  void Choose(std::int32_t plngId);
  void MarkOpened();

  QLineEdit* mobjFilter;
  QTreeView* mobjView;
  QStandardItemModel mobjModel;
  QSortFilterProxyModel mobjFiltered;
  std::int32_t mlngOpened = 0;
};

}  // namespace vantrel

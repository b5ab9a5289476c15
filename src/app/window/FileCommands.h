// What the window does with whole workflows.
#pragma once

#include <QObject>
#include <QString>
#include <cstdint>
#include <functional>
#include <string>

#include "app/database/WorkflowStore.h"
#include "qt/VantrelWidget.h"

namespace vantrel {

/// New, open, save and delete in the database; import and export of files. Whatever fails is told in a box, leaves the chart as it
/// was and answers false; so does a user who would rather keep unsaved changes.
class FileCommands final : public QObject {
  Q_OBJECT

 public:
  FileCommands(VantrelWidget& pobjWidget, WorkflowStore pobjStore, QWidget* pobjWindow);

  /// For titles and questions: "workflow 3", a file's name, or "new workflow".
  QString ShownName() const;
  /// The same at the beginning of a line; a file's name stays as it is.
  QString ShownTitle() const;
  /// The id under which the chart shown is stored, or 0.
  std::int32_t ShownId() const;
  const WorkflowStore& Store() const { return mobjStore; }

  /// Shows a workflow, null for a new one, whatever is there; of an imported one the file that it came from. Throws the Errors of the
  /// control.
  void Begin(const std::shared_ptr<Workflow>& pobjWorkflow, const QString& pstrFile);
  /// Asks what to do with unsaved changes, and saves them if so wanted.
  bool MayLeave();
  bool New();
  bool Open(std::int32_t plngId);
  /// Shows the net of a PNML file; the database has it once it is saved.
  bool Import(const QString& pstrFile);
  bool Save();
  bool SaveAsNew();
  bool Delete(std::int32_t plngId);

  void AskForImport();
  void AskForPicture();
  void AskForExport();

 signals:
  void ShownChanged();
  void StoredChanged();
  void Told(const QString& pstrText);

 private:
  bool Try(const QString& pstrWhat, const std::function<void()>& pWork);
  bool SaveBy(void (WorkflowStore::*pSave)(const std::shared_ptr<Workflow>&, std::optional<Color>) const);
  QString AskForFile(const QString& pstrTitle, const QString& pstrFilter, const QString& pstrSuffix);
  void Export(const QString& pstrFile);

  VantrelWidget& mobjWidget;
  WorkflowStore mobjStore;
  QWidget* mobjWindow;
  bool mblnAsking = false;  // what becomes of unsaved changes; what is queued meanwhile must not ask again
  QString mstrFile;         // where an imported chart came from, until it is saved
};

}  // namespace vantrel

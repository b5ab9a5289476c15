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

/// New, open, save and delete in the database; import and export of files. A command that fails says so in a box, keeps the chart and
/// returns false. It also returns false when the user cancels to keep unsaved changes.
class FileCommands final : public QObject {
  Q_OBJECT

 public:
  FileCommands(VantrelWidget& pobjWidget, WorkflowStore pobjStore, QWidget* pobjWindow);

  /// For titles and questions: "workflow 3", a file's name, or "new workflow".
  QString ShownName() const;
  /// The same with a capital letter; a file's name is not changed.
  QString ShownTitle() const;
  /// The id under which the chart shown is stored, or 0.
  std::int32_t ShownId() const;
  const WorkflowStore& Store() const { return mobjStore; }

  /// Shows a workflow, or a new one for null, without asking about unsaved changes. `pstrFile` is the file of an imported one, else empty.
  /// Throws the Errors of the control.
  void Begin(const std::shared_ptr<Workflow>& pobjWorkflow, const QString& pstrFile);
  /// Asks what to do with unsaved changes, and saves them if the user wants that.
  bool MayLeave();
  bool New();
  bool Open(std::int32_t plngId);
  /// Shows the net of a PNML file, without saving it in the database.
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
  bool SaveBy(void (WorkflowStore::*pSave)(const std::shared_ptr<Workflow>&) const);
  QString AskForFile(const QString& pstrTitle, const QString& pstrFilter, const QString& pstrSuffix);
  void Export(const QString& pstrFile);
  /// The workflow shown, with the chart's colour noted in it. Null without one.
  std::shared_ptr<Workflow> Shown() const;

  VantrelWidget& mobjWidget;
  WorkflowStore mobjStore;
  QWidget* mobjWindow;
  bool mblnAsking = false;  // about unsaved changes: a queued command must not ask a second time
  QString mstrFile;         // where an imported chart came from, until it is saved
};

}  // namespace vantrel

#include "app/window/FileCommands.h"

#include <QApplication>
#include <QFileDialog>
#include <QFileInfo>
#include <QPointer>
#include <QSettings>
#include <optional>

#include "app/window/Questions.h"
#include "interchange/PnmlExport.h"
#include "interchange/PnmlImport.h"
#include "qt/ChartPicture.h"
#include "qt/ChartView.h"
#include "qt/Conversions.h"

namespace vantrel {

namespace {

constexpr char kFolderKey[] = "files/folder";
constexpr double kPictureZoom = 2;  // of PNG files: sharp on any screen

class WaitCursor {
 public:
  WaitCursor() { QApplication::setOverrideCursor(Qt::WaitCursor); }
  ~WaitCursor() { QApplication::restoreOverrideCursor(); }
  WaitCursor(const WaitCursor&) = delete;
  WaitCursor& operator=(const WaitCursor&) = delete;
};

std::optional<QString> FailureOf(const std::function<void()>& pWork) {
  const WaitCursor waiting;
  try {
    pWork();
    return std::nullopt;
  } catch (const Error& error) {
    return ToQString(error.Description);
  } catch (const std::exception& error) {
    return QString::fromUtf8(error.what());
  }
}

// Setting the colour marks a change, which it is not here.
void ShowColor(Vantrel& pobjControl) {
  const Color color = pobjControl.Workflow()->ChartColor.value_or(kWhite);
  if (pobjControl.BackColor() == color) return;
  pobjControl.BackColor(color);
  pobjControl.Workflow()->Dirty(false);
}

QString NotesOf(const LoadedNet& pobjNet) {
  QString notes = QString("Read %1.").arg(ToQString(pobjNet.Name));
  if (!pobjNet.Marking.empty()) notes += " Its initial marking is not part of the workflow.";
  return notes;
}

}  // namespace

FileCommands::FileCommands(VantrelWidget& pobjWidget, WorkflowStore pobjStore, QWidget* pobjWindow)
    : QObject(pobjWindow), mobjWidget(pobjWidget), mobjStore(std::move(pobjStore)), mobjWindow(pobjWindow) {
  mobjWidget.Control().MayReplaceWorkflow = [this] {
    New();  // asks first, and updates title and list
    return false;
  };
}

bool FileCommands::Try(const QString& pstrWhat, const std::function<void()>& pWork) {
  const auto failure = FailureOf(pWork);
  if (failure) TellFailure(mobjWindow, pstrWhat, *failure);
  return !failure;
}

std::int32_t FileCommands::ShownId() const {
  const auto workflow = mobjWidget.Control().Workflow();
  return workflow ? workflow->RecId : 0;
}

QString FileCommands::ShownName() const {
  if (const auto id = ShownId()) return QString("workflow %1").arg(id);
  return mstrFile.isEmpty() ? QString("new workflow") : QFileInfo(mstrFile).fileName();
}

QString FileCommands::ShownTitle() const {
  QString title = ShownName();
  if (ShownId() != 0 || mstrFile.isEmpty()) title[0] = title[0].toUpper();
  return title;
}

bool FileCommands::MayLeave() {
  if (mblnAsking) return false;
  mobjWidget.View().FinishEditing();
  if (!mobjWidget.Control().Workflow() || !mobjWidget.Control().Dirty()) return true;
  const QPointer<FileCommands> alive(this);
  mblnAsking = true;
  const LeaveAnswer answer = AskBeforeLeaving(mobjWindow, ShownName());
  if (!alive) return false;
  mblnAsking = false;
  if (answer == LeaveAnswer::Cancel) return false;
  return answer == LeaveAnswer::Discard || Save();
}

void FileCommands::Begin(const std::shared_ptr<Workflow>& pobjWorkflow, const QString& pstrFile) {
  mstrFile = pstrFile;
  Vantrel& control = mobjWidget.Control();
  for (ScrollBar* const bar : {&control.HScroll, &control.VScroll}) bar->Max(0);  // another chart may be smaller
  pobjWorkflow ? control.Workflow(pobjWorkflow) : static_cast<void>(control.NewWorkflow());
  ShowColor(control);
  mobjWidget.View().ShowBeginning();
  emit ShownChanged();
}

std::shared_ptr<Workflow> FileCommands::Shown() const {
  const Vantrel& control = mobjWidget.Control();
  if (control.Workflow()) control.Workflow()->ChartColor = control.BackColor();
  return control.Workflow();
}

bool FileCommands::New() {
  if (!MayLeave()) return false;
  return Try("There is no new workflow.", [&] { Begin(nullptr, {}); });
}

bool FileCommands::Open(std::int32_t plngId) {
  if (!MayLeave()) return false;
  const bool isDone = Try(QString("Workflow %1 cannot be opened.").arg(plngId), [&] { Begin(mobjStore.Read(plngId), {}); });
  if (isDone) emit Told(QString("Opened workflow %1.").arg(plngId));
  return isDone;
}

bool FileCommands::Import(const QString& pstrFile) {
  if (!MayLeave()) return false;
  QString notes;
  const bool isDone = Try(QString("%1 cannot be imported.").arg(QFileInfo(pstrFile).fileName()), [&] {
    const LoadedNet net = ImportPnml(pstrFile.toStdString());
    Begin(net.Workflow, pstrFile);
    notes = NotesOf(net);
  });
  if (isDone) emit Told(notes);
  return isDone;
}

bool FileCommands::Save() { return SaveBy(&WorkflowStore::Save); }

bool FileCommands::SaveAsNew() { return SaveBy(&WorkflowStore::SaveAsNew); }

bool FileCommands::SaveBy(void (WorkflowStore::*pSave)(const std::shared_ptr<Workflow>&) const) {
  mobjWidget.View().FinishEditing();
  const auto workflow = Shown();
  if (!workflow) return false;
  const auto before = workflow->RecId;
  const bool isDone = Try(QString("Cannot save %1.").arg(ShownName()), [&] { (mobjStore.*pSave)(workflow); });
  workflow->Dirty(!isDone);
  if (!isDone) return false;
  mstrFile.clear();
  const bool isLost = before != 0 && before != workflow->RecId && pSave == &WorkflowStore::Save;
  emit Told(QString("Saved as workflow %1%2").arg(workflow->RecId).arg(isLost ? QString("; %1 was deleted meanwhile.").arg(before) : "."));
  emit ShownChanged();
  emit StoredChanged();
  return true;
}

bool FileCommands::Delete(std::int32_t plngId) {
  const QPointer<FileCommands> alive(this);
  const bool isSure = AskWhether(mobjWindow, QString("Delete workflow %1 from the database?").arg(plngId),
                                 "This cannot be undone. Its cases and tokens stay in the database.", "Delete");
  if (!alive || !isSure) return false;
  if (!Try(QString("Workflow %1 was not deleted.").arg(plngId), [&] { mobjStore.Delete(plngId); })) return false;
  emit Told(QString("Deleted workflow %1.").arg(plngId));
  emit StoredChanged();
  if (plngId == ShownId()) New();
  return true;
}

QString FileCommands::AskForFile(const QString& pstrTitle, const QString& pstrFilter, const QString& pstrSuffix) {
  QSettings settings;
  const QPointer<FileCommands> alive(this);
  const QPointer<QFileDialog> dialog(new QFileDialog(mobjWindow, pstrTitle, settings.value(kFolderKey).toString(), pstrFilter));
  const bool isExport = !pstrSuffix.isEmpty();
  dialog->setAcceptMode(isExport ? QFileDialog::AcceptSave : QFileDialog::AcceptOpen);
  dialog->setFileMode(isExport ? QFileDialog::AnyFile : QFileDialog::ExistingFile);
  dialog->setDefaultSuffix(pstrSuffix);
  if (isExport) dialog->selectFile(QFileInfo(ShownName()).completeBaseName().replace(' ', '-') + '.' + pstrSuffix);
  const bool isAccepted = dialog->exec() == QDialog::Accepted;
  if (!alive || !dialog) return {};
  QString file = isAccepted ? dialog->selectedFiles().value(0) : QString();
  if (isAccepted) settings.setValue(kFolderKey, dialog->directory().absolutePath());
  delete dialog.data();
  return file;
}

void FileCommands::AskForImport() {
  const QString file = AskForFile("Import a net", "PNML nets (*.pnml *.xml);;All files (*)", {});
  if (!file.isEmpty()) Import(file);
}

void FileCommands::AskForPicture() {
  mobjWidget.View().FinishEditing();
  const QString file = AskForFile("Export a picture", "Pictures (*.png *.svg *.pdf)", "png");
  if (file.isEmpty()) return;
  const bool isPixels = file.endsWith(".png", Qt::CaseInsensitive);
  const bool isDone = Try("The picture was not written.",
                          [&] { WriteChart(mobjWidget.Control().ChartArea, file.toStdString(), isPixels ? kPictureZoom : 1); });
  if (isDone) emit Told(QString("Wrote %1.").arg(file));
}

void FileCommands::AskForExport() {
  mobjWidget.View().FinishEditing();
  const QString file = AskForFile("Export the net", "PNML nets (*.pnml)", "pnml");
  if (!file.isEmpty()) Export(file);
}

void FileCommands::Export(const QString& pstrFile) {
  const auto workflow = Shown();
  if (!workflow) return;
  if (Try("The net was not written.", [&] { ExportPnml(*workflow, pstrFile.toStdString()); })) {
    const auto left = ArcsLeftOut(*workflow).size();
    emit Told(QString("Wrote %1%2").arg(pstrFile).arg(left > 0 ? QString(" without %1 unfinished arcs.").arg(left) : "."));
  }
}

}  // namespace vantrel

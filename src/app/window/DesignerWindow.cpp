#include "app/window/DesignerWindow.h"

#include <QCloseEvent>
#include <QFileInfo>
#include <QGuiApplication>
#include <QScreen>
#include <QSettings>
#include <QUrl>

#include "app/window/Questions.h"
#include "designer/Commands.h"
#include "qt/ChartView.h"
#include "qt/Conversions.h"
#include "qt/DraggedData.h"

namespace vantrel {

namespace {

constexpr char kGeometryKey[] = "window/geometry", kStateKey[] = "window/state", kLastKey[] = "last/";
constexpr int kMessageTime = 8000;  // milliseconds

QString LastKeyOf(const WorkflowStore& pobjStore) {
  const QFileInfo file(ToQString(pobjStore.Name()));  // a file of the same name in another folder is another database
  return kLastKey + QString::fromLatin1(QUrl::toPercentEncoding(file.exists() ? file.canonicalFilePath() : file.filePath()));
}

}  // namespace

DesignerWindow::DesignerWindow(const WorkflowStore& pobjStore, const std::vector<WorkflowListing>& pcolStored)
    : mobjDesigner(new VantrelWidget(this)),
      mobjFiles(*mobjDesigner, pobjStore, this),
      mobjStored(new StoredList),
      mobjDock(new QDockWidget("Stored workflows", this)),
      mobjMenus(new WindowMenus({*this, *mobjDesigner, mobjFiles, *mobjStored})),
      mobjStatus(new StatusLine(*mobjDesigner, this)),
      mobjActivity(*mobjDesigner, this) {
  setObjectName("DesignerWindow");
  setCentralWidget(mobjDesigner);
  setStatusBar(mobjStatus);
  SetUpDesigner();
  SetUpList();
  ConnectDesigner();
  Restore();
  mobjStored->Show(pcolStored);
  ShownChanged();
  mobjDesigner->setFocus();
}

DesignerWindow::~DesignerWindow() {
  mobjDesigner->disconnect(this);
  mobjDesigner->Control().MayReplaceWorkflow = nullptr;
}

void DesignerWindow::SetUpDesigner() {
  Vantrel& control = mobjDesigner->Control();
  control.EnablePopups = true;
  control.Comfort = Comfort::All();
  control.RestrictTesting(true);                                       // nothing plays the tests yet
  control.DesignMenu().Find(CommandIds::Properties)->Visible = false;  // nor is there a dialog
  mobjSaveEntry = control.DesignMenu().Find(CommandIds::Save)->OnClick.Connect([this] { mobjFiles.Save(); });
}

void DesignerWindow::SetUpList() {
  mobjDock->setObjectName("StoredDock");
  mobjDock->setWidget(mobjStored);
  mobjDock->setToolTip(ToQString(mobjFiles.Store().Name()));
  addDockWidget(Qt::LeftDockWidgetArea, mobjDock);
  mobjMenus->ViewMenu().addAction(mobjDock->toggleViewAction());
  mobjMenus->ViewMenu().addAction(mobjMenus->ToolBar().toggleViewAction());
  connect(mobjStored, &StoredList::OpenRequested, this, [this](std::int32_t id) {
    if (mobjFiles.Open(id)) mobjDesigner->setFocus();
  });
  connect(mobjStored, &StoredList::DeleteRequested, &mobjFiles, &FileCommands::Delete);
  connect(mobjStored, &StoredList::RefreshRequested, this, &DesignerWindow::ReadList);
  connect(&mobjFiles, &FileCommands::StoredChanged, this, &DesignerWindow::ReadList);
  connect(&mobjFiles, &FileCommands::ShownChanged, this, &DesignerWindow::ShownChanged);
  connect(&mobjFiles, &FileCommands::Told, this, [this](const QString& text) { mobjStatus->showMessage(text, kMessageTime); });
}

void DesignerWindow::ConnectDesigner() {
  const auto tell = [this](const QString& text) { mobjStatus->showMessage(text, kMessageTime); };
  connect(mobjMenus, &WindowMenus::Ran, &mobjActivity, &ActivityWatch::Stir);
  connect(&mobjActivity, &ActivityWatch::Settled, this, &DesignerWindow::Settle);
  connect(&mobjActivity, &ActivityWatch::PointerAt, mobjStatus, &StatusLine::ShowPointer);
  connect(&mobjActivity, &ActivityWatch::PointerLeft, mobjStatus, &StatusLine::HidePointer);
  connect(&mobjDesigner->View(), &ChartView::ZoomChanged, mobjStatus, &StatusLine::ShowZoom);
  connect(mobjDesigner, &VantrelWidget::DirtyChange, this, [this](bool dirty) { setWindowModified(dirty); });
  connect(mobjDesigner, &VantrelWidget::ObjectDragDrop, this, [this](const auto& dragged) { TakeDrop(dragged); });
  // Queued, so that the control does not lose its workflow in the middle of a press.
  connect(mobjDesigner, &VantrelWidget::TransitionDblClick, this, &DesignerWindow::OpenEmbedded, Qt::QueuedConnection);
  connect(mobjDesigner, &VantrelWidget::RunCommand, this, [tell](const QString& command, const auto& transition) {
    tell(QString("%1 would run: %2").arg(ToQString(transition->Name()), command));
  });
}

void DesignerWindow::Settle() {
  mobjMenus->Follow();
  mobjStatus->Refresh();
}

void DesignerWindow::ShownChanged() {
  setWindowTitle(mobjFiles.ShownTitle() + "[*]");
  setWindowModified(mobjDesigner->Control().Workflow() && mobjDesigner->Control().Dirty());
  mobjStored->ShowOpened(mobjFiles.ShownId());
  mobjMenus->Follow();
  mobjStatus->Refresh();
  if (const auto id = mobjFiles.ShownId()) QSettings().setValue(LastKeyOf(mobjFiles.Store()), id);
}

std::int32_t DesignerWindow::LastOpened() const { return QSettings().value(LastKeyOf(mobjFiles.Store())).toInt(); }

void DesignerWindow::ReadList() {
  try {
    mobjStored->Show(mobjFiles.Store().List());
  } catch (const std::exception& failure) {
    mobjStored->ShowFailure(QString::fromUtf8(failure.what()));
  }
}

void DesignerWindow::TakeDrop(const std::shared_ptr<vantrel::Object>& pobjDragged) {
  const auto data = std::dynamic_pointer_cast<DraggedData>(pobjDragged);
  if (!data || data->Urls.empty()) return;
  const QString file = QUrl(ToQString(data->Urls.front())).toLocalFile();
  if (file.isEmpty()) return mobjStatus->showMessage("Only files of this computer can be imported.", kMessageTime);
  // Queued, so that the program that is dragged from does not wait for our questions.
  QMetaObject::invokeMethod(
      &mobjFiles, [this, file] { mobjFiles.Import(file); }, Qt::QueuedConnection);
}

void DesignerWindow::OpenEmbedded(const std::shared_ptr<Transition>& pobjTransition) {
  if (pobjTransition->SubflowId != 0) mobjFiles.Open(pobjTransition->SubflowId);
}

void DesignerWindow::closeEvent(QCloseEvent* pobjEvent) {
  if (!mobjFiles.MayLeave()) return pobjEvent->ignore();
  Remember();
  pobjEvent->accept();
}

void DesignerWindow::changeEvent(QEvent* pobjEvent) {
  QMainWindow::changeEvent(pobjEvent);
  if (pobjEvent->type() == QEvent::PaletteChange && mobjMenus) mobjMenus->Paint();
}

void DesignerWindow::Remember() const {
  QSettings settings;
  settings.setValue(kGeometryKey, saveGeometry());
  settings.setValue(kStateKey, saveState());
}

void DesignerWindow::Restore() {
  const QSettings settings;
  if (restoreGeometry(settings.value(kGeometryKey).toByteArray())) {
    restoreState(settings.value(kStateKey).toByteArray());
  } else {
    resize((screen()->availableSize() * 3 / 4).boundedTo({1400, 900}));
    resizeDocks({mobjDock}, {240}, Qt::Horizontal);
  }
}

}  // namespace vantrel

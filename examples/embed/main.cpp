// A host of the designer: a window that hears what happens and keeps the workflow in a database file.
//
//   embed FILE.db           shows the workflow stored last; makes the file where there is none
//   embed --once FILE.db    inserts a place, saves and ends, without waiting for anybody
#include <QApplication>
#include <QCloseEvent>
#include <QFile>
#include <QMainWindow>
#include <QStatusBar>
#include <cstdio>

#include <vantrel/database/sqlite/Sqlite.h>
#include <vantrel/designer/Commands.h>
#include <vantrel/persistence/WholeSave.h>
#include <vantrel/persistence/WorkflowList.h>
#include <vantrel/qt/VantrelWidget.h>
#include <vantrel/util/MsgBox.h>

using namespace vantrel;

class HostWindow final : public QMainWindow {
 public:
  /// Throws Error for a file that is no database.
  explicit HostWindow(const QString& pstrFile) {
    setWindowTitle(pstrFile + "[*]");
    statusBar();  // there from the beginning, or its first message would move the chart
    setCentralWidget(mobjDesigner);
    resize(960, 600);
    Listen();
    mobjControl.EnablePopups = true;
    mobjControl.MayReplaceWorkflow = [this] { return MayLeave(); };
    mobjControl.VNTRDB->Connection = OpenSqlite(pstrFile.toStdString());
  }

  /// Shows the newest workflow of the file, or one to begin with. Throws Error.
  void ShowWorkflow() {
    const auto stored = ListWorkflows(*mobjControl.VNTRDB->Connection);
    if (stored.empty()) {
      mobjControl.NewWorkflow();
    } else {
      mobjControl.Workflow(mobjControl.VNTRDB->ReadWorkflow(stored.back().Id));
    }
  }

  /// False when nothing was stored; a message box has said why.
  bool Save() {
    return ShowErrors([this] {
      const auto workflow = mobjControl.Workflow();
      SaveWhole(mobjControl.VNTRDB->Connection, workflow);
      workflow->Dirty(false);
      Say("Saved as workflow " + std::to_string(workflow->RecId));
    });
  }

  Vantrel& Control() { return mobjControl; }

 private:
  bool MayLeave() {
    const auto answer = mobjControl.Dirty() ? MsgBox("Save the changes?", vntYesNoCancel) : vntNo;
    return answer == vntNo || (answer == vntYes && Save());
  }

  void closeEvent(QCloseEvent* pobjEvent) override { pobjEvent->setAccepted(MayLeave()); }

  void Listen() {
    connect(mobjDesigner, &VantrelWidget::DirtyChange, this, &QWidget::setWindowModified);
    connect(mobjDesigner, &VantrelWidget::Selected, this, [this](ModelObject& object) { Say("Selected " + object.NameText()); });
    connect(mobjDesigner, &VantrelWidget::ArcInserted, this, [this](const auto& arc) { Say("New arc " + arc->Name()); });
    connect(mobjDesigner, &VantrelWidget::TransitionDblClick, this, [this](const auto& node) { Say("Double click: " + node->Name()); });
    mobjSaveChosen = mobjControl.DesignMenu().Find(CommandIds::Save)->OnClick.Connect([this] { Save(); });
  }

  void Say(const std::string& pstrText) { statusBar()->showMessage(QString::fromStdString(pstrText)); }

  VantrelWidget* const mobjDesigner = new VantrelWidget(this);
  Vantrel& mobjControl = mobjDesigner->Control();
  Subscription mobjSaveChosen;
};

int main(int argc, char** argv) try {
  const QApplication application(argc, argv);
  const QStringList arguments = QApplication::arguments().mid(1);
  const bool isOnce = arguments.value(0) == "--once";
  if (arguments.size() != (isOnce ? 2 : 1)) return std::fputs("usage: embed [--once] FILE.db\n", stderr), 2;
  QFile schema(":/sqlite.sql");
  if (!QFile::exists(arguments.last()) && schema.open(QIODevice::ReadOnly)) {
    CreateSqlite(arguments.last().toStdString(), schema.readAll().toStdString());
  }
  HostWindow window(arguments.last());
  if (isOnce) InstallMsgBoxPresenter({});  // to standard error
  window.show();
  window.ShowWorkflow();
  if (!isOnce) return QApplication::exec();
  window.Control().InsertPlace("Inbox");
  return window.Save() ? 0 : 1;
} catch (const std::exception& error) {
  std::fprintf(stderr, "embed: %s\n", error.what());
  return 1;
}

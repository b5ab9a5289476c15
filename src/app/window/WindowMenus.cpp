#include "app/window/WindowMenus.h"

#include <QKeySequence>
#include <QMenuBar>
#include <QMessageBox>

#include "app/window/ActionIcon.h"
#include "app/window/HelpTexts.h"
#include "app/window/InsertPosition.h"
#include "qt/ChartView.h"
#include "util/MsgBox.h"

namespace vantrel {

namespace {

bool Places(const std::string& pstrCaption) {
  return pstrCaption == "Insert Place" || pstrCaption == "Insert Transition" || pstrCaption == "Add Notation" || pstrCaption == "Paste";
}

template <class Objects>
auto& LastOf(const Objects& pcolObjects) {
  return *pcolObjects.Item(pcolObjects.Count());
}

// What was inserted is what the user goes on with.
void ChooseInserted(Vantrel& pobjControl, const std::string& pstrCaption) {
  const auto workflow = pobjControl.Workflow();
  if (!workflow || (pstrCaption != "Insert Place" && pstrCaption != "Insert Transition" && pstrCaption != "Add Notation")) return;
  pobjControl.Selection(nullptr);  // what was chosen before would be moved and deleted along with it
  if (pstrCaption == "Insert Place") {
    pobjControl.CurrentControl(LastOf(workflow->Places).Image.get());
  } else if (pstrCaption == "Insert Transition") {
    pobjControl.CurrentControl(LastOf(workflow->Transitions).Image.get());
  } else if (pstrCaption == "Add Notation") {
    pobjControl.CurrentControl(LastOf(workflow->Notations).TextControl.get());
  }
}

}  // namespace

WindowMenus::WindowMenus(QMainWindow& pobjWindow, VantrelWidget& pobjWidget, FileCommands& pobjFiles, StoredList& pobjStored)
    : QObject(&pobjWindow),
      mobjWindow(pobjWindow),
      mobjWidget(pobjWidget),
      mobjFiles(pobjFiles),
      mobjStored(pobjStored),
      mobjEntries(pobjWidget, this) {
  mobjEntries.BeforeRun = [this](const std::string& pstrCaption) {
    mobjWidget.View().FinishEditing();
    if (Places(pstrCaption)) ChooseInsertPosition(mobjWidget.Control(), mobjWidget.View().InView());
  };
  connect(&mobjEntries, &MenuActions::Ran, this, [this](const std::string& pstrCaption) {
    ChooseInserted(mobjWidget.Control(), pstrCaption);
    if (pstrCaption == "Add Notation") mobjWidget.View().EditText();  // an empty note says nothing
    emit Ran();
  });
  BuildFile();
  BuildEdit();
  BuildInsert();
  BuildFormat();
  BuildView();
  BuildHelp();
  BuildToolBar();
  Paint();
}

QAction* WindowMenus::Add(QMenu& pobjMenu, const QString& pstrText, const QKeySequence& pobjShortcut, const std::function<void()>& pRun) {
  QAction* const action = pobjMenu.addAction(pstrText);
  action->setShortcut(pobjShortcut);
  connect(action, &QAction::triggered, this, pRun);
  return action;
}

QAction* WindowMenus::Entry(QMenu& pobjMenu, const std::string& pstrCaption, const QString& pstrText, const QKeySequence& pobjShortcut) {
  QAction* const action = mobjEntries.Action(pstrCaption, pstrText, pobjShortcut);
  pobjMenu.addAction(action);
  return action;
}

void WindowMenus::BuildFile() {
  QMenu& menu = *mobjWindow.menuBar()->addMenu("&File");
  Draw(Add(menu, "&New", QKeySequence::New, [this] { mobjFiles.New(); }), "New");
  Add(menu, "&Open…", QKeySequence::Open, [this] {
    if (auto* const dock = mobjStored.parentWidget()) dock->show();
    mobjStored.Search();
  });
  Draw(Add(menu, "&Import…", QKeySequence("Ctrl+I"), [this] { mobjFiles.AskForImport(); }), "Import");
  menu.addSeparator();
  mobjSave = Add(menu, "&Save", QKeySequence::Save, [this] { mobjFiles.Save(); });
  Draw(mobjSave, "Save");
  mcolNeedWorkflow = {mobjSave};
  mcolNeedWorkflow.push_back(Add(menu, "Save &as new", QKeySequence("Ctrl+Shift+S"), [this] { mobjFiles.SaveAsNew(); }));
  Add(menu, "&Delete from the database…", {}, [this] { DeleteChosen(); });
  menu.addSeparator();
  mcolNeedWorkflow.push_back(Add(menu, "Export &picture…", QKeySequence("Ctrl+E"), [this] { mobjFiles.AskForPicture(); }));
  Draw(mcolNeedWorkflow.back(), "Picture");
  mcolNeedWorkflow.push_back(Add(menu, "Export n&et…", QKeySequence("Ctrl+Shift+E"), [this] { mobjFiles.AskForExport(); }));
  menu.addSeparator();
  Add(menu, "&Quit", QKeySequence("Ctrl+Q"), [this] { mobjWindow.close(); });
}

// What the list has chosen, while the user is in it; otherwise what the chart shows.
void WindowMenus::DeleteChosen() {
  const bool isInList = mobjStored.isAncestorOf(mobjWindow.focusWidget());
  const std::int32_t id = isInList ? mobjStored.Chosen().value_or(0) : mobjFiles.ShownId();
  if (id != 0) return static_cast<void>(mobjFiles.Delete(id));
  emit mobjFiles.Told("Nothing to delete: this workflow is not stored, and the list has none chosen.");
}

void WindowMenus::BuildEdit() {
  QMenu& menu = *mobjWindow.menuBar()->addMenu("&Edit");
  Draw(Entry(menu, "Copy", "&Copy", QKeySequence::Copy), "Copy");
  Draw(Entry(menu, "Paste", "&Paste", QKeySequence::Paste), "Paste");
  Draw(Entry(menu, "Delete", "&Delete"), "Delete");
  Draw(Entry(menu, "Select All", "Select &All", QKeySequence::SelectAll), "SelectAll");
  menu.addSeparator();
  mobjText = Add(menu, "&Text", QKeySequence("F2"), [this] { mobjWidget.View().EditText(); });
  menu.addSeparator();
  Entry(menu, "Properties", "P&roperties", QKeySequence("Alt+Return"));
}

void WindowMenus::BuildInsert() {
  QMenu& menu = *mobjWindow.menuBar()->addMenu("&Insert");
  Draw(Entry(menu, "Insert Place", "Insert &Place", QKeySequence("P")), "Place");
  Draw(Entry(menu, "Insert Transition", "Insert &Transition", QKeySequence("T")), "Transition");
  Draw(Entry(menu, "Insert Arc", "Insert &Arc", QKeySequence("A")), "Arc");
  menu.addSeparator();
  Draw(Entry(menu, "Insert Elbow", "Insert &Elbow", QKeySequence("E")), "InsertElbow");
  Draw(Entry(menu, "Remove Elbow", "&Remove Elbow", QKeySequence("Shift+E")), "RemoveElbow");
  menu.addSeparator();
  Draw(Entry(menu, "Add Notation", "Add &Notation", QKeySequence("N")), "Note");
}

void WindowMenus::BuildFormat() {
  QMenu& menu = *mobjWindow.menuBar()->addMenu("F&ormat");
  Draw(Entry(menu, "Align Horizontal", "Align &Horizontal", QKeySequence("H")), "AlignHorizontal");
  Draw(Entry(menu, "Align Vertical", "Align &Vertical", QKeySequence("V")), "AlignVertical");
  menu.addSeparator();
  Draw(Entry(menu, "Backcolor", "&Backcolor…"), "Backcolor");
  menu.addSeparator();
  QAction* const lock = Entry(menu, "Lock controls", "&Lock controls");
  lock->setCheckable(true);
  Draw(lock, "Lock");
  menu.addSeparator();
  Entry(menu, "Test", "&Test");
}

void WindowMenus::BuildView() {
  mobjViewMenu = mobjWindow.menuBar()->addMenu("&View");
  QMenu& menu = *mobjViewMenu;
  ChartView& view = mobjWidget.View();
  constexpr double kStep = 1.2;  // as the wheel's
  QAction* const zoomIn = Add(menu, "Zoom &in", {}, [&view] { view.Zoom(view.Zoom() * kStep); });
  zoomIn->setShortcuts({QKeySequence("Ctrl++"), QKeySequence("Ctrl+=")});  // without Shift, too
  Draw(zoomIn, "ZoomIn");
  Draw(Add(menu, "Zoom &out", QKeySequence("Ctrl+-"), [&view] { view.Zoom(view.Zoom() / kStep); }), "ZoomOut");
  Add(menu, "&Actual size", QKeySequence("Ctrl+0"), [&view] { view.Zoom(1); });
  Draw(Add(menu, "&Fit to window", QKeySequence("Ctrl+9"), [&view] { view.FitToWindow(); }), "ZoomFit");
  menu.addSeparator();
  mobjWeights = Add(menu, "Show &weights", {}, [this] { ShowErrors([&] { mobjWidget.Control().ShowWeights(mobjWeights->isChecked()); }); });
  mobjGuards = Add(menu, "Show &guards", {}, [this] { ShowErrors([&] { mobjWidget.Control().ShowGuards(mobjGuards->isChecked()); }); });
  for (QAction* const action : {mobjWeights, mobjGuards}) {
    action->setCheckable(true);
    mcolNeedWorkflow.push_back(action);
  }
  menu.addSeparator();
}

void WindowMenus::BuildHelp() {
  QMenu& menu = *mobjWindow.menuBar()->addMenu("&Help");
  Add(menu, "&Mouse and keys", QKeySequence::HelpContents, [this] { ShowKeys(&mobjWindow); });
  Add(menu, "&About Vantrel", {}, [this] { ShowAbout(&mobjWindow); });
}

void WindowMenus::BuildToolBar() {
  mobjToolBar = mobjWindow.addToolBar("Tool bar");
  mobjToolBar->setObjectName("ToolBar");
  for (const auto& [action, icon] : mcolIcons) {
    const bool startsGroup = icon == "Save" || icon == "Copy" || icon == "Place" || icon == "AlignHorizontal" || icon == "ZoomIn";
    if (startsGroup && icon != "Save") mobjToolBar->addSeparator();
    mobjToolBar->addAction(action);
    const QString key = action->shortcut().toString(QKeySequence::NativeText);
    action->setToolTip(action->text().remove('&').remove("…") + (key.isEmpty() ? QString() : QString(" (%1)").arg(key)));
  }
}

void WindowMenus::Follow() {
  mobjEntries.Follow();
  const auto workflow = mobjWidget.Control().Workflow();
  for (QAction* const action : mcolNeedWorkflow) action->setEnabled(workflow != nullptr);
  mobjText->setEnabled(workflow && mobjWidget.Control().CurrentControl() && !mobjWidget.Control().LockControls());
  mobjWeights->setChecked(mobjWidget.Control().ShowWeights());
  mobjGuards->setChecked(mobjWidget.Control().ShowGuards());
}

void WindowMenus::Paint() {
  const QColor ink = mobjWindow.palette().color(QPalette::ButtonText);
  for (const auto& [action, icon] : mcolIcons) action->setIcon(ActionIcon(icon, ink));
}

}  // namespace vantrel

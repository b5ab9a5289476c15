#include "app/window/WindowMenus.h"

#include <QKeySequence>
#include <QMenuBar>
#include <QPointer>
#include <algorithm>
#include <optional>

#include "app/window/ActionIcon.h"
#include "app/window/InsertPosition.h"
#include "designer/ChartObjects.h"
#include "designer/Commands.h"
#include "qt/ChartView.h"
#include "qt/Conversions.h"
#include "qt/InputTranslation.h"
#include "util/MsgBox.h"

namespace vantrel {

namespace {

namespace Ids = CommandIds;

bool Inserts(std::string_view pstrId) {
  return pstrId == Ids::InsertPlace || pstrId == Ids::InsertTransition || pstrId == Ids::AddNotation;
}

// Puts the control's current position back: only the inserted object was to go elsewhere.
class PositionScope {
 public:
  explicit PositionScope(Vantrel& pobjControl) : mobjControl(&pobjControl), msngX(pobjControl.CurrentX), msngY(pobjControl.CurrentY) {}
  ~PositionScope() {
    if (!mobjControl) return;
    mobjControl->CurrentX = msngX;
    mobjControl->CurrentY = msngY;
  }
  PositionScope(const PositionScope&) = delete;
  PositionScope& operator=(const PositionScope&) = delete;

 private:
  Ref<Vantrel> mobjControl;
  float msngX, msngY;
};

void RevealSelection(VantrelWidget& pobjDesigner) {
  std::optional<Rect> area;
  for (const auto& object : *pobjDesigner.Control().Selection()) {
    if (const auto bounds = BoundsOf(*object)) area = area ? area->United(*bounds) : *bounds;
  }
  if (area) pobjDesigner.View().Reveal(*area);
}

QList<QKeySequence> KeysOf(const WindowCommand& pobjCommand) {
  const ControlCommand* const entry = pobjCommand.Run ? nullptr : FindCommand(pobjCommand.Id);
  return QKeySequence::listFromString(entry ? QString::fromUtf8(entry->Keys.data(), static_cast<qsizetype>(entry->Keys.size()))
                                            : QString::fromUtf8(pobjCommand.Keys));
}

}  // namespace

WindowMenus::WindowMenus(const WindowParts& pobjParts) : QObject(&pobjParts.Window), mobjParts(pobjParts) {
  mobjToolBar = pobjParts.Window.addToolBar("Tool bar");
  mobjToolBar->setObjectName("ToolBar");
  for (const WindowMenu& menu : AllWindowMenus()) {
    const std::size_t first = mcolEntries.size();
    BuildMenu(menu);
    BuildToolBar(first);
  }
  Paint();
}

void WindowMenus::BuildMenu(const WindowMenu& pobjMenu) {
  QMenu* const menu = mobjParts.Window.menuBar()->addMenu(pobjMenu.Title);
  for (const WindowCommand& command : pobjMenu.Commands) {
    if (command.Id.empty()) {
      menu->addSeparator();
    } else {
      menu->addAction(MakeAction(command));
    }
  }
  if (std::string_view(pobjMenu.Title) == "&View") mobjViewMenu = menu;
}

QAction* WindowMenus::MakeAction(const WindowCommand& pobjCommand) {
  auto* const action = new QAction(pobjCommand.Text, this);
  action->setObjectName(QString::fromUtf8(pobjCommand.Id.data(), static_cast<qsizetype>(pobjCommand.Id.size())));
  const ControlCommand* const entry = FindCommand(pobjCommand.Id);
  action->setCheckable(pobjCommand.IsChecked || (entry && entry->IsChecked));
  BindKeys(*action, pobjCommand);
  connect(action, &QAction::triggered, this, [this, &pobjCommand] { ShowErrors([&] { Run(pobjCommand); }); });
  mcolEntries.push_back({&pobjCommand, action});
  return action;
}

// The designer's keys work while the chart or a child of it has the focus. A letter that is held inserts one object alone. A key that
// the chart handles itself is only shown.
void WindowMenus::BindKeys(QAction& pobjAction, const WindowCommand& pobjCommand) {
  const auto keys = KeysOf(pobjCommand);
  const QString shown = keys.isEmpty() ? QString() : QString(" (%1)").arg(keys.front().toString(QKeySequence::NativeText));
  pobjAction.setToolTip(pobjAction.text().remove('&').remove("…") + shown);
  if (pobjCommand.Run) return pobjAction.setShortcuts(keys);
  mobjParts.Designer.addAction(&pobjAction);
  pobjAction.setShortcutContext(Qt::WidgetWithChildrenShortcut);
  pobjAction.setAutoRepeat(false);
  if (keys.isEmpty() || KeyCodeOf(keys.front()[0].key()) == 0) pobjAction.setShortcuts(keys);
}

// A group for each menu.
void WindowMenus::BuildToolBar(std::size_t plngFirst) {
  const auto isShown = [](const Entry& entry) { return *entry.Command->Icon != '\0'; };
  const auto first = mcolEntries.begin() + static_cast<std::ptrdiff_t>(plngFirst);
  if (std::none_of(first, mcolEntries.end(), isShown)) return;
  if (!mobjToolBar->actions().isEmpty()) mobjToolBar->addSeparator();
  for (auto entry = first; entry != mcolEntries.end(); ++entry) {
    if (isShown(*entry)) mobjToolBar->addAction(entry->Action);
  }
}

void WindowMenus::Run(const WindowCommand& pobjCommand) {
  if (!pobjCommand.Run) return RunEntry(pobjCommand.Id);
  const QPointer<WindowMenus> alive(this);
  pobjCommand.Run(mobjParts);
  if (alive) Follow();
}

void WindowMenus::RunEntry(std::string_view pstrId) {
  VantrelWidget& designer = mobjParts.Designer;
  const QPointer<WindowMenus> alive(this);
  designer.View().FinishEditing();
  if (!alive || designer.Control().Input.IsCaptured()) return;
  const MenuItem* const entry = designer.Control().DesignMenu().Find(pstrId);
  if (!entry->Enabled || !entry->Visible) return Follow();
  if (Inserts(pstrId)) {
    const PositionScope position(designer.Control());
    ChooseInsertPosition(designer.Control(), designer.View().InView());
    entry->OnClick.Raise();
  } else {
    entry->OnClick.Raise();
  }
  if (!alive) return;
  if (pstrId == Ids::Paste) RevealSelection(designer);
  const bool writes = pstrId == Ids::AddNotation || designer.Control().Comfort.LettersWriteText;
  if (Inserts(pstrId) && writes) designer.View().EditText();
  if (alive) emit Ran();
  if (alive) Follow();
}

void WindowMenus::Follow() {
  Vantrel& control = mobjParts.Designer.Control();
  MenuItem& menu = control.DesignMenu();
  const bool isDesign = control.UseMode() == vntDesign;
  for (const auto& [command, action] : mcolEntries) {
    const MenuItem* const entry = command->Run ? nullptr : menu.Find(command->Id);
    action->setEnabled(entry ? entry->Enabled && isDesign : !command->IsEnabled || command->IsEnabled(control));
    if (entry) action->setVisible(entry->Visible);
    if (action->isCheckable()) action->setChecked(entry ? entry->Checked : command->IsChecked(control));
  }
}

void WindowMenus::Paint() {
  const QColor ink = mobjParts.Window.palette().color(QPalette::ButtonText);
  for (const auto& [command, action] : mcolEntries) {
    if (*command->Icon != '\0') action->setIcon(ActionIcon(command->Icon, ink));
  }
}

}  // namespace vantrel

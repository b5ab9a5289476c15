#include "app/window/MenuActions.h"

#include <algorithm>

#include "qt/ChartView.h"
#include "qt/Conversions.h"
#include "util/MsgBox.h"

namespace vantrel {

MenuActions::MenuActions(VantrelWidget& pobjWidget, QObject* pobjParent) : QObject(pobjParent), mobjWidget(pobjWidget) {}

QAction* MenuActions::Action(const std::string& pstrCaption, const QString& pstrText, const QKeySequence& pobjShortcut) {
  const auto found =
      std::find_if(mcolEntries.begin(), mcolEntries.end(), [&](const Entry& pobjEntry) { return pobjEntry.Caption == pstrCaption; });
  if (found != mcolEntries.end()) return found->Action;
  auto* const action = new QAction(pstrText.isEmpty() ? ToQString(pstrCaption) : pstrText, this);
  action->setShortcut(pobjShortcut);
  action->setShortcutContext(Qt::WidgetWithChildrenShortcut);
  mobjWidget.addAction(action);
  connect(action, &QAction::triggered, this, [this, pstrCaption] { ShowErrors([&] { Run(pstrCaption); }); });
  mcolEntries.push_back({pstrCaption, action});
  return action;
}

void MenuActions::Run(const std::string& pstrCaption) {
  const MenuItem* const entry = mobjWidget.Control().DesignMenu().Find(pstrCaption);
  if (!entry->Enabled || !entry->Visible) return Follow();
  const QPointer<MenuActions> alive(this);
  if (BeforeRun) BeforeRun(pstrCaption);
  if (!alive) return;
  entry->OnClick.Raise();
  if (alive) emit Ran(pstrCaption);
  if (alive) Follow();
}

void MenuActions::Follow() {
  MenuItem& menu = mobjWidget.Control().DesignMenu();
  const bool isDesign = mobjWidget.Control().UseMode() == vntDesign;
  for (const Entry& entry : mcolEntries) {
    const MenuItem* const item = menu.Find(entry.Caption);
    entry.Action->setEnabled(item->Enabled && isDesign);
    entry.Action->setVisible(item->Visible);
    if (entry.Action->isCheckable()) entry.Action->setChecked(item->Checked);
  }
}

}  // namespace vantrel

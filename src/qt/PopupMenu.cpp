#include "qt/PopupMenu.h"

#include <QMenu>

#include "qt/Conversions.h"
#include "toolkit/Menu.h"

namespace vantrel {

void FillMenu(QMenu& pobjMenu, MenuItem& pobjItem) {
  pobjMenu.setSeparatorsCollapsible(true);
  for (const auto& item : pobjItem.Items) {
    if (!item->Visible) continue;
    const QString caption = ToQString(item->Caption).replace('&', "&&");
    if (item->IsSeparator()) {
      pobjMenu.addSeparator();
    } else if (!item->Items.empty()) {
      QMenu* const menu = pobjMenu.addMenu(caption);
      menu->setEnabled(item->Enabled);
      FillMenu(*menu, *item);
    } else {
      QAction* const action = pobjMenu.addAction(caption);
      action->setEnabled(item->Enabled);
      action->setCheckable(item->Checked);
      action->setChecked(item->Checked);
      action->setData(QVariant::fromValue(static_cast<void*>(item.get())));
    }
  }
}

}  // namespace vantrel

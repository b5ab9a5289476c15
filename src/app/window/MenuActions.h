// The entries of a control's menu as actions of a window.
#pragma once

#include <QAction>
#include <QObject>
#include <QPointer>
#include <functional>
#include <string>
#include <vector>

#include "qt/VantrelWidget.h"

namespace vantrel {

/// Each action runs the command of an entry of the design menu, and is enabled, checked and visible as the entry is.
class MenuActions final : public QObject {
  Q_OBJECT

 public:
  MenuActions(VantrelWidget& pobjWidget, QObject* pobjParent);

  /// Called before an entry runs, with its caption.
  std::function<void(const std::string&)> BeforeRun;

  /// The action of the entry with that caption, which must be there; the same one each time. A shortcut serves while the chart or
  /// what lies in it has the focus.
  QAction* Action(const std::string& pstrCaption, const QString& pstrText = {}, const QKeySequence& pobjShortcut = {});
  /// Takes over what changed in the menu.
  void Follow();

 signals:
  void Ran(const std::string& pstrCaption);

 private:
  void Run(const std::string& pstrCaption);

  VantrelWidget& mobjWidget;
  struct Entry {
    std::string Caption;
    QAction* Action;
  };
  std::vector<Entry> mcolEntries;
};

}  // namespace vantrel

// The status line of the window.
#pragma once

#include <QLabel>
#include <QPointF>
#include <QStatusBar>
#include <QToolButton>

#include "qt/VantrelWidget.h"

namespace vantrel {

/// Mode, numbers of objects, selection, zoom (with a menu) and where the pointer is, in twips.
class StatusLine final : public QStatusBar {
  Q_OBJECT

 public:
  StatusLine(VantrelWidget& pobjWidget, QWidget* pobjParent);

  void Refresh();
  void ShowPointer(const QPointF& pobjTwips);
  void HidePointer() { mobjPointer->clear(); }
  void ShowZoom(double pdblZoom);

 private:
  QLabel* AddLabel(const QString& pstrName, const QString& pstrWidest);
  void BuildZoom();

  VantrelWidget& mobjWidget;
  QLabel* mobjMode;
  QLabel* mobjCounts;
  QLabel* mobjSelection;
  QToolButton* mobjZoom;
  QLabel* mobjPointer;
};

}  // namespace vantrel

#include "app/window/StatusLine.h"

#include <QLocale>
#include <QMenu>
#include <cmath>

#include "qt/ChartView.h"
#include "qt/Conversions.h"

namespace vantrel {

namespace {

QString Counted(std::int64_t plngCount, const char* pstrWhat) {
  return QString("%1 %2%3").arg(QLocale().toString(qlonglong{plngCount}), pstrWhat, plngCount == 1 ? "" : "s");
}

}  // namespace

StatusLine::StatusLine(VantrelWidget& pobjWidget, QWidget* pobjParent)
    : QStatusBar(pobjParent),
      mobjWidget(pobjWidget),
      mobjMode(AddLabel("Mode", {})),
      mobjCounts(AddLabel("Counts", {})),
      mobjSelection(AddLabel("Selection", {})),
      mobjZoom(new QToolButton),
      mobjPointer(AddLabel("Pointer", "000,000 × 000,000")) {
  BuildZoom();
  mobjPointer->setToolTip("Where the pointer is on the chart, in twips: 15 are one pixel at 100 %");
}

QLabel* StatusLine::AddLabel(const QString& pstrName, const QString& pstrWidest) {
  auto* const label = new QLabel;
  label->setObjectName(pstrName);
  label->setAlignment(Qt::AlignCenter);
  label->setContentsMargins(6, 0, 6, 0);
  if (!pstrWidest.isEmpty()) label->setMinimumWidth(label->fontMetrics().horizontalAdvance(pstrWidest) + 12);
  addPermanentWidget(label);
  return label;
}

void StatusLine::BuildZoom() {
  auto* const menu = new QMenu(mobjZoom);
  for (const int percent : {25, 50, 75, 100, 150, 200, 400}) {
    menu->addAction(QString("%1 %").arg(percent), this, [this, percent] { mobjWidget.View().Zoom(percent / 100.0); });
  }
  menu->addSeparator();
  menu->addAction("Fit to window", this, [this] { mobjWidget.View().FitToWindow(); });
  mobjZoom->setObjectName("Zoom");
  mobjZoom->setAutoRaise(true);
  mobjZoom->setPopupMode(QToolButton::InstantPopup);
  mobjZoom->setToolTip("Zoom");
  mobjZoom->setMenu(menu);
  insertPermanentWidget(3, mobjZoom);
}

void StatusLine::Refresh() {
  const Vantrel& control = mobjWidget.Control();
  const auto workflow = control.Workflow();
  mobjMode->setText(control.IsInsertingArc() ? QString("Click where the arc leads; Esc gives up")
                                             : ToQString(Vantrel::UseModeName(control.UseMode())));
  mobjCounts->setText(workflow ? Counted(workflow->Places.Count(), "place") + ", " + Counted(workflow->Transitions.Count(), "transition") +
                                     ", " + Counted(workflow->Arcs.Count(), "arc")
                               : QString());
  const auto selected = control.Selection()->Count();
  mobjSelection->setText(selected > 0 ? QString("%1 selected").arg(QLocale().toString(selected)) : QString());
  mobjSelection->setVisible(selected > 0);
  ShowZoom(mobjWidget.View().Zoom());
}

void StatusLine::ShowPointer(const QPointF& pobjTwips) {
  const QLocale locale;
  mobjPointer->setText(locale.toString(qlonglong{std::lround(pobjTwips.x())}) + " × " +
                       locale.toString(qlonglong{std::lround(pobjTwips.y())}));
}

void StatusLine::ShowZoom(double pdblZoom) { mobjZoom->setText(QString("%1 %").arg(std::lround(pdblZoom * 100))); }

}  // namespace vantrel

#include "qt/ChartView.h"

#include <QPaintEvent>
#include <QPainter>
#include <QResizeEvent>
#include <QScrollBar>
#include <algorithm>
#include <cmath>

#include "qt/Conversions.h"
#include "qt/FramePainter.h"
#include "qt/InPlaceEditor.h"

namespace vantrel {

namespace {

constexpr int kReach = 2;          // device-independent pixels that rounding may move an edge
constexpr int kManyDamages = 200;  // beyond it the whole view is painted again: regions of many rectangles are slow
constexpr int kManyParts = 8;
constexpr double kFitMargin = 20;  // device-independent pixels
constexpr float kContentsMargin = 20 * kTwipsPerPixel;

Qt::CursorShape CursorOf(PointerShape pShape) {
  switch (pShape) {
    case vntPointerCross:
      return Qt::CrossCursor;
    case vntPointerSizeNESW:
      return Qt::SizeBDiagCursor;
    case vntPointerSizeNS:
      return Qt::SizeVerCursor;
    case vntPointerSizeNWSE:
      return Qt::SizeFDiagCursor;
    case vntPointerSizeWE:
      return Qt::SizeHorCursor;
    case vntPointerHourglass:
      return Qt::WaitCursor;
    case vntPointerHand:
      return Qt::PointingHandCursor;  // the system's: it follows the user's settings for size and contrast
    default:
      return Qt::ArrowCursor;
  }
}

}  // namespace

ChartView::ChartView(Vantrel& pobjControl, QWidget* pobjParent)
    : QAbstractScrollArea(pobjParent),
      mobjControl(pobjControl),
      mobjEditor(new InPlaceEditor(pobjControl.FocusFrame, viewport())),
      mobjAutoScroll([this](const QPointF& distance) { DragOn(distance); }),
      mobjHorizontal(pobjControl.HScroll, *horizontalScrollBar(), [this] { OriginChanged(); }),
      mobjVertical(pobjControl.VScroll, *verticalScrollBar(), [this] { OriginChanged(); }) {
  setObjectName("ChartView");
  setAccessibleName("Workflow chart");
  setAccessibleDescription("Places and transitions of the workflow. Tab goes from one to the next.");
  setFocusPolicy(Qt::StrongFocus);
  setAcceptDrops(true);
  setFrameShape(QFrame::NoFrame);
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOn);  // bars that come and go would change what is in view
  setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
  viewport()->setMouseTracking(true);
  viewport()->setAttribute(Qt::WA_OpaquePaintEvent);
  viewport()->grabGesture(Qt::PinchGesture);
  mobjContents = pobjControl.ChartArea.VisibleBounds().value_or(Rect());
  Listen();
  OriginChanged();
}

ChartView::~ChartView() = default;

void ChartView::FinishEditing() { mobjEditor->Commit(); }

void ChartView::Listen() {
  const auto damaged = [this](int reach) { return [this, reach](const Rect& rect) { Damaged(rect, reach); }; };
  mcolSubscriptions.push_back(mobjControl.ChartArea.OnDamaged.Connect(damaged(kReach)));
  mcolSubscriptions.push_back(mobjControl.ChartArea.OnGrown.Connect([this](const Rect& rect) { GrowContents(rect); }));
  mcolSubscriptions.push_back(mobjControl.MultiSelect.OnDamaged.Connect(damaged(kFrameReach)));
  mcolSubscriptions.push_back(mobjControl.FocusFrame.OnDamaged.Connect(damaged(kFrameReach)));
  mcolSubscriptions.push_back(mobjControl.FocusFrame.OnEditing.Connect([this] { mobjEditor->Follow(mobjTransform); }));
}

Rect ChartView::InView() const { return mobjTransform.ToChart(QRectF(viewport()->rect())); }

void ChartView::Damaged(const Rect& pobjRect, int plngReach) {
  if (mlngDamages > kManyDamages || !pobjRect.Touches(InView())) return;
  if (++mlngDamages > kManyDamages) return viewport()->update();
  const QRectF damaged = mobjTransform.ToView(pobjRect).intersected(QRectF(viewport()->rect()).adjusted(-9, -9, 9, 9));
  viewport()->update(damaged.toAlignedRect().adjusted(-plngReach, -plngReach, plngReach, plngReach));
}

// The contents shrink when the zoom or the size changes. Until then users can scroll a little too far.
void ChartView::GrowContents(const Rect& pobjRect) {
  if (mobjContents.Encloses(pobjRect)) return;
  mobjContents = mobjContents.United(pobjRect);
  UpdateRange();
}

void ChartView::UpdateRange() {
  const Rect view = InView();
  mobjHorizontal.Range(mobjContents.Left - kContentsMargin, mobjContents.Right + kContentsMargin, view.Right - view.Left);
  mobjVertical.Range(mobjContents.Top - kContentsMargin, mobjContents.Bottom + kContentsMargin, view.Bottom - view.Top);
}

void ChartView::OriginChanged() {
  mobjTransform.OriginX = mobjControl.HScroll.Value();
  mobjTransform.OriginY = mobjControl.VScroll.Value();
  mobjTransform.Ratio = devicePixelRatioF();
  mobjControl.ChartArea.Watch(mobjTransform.ToChart(QRectF(viewport()->rect()).adjusted(-kReach, -kReach, kReach, kReach)));
  if (mobjControl.FocusFrame.IsEditing()) mobjEditor->Follow(mobjTransform);
  viewport()->update();
}

void ChartView::resizeEvent(QResizeEvent* pobjEvent) {
  QAbstractScrollArea::resizeEvent(pobjEvent);
  mobjControl.Resize(static_cast<float>(width()) * kTwipsPerPixel, static_cast<float>(height()) * kTwipsPerPixel);
  Zoom(Zoom());
}

void ChartView::Zoom(double pdblZoom) { Zoom(pdblZoom, QRectF(viewport()->rect()).center()); }

void ChartView::Zoom(double pdblZoom, const QPointF& pobjAnchor) {
  const double zoom = std::clamp(pdblZoom, kSmallestZoom, kLargestZoom);
  const bool isNew = zoom != Zoom();
  const QPointF kept = mobjTransform.ToChart(pobjAnchor);
  mobjTransform.Zoom = zoom;
  mobjContents = mobjControl.ChartArea.VisibleBounds().value_or(Rect());
  const Rect view = InView();
  mobjControl.ChartArea.Scale(view.Right - view.Left, view.Bottom - view.Top);
  if (isNew) {
    mobjControl.HScroll.Value(static_cast<float>(kept.x() - pobjAnchor.x() / mobjTransform.Scale()));
    mobjControl.VScroll.Value(static_cast<float>(kept.y() - pobjAnchor.y() / mobjTransform.Scale()));
  }
  OriginChanged();
  UpdateRange();
  if (isNew) emit ZoomChanged(zoom);
}

void ChartView::FitToWindow() {
  const auto content = mobjControl.ChartArea.VisibleBounds();
  if (!content) return Zoom(1);
  const QSizeF size = ToPixels(*content).size();
  const double wide = (viewport()->width() - 2 * kFitMargin) / std::max(1.0, size.width());
  const double high = (viewport()->height() - 2 * kFitMargin) / std::max(1.0, size.height());
  Zoom(std::min({1.0, wide, high}));
  const Rect view = InView();
  mobjControl.HScroll.Value((content->Left + content->Right - (view.Right - view.Left)) / 2);
  mobjControl.VScroll.Value((content->Top + content->Bottom - (view.Bottom - view.Top)) / 2);
}

void ChartView::ShowBeginning() {
  mobjContents = mobjControl.ChartArea.VisibleBounds().value_or(Rect());
  mobjControl.HScroll.Value(std::min(0.0F, mobjContents.Left));
  mobjControl.VScroll.Value(std::min(0.0F, mobjContents.Top));
  UpdateRange();
}

void ChartView::Reveal(const Rect& pobjRect) {
  const Rect view = InView();
  const auto shift = [](float low, float high, float from, float to) {
    if (low < from) return low - from;
    return high > to ? std::min(high - to, low - from) : 0.0F;
  };
  const float x = shift(pobjRect.Left - kContentsMargin, pobjRect.Right + kContentsMargin, view.Left, view.Right);
  const float y = shift(pobjRect.Top - kContentsMargin, pobjRect.Bottom + kContentsMargin, view.Top, view.Bottom);
  mobjControl.HScroll.Value(mobjControl.HScroll.Value() + x);
  mobjControl.VScroll.Value(mobjControl.VScroll.Value() + y);
}

void ChartView::ShowPointer(PointerShape pShape) {
  if (!mobjPanFrom && !mblnSpace) viewport()->setCursor(CursorOf(pShape));
}

void ChartView::paintEvent(QPaintEvent* pobjEvent) {
  mlngDamages = 0;
  if (mobjTransform.Ratio != devicePixelRatioF()) OriginChanged();
  const QRegion& region = pobjEvent->region();
  if (region.rectCount() > kManyParts) return PaintPart(region.boundingRect());
  for (const QRect& part : region) PaintPart(part);
}

void ChartView::PaintPart(const QRect& pobjPart) {
  QPainter painter(viewport());
  painter.setClipRect(pobjPart);
  painter.fillRect(pobjPart, ToQColor(mobjControl.ChartArea.BackColor()));
  painter.save();
  painter.translate(mobjTransform.Shift());
  const QRectF reached = QRectF(pobjPart).adjusted(-kReach, -kReach, kReach, kReach);
  mobjPainter.Paint(painter, mobjControl.ChartArea, mobjTransform.ToChart(reached), Zoom());
  painter.restore();
  PaintSelection(painter, mobjControl.MultiSelect, mobjTransform);
  PaintFocusFrame(painter, mobjControl.FocusFrame, mobjTransform);
}

}  // namespace vantrel

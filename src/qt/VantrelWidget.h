// The designer control as a widget.
#pragma once

#include <QString>
#include <QWidget>
#include <memory>
#include <vector>

#include "designer/Vantrel.h"
#include "qt/QtToolkit.h"

namespace vantrel {

class ChartView;

/// A designer for a host's windows: owns a control, its toolkit and its view. Passes the control's events on as signals of the same
/// names. To delete it from a slot of its own signals, use deleteLater.
class VantrelWidget final : public QWidget {
  Q_OBJECT

 public:
  explicit VantrelWidget(QWidget* pobjParent = nullptr);
  ~VantrelWidget() override;

  Vantrel& Control() { return mobjControl; }
  const Vantrel& Control() const { return mobjControl; }
  ChartView& View() { return *mobjView; }
  QSize sizeHint() const override { return {800, 600}; }

 signals:
  void RunCommand(const QString& pstrCommandString, const std::shared_ptr<vantrel::Transition>& pobjTransition);
  void ObjectDragDrop(const std::shared_ptr<vantrel::Object>& pobjDragObject, int pintButton, int pintShift, float psngX, float psngY);
  void TransitionDblClick(const std::shared_ptr<vantrel::Transition>& pobjTransition);
  void TokenAdded(const std::shared_ptr<vantrel::Place>& pobjPlace, const std::shared_ptr<vantrel::Token>& pobjToken);
  void ObjectDropped(const std::shared_ptr<vantrel::Object>& pobjTarget, const std::shared_ptr<vantrel::Object>& pobjSource);
  void ContentsClick(const std::shared_ptr<vantrel::Transition>& pobjTransition, const QString& pstrNodeKey);
  void Selected(vantrel::ModelObject& pobjObject);
  void RightClick(vantrel::ModelObject& pobjObject);
  void Pasted(const std::shared_ptr<vantrel::ObjectCollection>& pcolObjects);
  void ArcInserted(const std::shared_ptr<vantrel::Arc>& pobjArc);
  void UseModeChange(vantrel::UseModeConstant pUseMode);
  void DirtyChange(bool pblnDirty);

 private:
  void ConnectEvents();

  QtToolkit mobjToolkit;
  Vantrel mobjControl;
  std::vector<Subscription> mcolSubscriptions;
  std::unique_ptr<ChartView> mobjView;
};

}  // namespace vantrel

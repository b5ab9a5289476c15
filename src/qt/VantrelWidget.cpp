#include "qt/VantrelWidget.h"

#include <QVBoxLayout>

#include "qt/ChartView.h"
#include "qt/Conversions.h"
#include "qt/QtTextMeasure.h"

namespace vantrel {

VantrelWidget::VantrelWidget(QWidget* pobjParent) : QWidget(pobjParent), mobjToolkit(this), mobjControl(mobjToolkit) {
  mobjControl.ChartArea.Measure(std::make_shared<QtTextMeasure>());
  mobjView = std::make_unique<ChartView>(mobjControl, this);
  mobjToolkit.OnPointer = [this](PointerShape shape) { mobjView->ShowPointer(shape); };
  auto* const layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->addWidget(mobjView.get());
  setFocusProxy(mobjView.get());
  ConnectEvents();
}

VantrelWidget::~VantrelWidget() { mobjToolkit.OnPointer = nullptr; }

void VantrelWidget::ConnectEvents() {
  const auto keep = [this](Subscription subscription) { mcolSubscriptions.push_back(std::move(subscription)); };
  keep(mobjControl.OnRunCommand.Connect(
      [this](const std::string& command, const auto& transition) { emit RunCommand(ToQString(command), transition); }));
  keep(mobjControl.OnObjectDragDrop.Connect([this](const auto& object, std::int16_t button, std::int16_t shift, float x, float y) {
    emit ObjectDragDrop(object, button, shift, x, y);
  }));
  keep(mobjControl.OnTransitionDblClick.Connect([this](const auto& transition) { emit TransitionDblClick(transition); }));
  keep(mobjControl.OnTokenAdded.Connect([this](const auto& place, const auto& token) { emit TokenAdded(place, token); }));
  keep(mobjControl.OnObjectDropped.Connect([this](const auto& target, const auto& source) { emit ObjectDropped(target, source); }));
  keep(mobjControl.OnContentsClick.Connect(
      [this](const auto& transition, const std::string& key) { emit ContentsClick(transition, ToQString(key)); }));
  keep(mobjControl.OnSelected.Connect([this](ModelObject& object) { emit Selected(object); }));
  keep(mobjControl.OnRightClick.Connect([this](ModelObject& object) { emit RightClick(object); }));
  keep(mobjControl.OnPasted.Connect([this](const auto& objects) { emit Pasted(objects); }));
  keep(mobjControl.OnArcInserted.Connect([this](const auto& arc) { emit ArcInserted(arc); }));
  keep(mobjControl.OnUseModeChange.Connect([this](UseModeConstant mode) { emit UseModeChange(mode); }));
  keep(mobjControl.OnDirtyChange.Connect([this](bool dirty) { emit DirtyChange(dirty); }));
}

}  // namespace vantrel

#pragma once

#include <memory>
#include <vector>

#include <gtest/gtest.h>

#include "designer/DesignerTest.h"

namespace vantrel::test {

/// A control that shows the default workflow, and a hand on its mouse.
class GestureTest : public DesignerTest {
 protected:
  GestureTest() {
    Control->Resize(15000, 9000);
    Net = Control->NewWorkflow();
  }

  Place& Start() const { return *Net->Places.Item("Place1"); }
  Place& End() const { return *Net->Places.Item("Place2"); }
  Transition& Begin() const { return *Net->Transitions.Item("Transition1"); }
  const std::shared_ptr<Arc>& FirstArc() const { return Net->Arcs.First(); }
  Line& LineOf(const Arc& pobjArc) const { return *pobjArc.Segments().front()->LineControl; }

  void Press(float x, float y, MouseButton button = vntLeftButton, std::int16_t shift = vntNoShift) {
    Control->Input.Press({x, y, button, shift});
  }
  void Move(float x, float y, MouseButton held = vntLeftButton) { Control->Input.Move({x, y, held, vntNoShift}); }
  void Release(float x, float y, MouseButton button = vntLeftButton) { Control->Input.Release({x, y, button, vntNoShift}); }
  void DoubleClick(float x, float y) { Control->Input.DoubleClick({x, y, vntLeftButton, vntNoShift}); }
  void Click(float x, float y, MouseButton button = vntLeftButton, std::int16_t shift = vntNoShift) {
    Press(x, y, button, shift);
    if (Control) Release(x, y, button);
  }
  void Click(const Element& element, MouseButton button = vntLeftButton, std::int16_t shift = vntNoShift) {
    Click(MiddleX(element), MiddleY(element), button, shift);
  }
  void Drag(float fromX, float fromY, float toX, float toY) {
    Press(fromX, fromY);
    Move((fromX + toX) / 2, (fromY + toY) / 2);
    Move(toX, toY);
    Release(toX, toY);
  }
  void DragBy(const Element& element, float x, float y) {
    const float fromX = MiddleX(element), fromY = MiddleY(element);
    Drag(fromX, fromY, fromX + x, fromY + y);
  }
  static float MiddleX(const Element& element) { return (element.Bounds().Left + element.Bounds().Right) / 2; }
  static float MiddleY(const Element& element) { return (element.Bounds().Top + element.Bounds().Bottom) / 2; }

  /// Bends the first arc in its middle, selects it and gives the bend point.
  std::shared_ptr<Elbow> Bend() {
    Click(LineOf(*FirstArc()));
    Control->InsertElbow();
    return Net->Elbows.First();
  }
  /// As if with the rubber band.
  void Select(const std::vector<std::shared_ptr<ModelObject>>& objects) {
    DesignerTest::Select(objects);
    Control->MultiSelectOn = true;
  }

  std::shared_ptr<Workflow> Net;
};

}  // namespace vantrel::test

#pragma once

#include <memory>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "designer/Commands.h"
#include "designer/Invariants.h"
#include "designer/Vantrel.h"
#include "model/DesignerState.h"
#include "toolkit/HeadlessToolkit.h"
#include "util/Lookup.h"
#include "util/MsgBox.h"

namespace vantrel::test {

/// A control without a window whose message boxes are recorded. Every test ends with the invariants.
class DesignerTest : public ::testing::Test {
 protected:
  DesignerTest() : Control(std::make_unique<Vantrel>(Tools)) {}
  ~DesignerTest() override { Control.reset(); }
  void TearDown() override {
    if (Control) {
      EXPECT_EQ(Invariants(*Control).Faults(), "");
    }
  }

  const Workflow& Net() const { return *Control->Workflow(); }
  std::shared_ptr<Place> PlaceAt(float psngX, float psngY, const std::string& pstrCaption = {}) {
    Control->CurrentX = psngX;
    Control->CurrentY = psngY;
    return Control->InsertPlace(pstrCaption);
  }
  std::shared_ptr<Transition> TransitionAt(float psngX, float psngY) {
    Control->CurrentX = psngX;
    Control->CurrentY = psngY;
    return Control->InsertTransition();
  }
  /// Splits the arc's first segment and moves the bend point by so much.
  std::shared_ptr<Elbow> Bend(Arc& pobjArc, float psngX, float psngY) {
    Control->CurrentControl(pobjArc.Segments().front()->LineControl.get());
    Control->InsertElbow();
    const auto elbow = Net().Elbows.Last();
    elbow->Left(elbow->Left() + psngX);
    elbow->Top(elbow->Top() + psngY);
    return elbow;
  }
  void Select(const std::vector<std::shared_ptr<ModelObject>>& pcolObjects) {
    const auto selection = std::make_shared<ObjectCollection>();
    for (const auto& object : pcolObjects) selection->Add(object, KeyOf(*object));
    Control->Selection(nullptr);
    Control->Selection(selection);
  }
  static std::string KeysOf(const ObjectCollection& pcolObjects) {
    std::string keys;
    for (const auto& object : pcolObjects) keys += KeyOf(*object) + " ";
    return keys;
  }

  HeadlessToolkit Tools;
  std::vector<std::string> Messages;
  std::unique_ptr<Vantrel> Control;

 private:
  const MsgBoxScope mBoxes{[this](const std::string& text, MsgBoxButtons, const std::string&) {
    Messages.push_back(text);
    return vntOK;
  }};
};

}  // namespace vantrel::test

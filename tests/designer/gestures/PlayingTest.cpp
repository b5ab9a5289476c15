#include "designer/Dialogs.h"
#include "designer/gestures/GestureTest.h"

namespace vantrel::test {
namespace {

struct TokenDialog : Dialogs {
  std::vector<Place*> Shown;
  std::vector<Transition*> Roles;
  void ShowTokens(Vantrel&, Place& pobjPlace) override { Shown.push_back(&pobjPlace); }
  void LoadRolesImage(Vantrel&, Transition& pobjTransition) override { Roles.push_back(&pobjTransition); }
};

class Playing : public GestureTest {
 protected:
  Playing() { Control->Dialogs = Dialog; }
  void PutToken() { Start().AddToken(Net->CreateToken(&Start())); }
  std::shared_ptr<TokenDialog> Dialog = std::make_shared<TokenDialog>();
};

TEST_F(Playing, TheHandShowsWhatAClickWorksOn) {
  Control->InsertArc(Net->Transitions.First(), Net->Places.Item("Place2"));
  Net->KeepHistory = true;
  const auto pointerOver = [&](const Element& element) {
    Move(MiddleX(element), MiddleY(element), vntNoButton);
    return Tools.CurrentPointer();
  };
  PutToken();
  EXPECT_EQ(pointerOver(*Begin().Image), vntPointerDefault) << "designing";
  for (const auto mode : {vntTest, vntStepTest}) {
    Control->UseMode(mode);
    EXPECT_EQ(pointerOver(*Begin().Image), vntPointerHand);
    EXPECT_EQ(pointerOver(*Start().Image), vntPointerHand);
    EXPECT_EQ(pointerOver(*End().Image), vntPointerDefault);
    EXPECT_EQ(pointerOver(*Begin().CaptionLabel), vntPointerDefault);
  }
  Control->UseMode(vntTest);
  Click(*Begin().Image);
  EXPECT_TRUE(Start().Tokens().IsEmpty());
  EXPECT_EQ(End().Tokens().Count(), 1);
  EXPECT_EQ(pointerOver(*Begin().Image), vntPointerDefault);
  Click(*Begin().Image);
  EXPECT_EQ(End().Tokens().Count(), 1) << "not enabled any more";
}

TEST_F(Playing, AClickOnAPlaceOrALabelMakesTheObjectTheCurrentOne) {
  Control->UseMode(vntTest);
  Click(*Start().Image);
  EXPECT_EQ(Control->CurrentObject().get(), &Start());
  EXPECT_EQ(Control->CurrentControl().get(), Start().Image.get());
  Click(*Begin().CaptionLabel);
  EXPECT_EQ(Control->CurrentObject().get(), &Begin());
  EXPECT_EQ(Control->CurrentControl().get(), Begin().Image.get());
  Net->ShowWeights = true;
  FirstArc()->Draw();
  Click(*FirstArc()->WeightLabel);
  EXPECT_EQ(Control->CurrentObject(), FirstArc());
  EXPECT_EQ(Control->CurrentControl().get(), &LineOf(*FirstArc()));
}

TEST_F(Playing, DoubleClicksOpenWhatTheModeHas) {
  std::vector<Transition*> opened;
  const auto listening =
      Control->OnTransitionDblClick.Connect([&](const std::shared_ptr<Transition>& transition) { opened.push_back(transition.get()); });
  const auto doubleClickAll = [&] {
    for (const Element* element : std::initializer_list<Element*>{Begin().Image.get(), Start().Image.get(), Begin().CaptionLabel.get(),
                                                                  Start().CaptionLabel.get()}) {
      DoubleClick(MiddleX(*element), MiddleY(*element));
    }
  };
  doubleClickAll();
  EXPECT_EQ(opened.size(), 1U);
  EXPECT_TRUE(Dialog->Shown.empty());
  Control->UseMode(vntTest);
  doubleClickAll();
  EXPECT_EQ(opened.size(), 3U) << "image and label";
  EXPECT_EQ(Dialog->Shown, (std::vector<Place*>{&Start(), &Start()}));
  EXPECT_FALSE(Control->FocusFrame.IsEditing());
}

TEST_F(Playing, TheHostsDragIsLetGoOverTheBackgroundOrATransition) {
  const auto source = std::make_shared<Workflow>();
  std::vector<float> at;
  std::vector<Object*> dropped;
  const auto background = Control->OnObjectDragDrop.Connect(
      [&](const std::shared_ptr<Object>& object, std::int16_t button, std::int16_t shift, float x, float y) {
        EXPECT_EQ(object, source);
        at = {static_cast<float>(button), static_cast<float>(shift), x, y};
      });
  const auto image = Control->OnObjectDropped.Connect([&](const std::shared_ptr<Object>& target, const std::shared_ptr<Object>& object) {
    EXPECT_EQ(object, source);
    dropped.push_back(target.get());
  });
  const auto dropOn = [&](float x, float y) { return Control->Input.Drop({x, y, vntLeftButton, vntCtrl}); };
  EXPECT_FALSE(dropOn(9000, 7000)) << "nothing is dragged";
  Control->DragObject = source;
  Click(*Start().Image);
  EXPECT_TRUE(dropOn(9000, 7000));
  EXPECT_EQ(at, (std::vector<float>{vntLeftButton, vntCtrl, 9000, 7000}));
  EXPECT_TRUE(Control->Selection()->IsEmpty());
  EXPECT_FALSE(dropOn(MiddleX(*Begin().Image), MiddleY(*Begin().Image))) << "images take nothing yet";
  Control->ContentsEnabled(true);
  EXPECT_FALSE(dropOn(MiddleX(*Begin().Image), MiddleY(*Begin().Image))) << "nor do those that were made before";
  Control->Workflow(nullptr);
  Control->Workflow(Net);
  Control->ContentsEnabled(false);
  EXPECT_TRUE(dropOn(MiddleX(*Begin().Image), MiddleY(*Begin().Image)));
  EXPECT_FALSE(dropOn(MiddleX(*Start().Image), MiddleY(*Start().Image)));
  EXPECT_EQ(dropped, std::vector<Object*>{&Begin()});
  EXPECT_EQ(Dialog->Roles, std::vector<Transition*>{&Begin()});
}

}  // namespace
}  // namespace vantrel::test

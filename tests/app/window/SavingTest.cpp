#include <filesystem>

#include <gmock/gmock.h>

#include "app/window/WindowTest.h"
#include "interchange/PnmlExport.h"

namespace vantrel {

namespace {

using testing::HasSubstr;

class SavingTest : public WindowTest {
 protected:
  std::vector<std::int32_t> StoredIds() const {
    std::vector<std::int32_t> ids;
    for (const auto& stored : Store().List()) ids.push_back(stored.Id);
    return ids;
  }
};

TEST_F(SavingTest, WhatWasDrawnIsThereAfterTheProgramWasClosed) {
  Files().New();
  EXPECT_FALSE(mobjWindow->isWindowModified());
  Action(CommandIds::InsertPlace)->trigger();
  EXPECT_TRUE(mobjWindow->isWindowModified());
  const auto drawn = Control().Workflow()->Places.Item(3);
  const float left = drawn->Left(), top = drawn->Top();
  Action(CommandIds::Save)->trigger();
  EXPECT_FALSE(mobjWindow->isWindowModified());
  EXPECT_EQ(mobjWindow->windowTitle(), "Workflow 1[*]");

  Reopen();
  EXPECT_EQ(mobjWindow->LastOpened(), 1);
  ASSERT_TRUE(Files().Open(1));
  const auto& places = Control().Workflow()->Places;
  ASSERT_EQ(places.Count(), 3);
  EXPECT_EQ(places.Item(3)->Name(), drawn->Name());
  EXPECT_EQ(places.Item(3)->Left(), left);
  EXPECT_EQ(places.Item(3)->Top(), top);
  EXPECT_EQ(Control().Workflow()->StartPlace->Name(), "StartPlace");
  EXPECT_FALSE(Control().Dirty());
}

TEST_F(SavingTest, TheChartKeepsItsColourInTheDatabaseAndInFiles) {
  constexpr Color kSand = 0x96C8E6;
  Files().New();
  Control().BackColor(kSand);
  ASSERT_TRUE(Files().Save());
  EXPECT_FALSE(mobjWindow->isWindowModified());
  Files().New();
  EXPECT_EQ(Control().BackColor(), kWhite);

  Reopen();
  ASSERT_TRUE(Files().Open(1));
  EXPECT_EQ(Control().BackColor(), kSand);
  EXPECT_EQ(Control().ChartArea.BackColor(), kSand);
  EXPECT_FALSE(mobjWindow->isWindowModified());

  ExportPnml(*Store().Read(1), File("net.pnml"));
  Files().New();
  ASSERT_TRUE(Files().Import(QString::fromStdString(File("net.pnml"))));
  EXPECT_EQ(Control().BackColor(), kSand);
  Control().BackColor(kWhite);
  ASSERT_TRUE(Files().Save());
  ASSERT_TRUE(Files().Open(2));
  EXPECT_EQ(Control().BackColor(), kWhite);
}

TEST_F(SavingTest, AFailedSaveSaysSoAndKeepsTheChartDirty) {
  Files().New();
  ASSERT_TRUE(Files().Save());
  Action(CommandIds::InsertTransition)->trigger();
  std::filesystem::remove(File("test.db"));
  for (const char* command : {"save", "save-as-new"}) {
    AnswerNext(QMessageBox::Ok);
    Action(command)->trigger();
    EXPECT_THAT(mstrAsked, HasSubstr("Cannot save workflow 1.")) << command;
    EXPECT_THAT(mstrAsked, HasSubstr("test.db")) << command;
    EXPECT_TRUE(mobjWindow->isWindowModified()) << command;
    EXPECT_EQ(Control().Workflow()->RecId, 1) << command;
    EXPECT_NE(Control().Workflow()->Places.Item(1)->RecId(), 0) << command;
  }
}

TEST_F(SavingTest, SavingAsNewLeavesWhatWasStored) {
  Files().New();
  ASSERT_TRUE(Files().Save());
  Action(CommandIds::InsertPlace)->trigger();
  Action("save-as-new")->trigger();
  EXPECT_EQ(StoredIds(), (std::vector<std::int32_t>{1, 2}));
  EXPECT_EQ(Store().Read(1)->Places.Count(), 2);
  EXPECT_EQ(Store().Read(2)->Places.Count(), 3);
  EXPECT_EQ(Files().ShownId(), 2);
}

TEST_F(SavingTest, AWorkflowThatSomebodyDeletedIsSavedAnew) {
  Files().New();
  ASSERT_TRUE(Files().Save());
  Action(CommandIds::InsertPlace)->trigger();
  ASSERT_TRUE(Files().SaveAsNew());  // takes the id that would be free again
  ASSERT_TRUE(Files().Open(1));
  Store().Delete(1);
  Control().InsertPlace("Late");
  ASSERT_TRUE(Files().Save());
  EXPECT_EQ(Files().ShownId(), 3);
  EXPECT_EQ(Store().Read(3)->Places.Count(), 3);
  EXPECT_EQ(Store().Read(2)->Places.Count(), 3);
}

TEST_F(SavingTest, ATextThatIsBeingWrittenIsSaved) {
  Files().New();
  const auto start = Control().Workflow()->StartPlace;
  Control().CurrentControl(start->CaptionLabel.get());
  Control().FocusFrame.Edit();
  auto* const box = Part<QLineEdit>("TextBox");
  ASSERT_TRUE(box->isVisible());
  box->setText("Inbox");
  ASSERT_TRUE(Files().Save());
  EXPECT_EQ(Store().Read(1)->StartPlace->Caption(), "Inbox");
}

TEST_F(SavingTest, ClosingAsksForUnsavedChanges) {
  Files().New();
  EXPECT_TRUE(mobjWindow->close());

  Reopen();
  Files().New();
  Control().InsertPlace();
  AnswerNext(QMessageBox::Cancel);
  EXPECT_FALSE(mobjWindow->close());
  EXPECT_THAT(mstrAsked, HasSubstr("Save the changes to new workflow?"));
  AnswerNext(QMessageBox::Save);
  EXPECT_TRUE(mobjWindow->close());
  EXPECT_EQ(Store().Read(1)->Places.Count(), 3);

  Reopen();
  ASSERT_TRUE(Files().Open(1));
  Control().InsertPlace();
  AnswerNext(QMessageBox::Discard);
  EXPECT_TRUE(mobjWindow->close());
  EXPECT_EQ(Store().Read(1)->Places.Count(), 3);
}

TEST_F(SavingTest, NothingReplacesUnsavedChangesUnasked) {
  Files().New();
  ASSERT_TRUE(Files().Save());
  Control().InsertPlace();
  const auto shown = Control().Workflow();
  const std::vector<std::function<void()>> ways = {[&] { Files().New(); }, [&] { Files().Open(1); }, [&] { Files().Import("net.pnml"); },
                                                   [&] { Control().DesignMenu().Find(CommandIds::New)->OnClick.Raise(); }};
  for (const auto& way : ways) {
    AnswerNext(QMessageBox::Cancel);
    way();
    EXPECT_EQ(Control().Workflow(), shown);
    EXPECT_TRUE(Control().Dirty());
  }
}

TEST_F(SavingTest, DeletingTheShownWorkflowBeginsANewOne) {
  Files().New();
  ASSERT_TRUE(Files().Save());
  AnswerNext(QMessageBox::Cancel);
  EXPECT_FALSE(Files().Delete(1));
  EXPECT_EQ(StoredIds().size(), 1U);
  AnswerNext(QMessageBox::Yes);
  EXPECT_TRUE(Files().Delete(1));
  EXPECT_TRUE(StoredIds().empty());
  EXPECT_EQ(Files().ShownId(), 0);
}

TEST_F(SavingTest, WhatIsQueuedWhileAQuestionIsOpenDoesNotAskAgain) {
  Files().New();
  ASSERT_TRUE(Files().Save());
  Control().InsertPlace();
  bool isOpened = true;
  QTimer::singleShot(0, qApp, [&] {
    isOpened = Files().Open(1) || Files().New();
    AnswerNext(QMessageBox::Cancel);
  });
  EXPECT_FALSE(mobjWindow->close());
  EXPECT_FALSE(isOpened);
  EXPECT_TRUE(Control().Dirty());
}

TEST_F(SavingTest, AWindowClosedUnderAnOpenBoxEndsQuietly) {
  Files().New();
  Control().InsertPlace();
  QTimer::singleShot(0, qApp, [this] { mobjWindow.reset(); });
  EXPECT_FALSE(Files().MayLeave());
}

}  // namespace

}  // namespace vantrel

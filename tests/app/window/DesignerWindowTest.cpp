#include <QDockWidget>
#include <QDropEvent>
#include <QLabel>
#include <QMimeData>
#include <QPlainTextEdit>
#include <QStatusBar>
#include <QToolBar>
#include <QUrl>
#include <algorithm>
#include <fstream>
#include <functional>

#include <gmock/gmock.h>

#include "app/SampleNet.h"
#include "app/window/WindowTest.h"
#include "qt/ChartView.h"
#include "qt/Conversions.h"
#include "qt/WindowEvents.h"

namespace vantrel {

namespace {

using testing::HasSubstr;

class DesignerWindowTest : public WindowTest {
 protected:
  void Settle() { QApplication::processEvents(); }
  void Drop(const QList<QUrl>& pcolUrls) {
    QMimeData data;
    data.setUrls(pcolUrls);
    QDragEnterEvent enter({5, 5}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);  // makes the viewport the target
    QApplication::sendEvent(&Viewport(), &enter);
    QDropEvent drop({5, 5}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&Viewport(), &drop);
    Settle();
  }
  QWidget& Viewport() { return *mobjWindow->Designer().View().viewport(); }
  QPointF CentreOf(const Element& pobjElement) { return mobjWindow->Designer().View().Transform().ToView(pobjElement.Bounds()).center(); }
};

TEST_F(DesignerWindowTest, ActionsAreEnabledAsTheEntriesOfThePopup) {
  const auto differing = [this] {
    std::vector<std::string> ids;
    for (const ControlCommand& command : AllCommands()) {
      const auto* entry = Control().DesignMenu().Find(command.Id);
      if (entry && entry->Visible && entry->Enabled != Action(command.Id)->isEnabled()) ids.emplace_back(command.Id);
    }
    return ids;
  };
  Files().New();
  Settle();
  EXPECT_FALSE(Action(CommandIds::Copy)->isEnabled());
  Click(Viewport(), CentreOf(*Control().Workflow()->StartPlace->Image));
  Settle();
  EXPECT_TRUE(Action(CommandIds::Copy)->isEnabled());
  EXPECT_TRUE(Action(CommandIds::InsertArc)->isEnabled());
  EXPECT_THAT(differing(), testing::IsEmpty());

  Action(CommandIds::Copy)->trigger();
  EXPECT_TRUE(Action(CommandIds::Paste)->isEnabled());
  Action(CommandIds::LockControls)->trigger();
  EXPECT_TRUE(Control().LockControls());
  EXPECT_TRUE(Action(CommandIds::LockControls)->isChecked());
  EXPECT_FALSE(Action(CommandIds::InsertPlace)->isEnabled());
  EXPECT_THAT(differing(), testing::IsEmpty());
}

TEST_F(DesignerWindowTest, InsertedObjectsLieInViewAndNotOnEachOther) {
  Files().New();
  Control().CurrentX = 100000;
  for (int i = 0; i < 3; ++i) Action(CommandIds::InsertPlace)->trigger();
  const auto& places = Control().Workflow()->Places;
  const Rect view = mobjWindow->Designer().View().InView();
  for (std::int32_t i = 3; i <= 5; ++i) {
    const Rect area = places.Item(i)->Image->Bounds();
    EXPECT_EQ(area.United(view), view) << i;
    EXPECT_NE(places.Item(i)->Left(), places.Item(i - 1)->Left()) << i;
  }
  EXPECT_EQ(Control().CurrentControl()->Tag(), "Place5");
  EXPECT_EQ(Control().Selection()->Count(), 1) << "the earlier ones would be deleted along with it";
}

TEST_F(DesignerWindowTest, ANewNoteIsWrittenAtOnce) {
  Files().New();
  Action(CommandIds::AddNotation)->trigger();
  auto* const box = Part<QPlainTextEdit>("LinesBox");
  ASSERT_TRUE(box->isVisible());
  box->setPlainText("Mind the gap");
  PressKey(*box, Qt::Key_Return);
  EXPECT_EQ(Control().Workflow()->Notations.Item(1)->Caption, "Mind the gap");
}

TEST_F(DesignerWindowTest, LettersAfterTheFirstGoIntoTheNewObjectsText) {
  for (const bool isOn : {false, true}) {
    Control().Comfort.LettersWriteText = isOn;
    Files().New();
    Action(CommandIds::InsertPlace)->trigger();
    auto* const box = Part<QLineEdit>("TextBox");
    ASSERT_EQ(box->isVisible(), isOn);
    Control().Dirty(false);  // nobody is to be asked
    if (!isOn) continue;
    for (const auto& [key, text] : {std::pair{Qt::Key_P, "p"}, {Qt::Key_A, "a"}, {Qt::Key_T, "t"}}) {
      QKeyEvent override(QEvent::ShortcutOverride, key, Qt::NoModifier, text);
      QApplication::sendEvent(box, &override);
      EXPECT_TRUE(override.isAccepted()) << text << " is no shortcut while a text is written";
      PressKey(*box, key, Qt::NoModifier, text);
    }
    PressKey(*box, Qt::Key_Return);
    EXPECT_EQ(Control().Workflow()->Places.Last()->Caption(), "pat");
    EXPECT_EQ(Control().Workflow()->Places.Count(), 3);
  }
}

TEST_F(DesignerWindowTest, CopiesLieInViewBesideTheirOriginals) {
  Files().New();
  const auto start = Control().Workflow()->StartPlace.Lock();
  Control().CurrentControl(start->Image.get());
  Settle();
  Action(CommandIds::Copy)->trigger();
  Action(CommandIds::Paste)->trigger();
  const auto& copy = Control().Workflow()->Places.Last();
  EXPECT_NE(copy, start);
  EXPECT_EQ(copy->Left(), start->Left() + 300);
  EXPECT_EQ(Control().Workflow()->Places.Count(), 3);
  Control().HScroll.Value(100000);
  Action(CommandIds::Paste)->trigger();
  const Rect view = mobjWindow->Designer().View().InView();
  EXPECT_EQ(view.United(Control().Workflow()->Places.Last()->Image->Bounds()), view) << "brought into view";
}

TEST_F(DesignerWindowTest, TheToolBarOffersWhatThePopupOffers) {
  const auto offered = mobjWindow->findChild<QToolBar*>()->actions();
  std::vector<std::string> missing;
  const std::function<void(MenuItem&)> look = [&](MenuItem& menu) {
    for (const auto& item : menu.Items) {
      if (!item->Items.empty()) look(*item);
      if (!item->Visible || item->IsSeparator() || !item->Items.empty()) continue;
      const bool isThere =
          std::any_of(offered.begin(), offered.end(), [&](const QAction* action) { return action->objectName() == ToQString(item->Id); });
      if (!isThere) missing.push_back(item->Caption);
    }
  };
  look(Control().DesignMenu());
  EXPECT_THAT(missing, testing::IsEmpty());
}

TEST_F(DesignerWindowTest, AnArcIsDrawnByAKeyAndAClick) {
  Files().New();
  auto& workflow = *Control().Workflow();
  Click(Viewport(), CentreOf(*workflow.Transitions.Item(1)->Image));
  Settle();
  Action(CommandIds::InsertArc)->trigger();
  Settle();
  EXPECT_THAT(Part<QLabel>("Mode")->text().toStdString(), HasSubstr("Click where the arc leads"));
  Click(Viewport(), CentreOf(*workflow.EndPlace()->Image));
  Settle();
  EXPECT_EQ(workflow.Arcs.Count(), 2);
  EXPECT_EQ(Part<QLabel>("Mode")->text(), "Design");
  EXPECT_EQ(Part<QLabel>("Counts")->text(), "2 places, 1 transition, 2 arcs");
}

TEST_F(DesignerWindowTest, TheListFiltersAndOpensByKeyboard) {
  Files().New();
  Control().Workflow()->StartPlace->Name("Inbox");
  ASSERT_TRUE(Files().Save());
  Files().New();
  Control().Workflow()->StartPlace->Name("Warehouse");
  ASSERT_TRUE(Files().Save());
  auto* const filter = Part<QLineEdit>("Filter");
  auto* const list = Part<QTreeView>("Stored");
  EXPECT_EQ(list->model()->rowCount(), 2);
  filter->setText("inb");
  ASSERT_EQ(list->model()->rowCount(), 1);
  PressKey(*filter, Qt::Key_Return);
  EXPECT_EQ(Files().ShownId(), 1);
}

TEST_F(DesignerWindowTest, AFileIsImportedAndDroppedFilesAreToo) {
  const std::string file = File("order.pnml");
  std::ofstream(file) << SampleNet();
  Files().New();
  Drop({QUrl("https://example.org/net.pnml")});
  EXPECT_THAT(mobjWindow->statusBar()->currentMessage().toStdString(), HasSubstr("Only files"));
  Drop({QUrl::fromLocalFile(ToQString(file))});
  EXPECT_EQ(mobjWindow->windowTitle(), "order.pnml[*]");
  EXPECT_EQ(Control().Workflow()->Transitions.Count(), 9);
  Control().DesignMenu().Find(CommandIds::New)->OnClick.Raise();
  EXPECT_EQ(mobjWindow->windowTitle(), "New workflow[*]") << "the file has nothing to do with it";
  ASSERT_TRUE(Files().Import(ToQString(file)));

  AnswerNext(QMessageBox::Ok);
  EXPECT_FALSE(Files().Import(ToQString(File("missing.pnml"))));
  EXPECT_THAT(mstrAsked, HasSubstr("missing.pnml"));
  EXPECT_EQ(Control().Workflow()->Transitions.Count(), 9);
}

TEST_F(DesignerWindowTest, ADatabaseThatIsAwayIsToldWhereItsListWouldBe) {
  std::filesystem::rename(File("test.db"), File("away.db"));
  auto* const list = mobjWindow->findChild<StoredList*>();
  emit list->RefreshRequested();
  EXPECT_THAT(Part<QTreeView>("Stored")->model()->index(0, 1).data().toString().toStdString(), HasSubstr("no such database"));
  EXPECT_EQ(list->Chosen(), std::nullopt);
}

TEST_F(DesignerWindowTest, RemembersWhatItLookedLike) {
  Part<QDockWidget>("StoredDock")->hide();
  mobjWindow->resize(777, 555);
  mobjWindow->close();
  Reopen();
  EXPECT_FALSE(Part<QDockWidget>("StoredDock")->isVisible());
  EXPECT_EQ(mobjWindow->width(), 777);
}

}  // namespace

}  // namespace vantrel

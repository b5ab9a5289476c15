#include <algorithm>
#include <random>
#include <vector>

#include <gtest/gtest.h>

#include "chart/ChartSurface.h"

namespace vantrel {

namespace {

/// Moves elements at random and compares the answers of the surface with those of a loop over all elements.
class RandomChart {
 public:
  RandomChart() {
    for (int i = 0; i < 120; ++i) {
      mImages.push_back(mSurface.ctlImage.New());
      mLines.push_back(mSurface.ctlLine.New());
    }
  }

  void ChangeOne() {
    if (Below(2) == 0) {
      Image& image = *mImages[Pick(mImages.size())];
      image.MoveTo(Somewhere(), Somewhere());
      if (Below(3) == 0) image.Resize(Size(), Size());
      ChangeLook(image);
    } else {
      Line& line = *mLines[Pick(mLines.size())];
      const float x = Somewhere(), y = Somewhere();
      line.Place(x, y, x + Size() - Size(), y + Size() - Size());
      line.BorderWidth(static_cast<std::int16_t>(1 + Below(4)));
      ChangeLook(line);
    }
  }

  void Ask() {
    const float left = Somewhere(), top = Somewhere();
    const Rect area{left, top, left + Size(), top + Size()};
    EXPECT_EQ(mSurface.ElementsIn(area), Expected([&](const Element& element) { return element.Bounds().Touches(area); }));

    const auto at =
        Expected([&](const Element& element) { return element.Covers(left, top, element.Family() == ctlLineFamily ? 45.0F : 0.0F); });
    EXPECT_EQ(mSurface.ElementAt(left, top, 45), at.empty() ? nullptr : at.back());
    EXPECT_EQ(mSurface.VisibleBounds(), Around(Expected([](const Element&) { return true; })));
    EXPECT_EQ(mSurface.BoxBounds(), Around(mImages));
  }

 private:
  int Below(int pintLimit) { return std::uniform_int_distribution<>(0, pintLimit - 1)(mRandom); }
  std::size_t Pick(std::size_t plngSize) { return static_cast<std::size_t>(Below(static_cast<int>(plngSize))); }
  float Somewhere() { return static_cast<float>(Below(30000) - 8000); }
  float Size() { return static_cast<float>(Below(20) == 0 ? Below(200'000) : Below(3000)); }

  void ChangeLook(Element& pobjElement) {
    pobjElement.Visible(Below(4) != 0);
    if (Below(4) == 0) pobjElement.BringToFront();
  }

  template <class Test>
  std::vector<Element*> Expected(Test&& pTest) const {
    std::vector<Element*> found;
    const auto take = [&](const auto& element) {
      if (element->Visible() && pTest(*element)) found.push_back(element.get());
    };
    std::for_each(mImages.begin(), mImages.end(), take);
    std::for_each(mLines.begin(), mLines.end(), take);
    std::sort(found.begin(), found.end(), [](const Element* a, const Element* b) { return a->ZOrder() < b->ZOrder(); });
    return found;
  }

  template <class Pointer>
  static std::optional<Rect> Around(const std::vector<Pointer>& pcolElements) {
    std::optional<Rect> around;
    for (const auto& element : pcolElements) around = around ? around->United(element->Bounds()) : element->Bounds();
    return around;
  }

  std::mt19937 mRandom{7};
  ChartSurface mSurface;
  std::vector<std::shared_ptr<Image>> mImages;
  std::vector<std::shared_ptr<Line>> mLines;
};

TEST(ChartSurface, FindsWhatALookAtEveryElementFinds) {
  RandomChart chart;
  for (int step = 0; step < 4000 && !testing::Test::HasFailure(); ++step) {
    chart.ChangeOne();
    chart.Ask();
  }
}

TEST(ChartSurface, HasNoBoundsAfterTheLastElementWent) {
  ChartSurface surface;
  const auto image = surface.ctlImage.New();
  EXPECT_EQ(surface.VisibleBounds(), std::nullopt);
  image->MoveTo(500, 500);
  image->Visible(true);
  EXPECT_EQ(surface.VisibleBounds(), image->Bounds());
  EXPECT_EQ(surface.BoxBounds(), image->Bounds());
  image->Unload();
  EXPECT_EQ(surface.VisibleBounds(), std::nullopt);
  EXPECT_EQ(surface.BoxBounds(), std::nullopt);
}

TEST(ChartSurface, LineIsHitNearItsCourseAndNotInItsBox) {
  ChartSurface surface;
  const auto line = surface.ctlLine.New();
  line->Place(0, 0, 3000, 3000);
  line->Visible(true);
  EXPECT_EQ(surface.ElementAt(1510, 1490), nullptr);
  EXPECT_EQ(surface.ElementAt(1510, 1490, 30), line.get());
  EXPECT_EQ(surface.ElementAt(2500, 500, 30), nullptr);
  EXPECT_EQ(surface.ElementAt(3025, 3000, 30), line.get());
}

/// Records the damage that a surface reports.
class Damage {
 public:
  explicit Damage(ChartSurface& pobjSurface)
      : mSubscription(pobjSurface.OnDamaged.Connect([this](const Rect& area) { mAreas.push_back(area); })) {}
  std::vector<Rect> Take() { return std::exchange(mAreas, {}); }

 private:
  std::vector<Rect> mAreas;
  Subscription mSubscription;
};

TEST(Damage, CoversWhereTheElementWasAndWhereItIs) {
  ChartSurface surface;
  const auto image = surface.ctlImage.New();
  image->Resize(100, 50);
  Damage damage(surface);
  image->MoveTo(10, 20);
  EXPECT_TRUE(damage.Take().empty());
  image->Visible(true);
  image->MoveTo(1000, 2000);
  image->BorderStyle(1);
  image->Unload();
  const Rect before{10, 20, 110, 70}, after{1000, 2000, 1100, 2050};
  EXPECT_EQ(damage.Take(), (std::vector<Rect>{before, before, after, after, after}));
  image->Visible(true);
  image->MoveTo(0, 0);
  EXPECT_TRUE(damage.Take().empty());
}

TEST(Damage, IsToldOfTheWatchedPartAloneAndGrowthOfAll) {
  ChartSurface surface;
  const auto near = surface.ctlImage.New(), far = surface.ctlImage.New();
  for (const auto& image : {near, far}) image->Resize(100, 100);
  surface.Watch({0, 0, 1000, 1000});
  Damage damage(surface);
  std::vector<Rect> grown;
  const Subscription growth = surface.OnGrown.Connect([&](const Rect& rect) { grown.push_back(rect); });
  far->MoveTo(5000, 5000);
  far->Visible(true);
  near->Visible(true);
  EXPECT_EQ(damage.Take(), std::vector<Rect>{near->Bounds()});
  EXPECT_EQ(grown, (std::vector<Rect>{far->Bounds(), near->Bounds()}));
  near->MoveTo(900, 4000);
  far->MoveTo(900, 900);
  EXPECT_EQ(damage.Take(), (std::vector<Rect>{{0, 0, 100, 100}, far->Bounds()}));
  EXPECT_EQ(grown.size(), 2U);
}

TEST(Damage, OfAnElementThatGoesComesWhenItsIndexIsFree) {
  ChartSurface surface;
  const auto gone = surface.ctlLine.New();
  gone->Place(0, 0, 100, 100);
  gone->Visible(true);
  std::shared_ptr<Line> next;
  const Subscription listener = surface.OnDamaged.Connect([&](const Rect&) {
    gone->Unload();
    if (!next) next = surface.ctlLine.New();
  });
  gone->Unload();
  EXPECT_EQ(next->Index(), 1);
  EXPECT_EQ(surface.ctlLine.At(1), next) << "the listener's element was taken for the one that went";
}

TEST(Damage, SettingWhatIsSetIsSilent) {
  ChartSurface surface;
  const auto label = surface.ctlLabel.New();
  const auto line = surface.ctlLine.New();
  const auto image = surface.ctlImage.New();
  const auto picture = ImageList::VantrelImages().Find("Place");
  const auto set = [&] {
    label->Caption("text");
    label->FontSize(12);
    label->ForeColor(0x0000FF);
    label->Alignment(2);
    label->AutoSize(true);
    label->MoveTo(5, 5);
    line->Place(1, 2, 3, 4);
    line->BorderWidth(2);
    image->Picture(picture);
    image->Width(-1);
    for (Element* element : std::initializer_list<Element*>{label.get(), line.get(), image.get()}) element->Visible(true);
    surface.BackColor(0x00FF00);
    surface.Visible(false);
  };
  set();
  Damage damage(surface);
  set();
  image->BringToFront();
  image->BringToFront();
  EXPECT_EQ(damage.Take().size(), 0U);
}

TEST(ElementFamily, NewIndexIsOneAboveTheHighestInUse) {
  ChartSurface surface;
  auto& family = surface.ctlLine;
  std::vector<std::shared_ptr<Line>> lines;
  for (int i = 1; i <= 4; ++i) lines.push_back(family.New());
  lines[1]->Unload();
  EXPECT_EQ(family.New()->Index(), 5);
  family.Remove(5);
  lines[3]->Unload();
  EXPECT_EQ(family.UpperBound(), 3);
  lines[2]->Unload();
  EXPECT_EQ(family.UpperBound(), 1);
  EXPECT_EQ(family.New()->Index(), 2);
  EXPECT_EQ(family.Count(), 3);
}

TEST(ElementFamily, RemovedElementIsOffTheSurface) {
  ChartSurface surface;
  const auto image = surface.ctlImage.New();
  image->Resize(100, 100);
  image->Visible(true);
  Damage damage(surface);
  surface.ctlImage.Remove(image->Index());
  EXPECT_TRUE(surface.ElementsIn(image->Bounds()).empty());
  EXPECT_EQ(damage.Take(), std::vector<Rect>{image->Bounds()});
  EXPECT_EQ(image->Surface(), nullptr);
  surface.ctlImage.Remove(0);
  surface.ctlImage.Remove(7);
  EXPECT_EQ(surface.ctlImage.Count(), 1);
}

TEST(ElementFamily, TemplateStaysAndLendsItsSettings) {
  ChartSurface surface;
  Label& pattern = surface.lblCount.Template();
  pattern.FontSize(20);
  pattern.BackStyle(1);
  pattern.Resize(300, 200);
  pattern.Visible(true);
  pattern.Unload();
  EXPECT_EQ(surface.lblCount.At(0).get(), &pattern);

  const auto label = surface.lblCount.New();
  EXPECT_EQ(label->Font().Size, 20);
  EXPECT_EQ(label->BackStyle(), 1);
  EXPECT_EQ(label->Width(), 300);
  EXPECT_FALSE(label->Visible());
  EXPECT_EQ(surface.ctlLabel.New()->BackStyle(), 0);
}

TEST(Element, OutlivesItsSurface) {
  auto surface = std::make_unique<ChartSurface>();
  const auto label = surface->ctlLabel.New();
  label->Visible(true);
  surface.reset();
  label->Caption("late");
  label->BringToFront();
  label->Unload();
  EXPECT_EQ(label->Surface(), nullptr);
}

TEST(Label, FollowsItsTextOnlyWhileItSizesItself) {
  ChartSurface surface;
  const auto label = surface.ctlLabel.New();
  label->AutoSize(true);
  label->Caption("ab");
  const float narrow = label->Width(), low = label->Height();
  label->Caption("abcdef\nab");
  EXPECT_GT(label->Width(), narrow);
  EXPECT_FLOAT_EQ(label->Height(), 2 * low);
  label->AutoSize(false);
  const float fixed = label->Width();
  label->Caption("a");
  EXPECT_EQ(label->Width(), fixed);
}

TEST(Label, AlignmentNamesTheSideThatStaysWhenItGrows) {
  for (const std::int16_t alignment : {0, 1, 2}) {
    ChartSurface surface;
    const auto label = surface.ctlLabel.New();
    label->Alignment(alignment);
    label->Caption("x");
    label->AutoSize(true);
    label->MoveTo(1000, 0);
    const auto fixed = [&] { return label->Left() + label->Width() * (alignment == 2 ? 0.5F : alignment); };
    const float before = fixed();
    label->Caption("a much longer text");
    EXPECT_NEAR(fixed(), before, 0.01) << alignment;
  }
}

}  // namespace

}  // namespace vantrel

#include "qt/ChartPainter.h"

#include <QImage>
#include <QPainter>
#include <vector>

#include <gtest/gtest.h>

#include "qt/Conversions.h"
#include "qt/Pictures.h"
#include "qt/SampleSurface.h"

namespace vantrel {
namespace {

constexpr QRgb kPaper = 0xffffffff;

QImage Painted(const ChartSurface& pobjSurface, double pdblZoom = 1, double pdblRatio = 1, QSize pobjSize = {200, 120}) {
  QImage image(pobjSize * pdblRatio, QImage::Format_RGB32);
  image.setDevicePixelRatio(pdblRatio);
  image.fill(kPaper);
  QPainter painter(&image);
  ChartPainter().Paint(painter, pobjSurface, {-1e6F, -1e6F, 1e6F, 1e6F}, pdblZoom);
  return image;
}

int Inked(const QImage& pobjImage, const QRect& pobjPart) {
  int inked = 0;
  for (int y = pobjPart.top(); y <= pobjPart.bottom(); ++y) {
    for (int x = pobjPart.left(); x <= pobjPart.right(); ++x) inked += pobjImage.pixel(x, y) != kPaper ? 1 : 0;
  }
  return inked;
}

int Inked(const QImage& pobjImage) { return Inked(pobjImage, pobjImage.rect()); }

TEST(ChartPainter, PaintsAPictureInItsPlaceAndNowhereElse) {
  ChartSurface surface;
  AddImage(surface, "Transition", 600, 300);
  for (const auto& [zoom, ratio] : {std::pair{1.0, 1.0}, {2.0, 1.0}, {1.0, 2.0}, {0.5, 1.5}, {2.0, 2.0}}) {
    const QImage image = Painted(surface, zoom, ratio);
    const double scale = zoom * ratio;
    const QRect box = QRectF(40 * scale, 20 * scale, 32 * scale, 32 * scale).toAlignedRect();
    EXPECT_NE(image.pixel(box.center()), kPaper) << zoom << " " << ratio;
    EXPECT_EQ(Inked(image), Inked(image, box)) << zoom << " " << ratio;
  }
}

TEST(ChartPainter, RendersPicturesAnewForEveryZoom) {
  ChartSurface surface;
  AddImage(surface, "Transition", 0, 0);
  const QImage image = Painted(surface, 8, 1, {300, 300});
  // Across the left edge: border, then filling, with next to nothing between them. A stretched picture has a long gradient there.
  std::vector<QRgb> colors;
  for (int x = 2; x < 40; ++x) {
    if (colors.empty() || colors.back() != image.pixel(x, 128)) colors.push_back(image.pixel(x, 128));
  }
  EXPECT_LE(colors.size(), 3U);
}

TEST(ChartPainter, StacksElementsOfAllKindsAlike) {
  ChartSurface surface;
  const auto image = AddImage(surface, "Transition", 0, 0);
  const auto line = AddLine(surface, 0, 240, 480, 240);
  line->BorderWidth(4);
  line->BorderColor(0x0000ff);
  const QRgb red = 0xffff0000;
  EXPECT_EQ(Painted(surface).pixel(16, 16), red);
  image->BringToFront();
  EXPECT_NE(Painted(surface).pixel(16, 16), red);
  line->BringToFront();
  EXPECT_EQ(Painted(surface).pixel(16, 16), red);
}

TEST(ChartPainter, LeavesIllegibleTextOutAndKeepsLargeText) {
  ChartSurface surface;
  const auto label = AddLabel(surface, "Check the order", 0, 0);
  EXPECT_GT(Inked(Painted(surface, 0.5)), 0);
  EXPECT_EQ(Inked(Painted(surface, 0.3)), 0);
  label->Font({"Arial", 40});
  label->Resize(9000, 1500);
  EXPECT_GT(Inked(Painted(surface, 0.3)), 0);
}

TEST(ChartPainter, KeepsTextInsideItsBox) {
  ChartSurface surface;
  const auto label = AddLabel(surface, "", 150, 150);
  label->Caption("A text of several words\nand two paragraphs that nobody could ever put into so small a box");
  struct Case {
    std::int16_t Alignment;
    Font Face;
  };
  for (const auto& test : {Case{0, {}}, Case{1, {}}, Case{2, {"Arial", 12, true}}, Case{0, {"Arial", 10, false, true, true, true}}}) {
    label->Alignment(test.Alignment);
    label->Font(test.Face);
    label->Resize(900, 450);
    const QImage image = Painted(surface);
    EXPECT_GT(Inked(image), 0);
    EXPECT_EQ(Inked(image), Inked(image, QRect(9, 9, 62, 32))) << test.Face.Size;
  }
}

TEST(ChartPainter, BreaksLinesWhereTheTextDoes) {
  ChartSurface surface;
  const auto label = AddLabel(surface, "x\nx", 0, 0);
  label->Resize(1500, 900);
  const QImage image = Painted(surface);
  EXPECT_EQ(Inked(image, QRect(14, 0, 100, 60)), 0) << "the second line stands behind the first";
  EXPECT_GT(Inked(image, QRect(0, 16, 14, 16)), 0);
}

TEST(ChartPainter, TurnsBlackLightOnADarkChart) {
  ChartSurface surface;
  const auto line = AddLine(surface, 0, 450, 1500, 450);
  line->BorderWidth(3);
  surface.BackColor(0x302820);
  EXPECT_GT(qGray(Painted(surface).pixel(50, 30)), 150);
  line->BorderColor(0x000040);
  EXPECT_LT(qGray(Painted(surface).pixel(50, 30)), 60) << "a colour that somebody chose";
}

TEST(ChartPainter, PaintsNothingOfAHiddenSurface) {
  ChartSurface surface;
  AddImage(surface, "Place", 0, 0);
  surface.Visible(false);
  EXPECT_EQ(Inked(Painted(surface)), 0);
}

TEST(Pictures, AreDrawnForEveryKeyOfTheDesignersList) {
  Pictures pictures;
  const ImageList list = ImageList::VantrelImages();
  for (const char* key : {"Place", "PlaceGreen", "Transition", "TransitionEnabled", "Workflow", "InputTop", "InputRight", "InputBottom",
                          "InputLeft", "OutputVertical", "OutputHorizontal", "HandPointer", "Expand", "Collapse", "Handle"}) {
    EXPECT_FALSE(pictures.Pixmap(list.Find(key), {24, 24}).isNull()) << key;
  }
}

TEST(Pictures, TakeAHostsArtForItsOwnKeysAndRefuseWhatIsNone) {
  ChartSurface surface;
  const auto image = surface.ctlImage.New();
  image->Picture(std::make_shared<const Picture>(Picture{"Clerk", 300, 300}));
  image->Visible(true);
  EXPECT_FALSE(Pictures::Install("Clerk", "no picture"));
  EXPECT_EQ(Painted(surface).pixel(10, 10), kPaper) << "only a placeholder's edge";
  ASSERT_TRUE(Pictures::Install(
      "Clerk", R"(<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 2 2"><rect width="2" height="2" fill="#00f"/></svg>)"));
  EXPECT_EQ(Painted(surface).pixel(10, 10), 0xff0000ff);
}

}  // namespace
}  // namespace vantrel

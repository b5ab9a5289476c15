#include "qt/ChartPainter.h"

#include <QImage>
#include <QPainter>
#include <algorithm>
#include <cmath>
#include <utility>
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
  image.fill(ToQColor(pobjSurface.BackColor()));
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

double Luminance(const QColor& pobjColor) {
  const auto linear = [](double part) { return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4); };
  return 0.2126 * linear(pobjColor.redF()) + 0.7152 * linear(pobjColor.greenF()) + 0.0722 * linear(pobjColor.blueF());
}

// Counts the pixels with at least that contrast ratio to the ground.
int Readable(const QImage& pobjImage, const QRect& pobjPart, const QColor& pobjGround, double pdblContrast) {
  int readable = 0;
  for (int y = pobjPart.top(); y <= pobjPart.bottom(); ++y) {
    for (int x = pobjPart.left(); x <= pobjPart.right(); ++x) {
      const double a = Luminance(pobjImage.pixelColor(x, y)) + 0.05, b = Luminance(pobjGround) + 0.05;
      readable += std::max(a, b) / std::min(a, b) >= pdblContrast ? 1 : 0;
    }
  }
  return readable;
}

// The largest difference of a pixel, of 255. Qt clips slanted thin lines before it smooths them, which moves their edges slightly.
int Difference(const QImage& pobjA, const QImage& pobjB) {
  int largest = 0;
  for (int y = 0; y < pobjA.height(); ++y) {
    for (int x = 0; x < pobjA.width(); ++x) largest = std::max(largest, std::abs(qGray(pobjA.pixel(x, y)) - qGray(pobjB.pixel(x, y))));
  }
  return largest;
}

void AddSamples(ChartSurface& pobjSurface) {  // overlapping
  const auto note = AddLabel(pobjSurface, "A note of several words, in a box that is too small for them", 900, 90);
  note->Resize(1200, 600);
  note->Appearance(1);
  AddImage(pobjSurface, "TransitionEnabled", 150, 300)->BorderStyle(1);
  AddImage(pobjSurface, "PlaceGreen", 1800, 600);
  AddImage(pobjSurface, "InputLeft", 1680, 780);
  AddLabel(pobjSurface, "Goods on order", 1200, 540);
  const auto opaque = AddLabel(pobjSurface, "Opaque", 500, 700);
  opaque->BackStyle(1);
  opaque->BackColor(0x99f5ff);
  opaque->BorderStyle(1);
  AddLine(pobjSurface, 630, 540, 1680, 840);
  AddLine(pobjSurface, 630, 900, 2400, 600)->BorderWidth(2);
  AddLabel(pobjSurface, "[stock > 0]", 900, 660);
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

TEST(ChartPainter, JoinsPicturesConnectorsAndArcsAtEveryZoom) {
  ChartSurface surface;
  AddImage(surface, "OutputHorizontal", 495, 195);
  AddImage(surface, "InputLeft", 1155, 195);
  AddImage(surface, "Transition", 15, 15);
  AddLine(surface, 615, 255, 1155, 255);
  for (double zoom = 0.5; zoom < 2; zoom += 0.07) {
    const QImage image = Painted(surface, zoom, 1, {200, 100});
    const auto middle = static_cast<int>(17 * zoom);
    for (auto x = static_cast<int>(33 * zoom); x < 79 * zoom; ++x) {
      const auto dark = [&](int y) { return qGray(image.pixel(x, y)) < 150; };
      EXPECT_TRUE(dark(middle - 1) || dark(middle) || dark(middle + 1)) << "gap at " << x << " " << zoom;
    }
    const auto row = [&](double x) {  // the darkest
      int darkest = middle - 2;
      for (int y = middle - 2; y <= middle + 2; ++y) {
        if (qGray(image.pixel(static_cast<int>(x), y)) < qGray(image.pixel(static_cast<int>(x), darkest))) darkest = y;
      }
      return darkest;
    };
    EXPECT_LE(std::abs(row(37 * zoom) - row(60 * zoom)), 1) << "step at " << zoom;
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

TEST(ChartPainter, LooksTheSameInDoublePixelsAsInDoubleZoom) {
  ChartSurface surface;
  AddSamples(surface);
  EXPECT_EQ(Painted(surface, 1, 2), Painted(surface, 2, 1, {400, 240})) << "something was stretched";
}

TEST(ChartPainter, PaintsAPartLikeTheWhole) {
  ChartSurface surface;
  AddSamples(surface);
  for (const Color ground : {kWhite, 0x705a48, 0x302820}) {
    surface.BackColor(ground);
    const QImage whole = Painted(surface, 1.3);
    QImage parts(whole.size(), QImage::Format_RGB32);
    parts.fill(ToQColor(ground));
    ChartPainter chart;
    for (int y = 0; y < 120; y += 17) {
      for (int x = 0; x < 200; x += 23) {
        QPainter painter(&parts);
        painter.setClipRect(x, y, 23, 17);
        const auto twips = [](int pixels) { return static_cast<float>(pixels) * kTwipsPerPixel / 1.3F; };
        chart.Paint(painter, surface, {twips(x - 2), twips(y - 2), twips(x + 25), twips(y + 19)}, 1.3);
      }
    }
    EXPECT_LE(Difference(whole, parts), 6) << ground;
  }
}

TEST(ChartPainter, KeepsArcsBehindAndTheRestInItsOrder) {
  ChartSurface surface;
  const auto image = AddImage(surface, "Transition", 0, 0);
  const auto line = AddLine(surface, 0, 240, 480, 240);
  const QRgb red = 0xffff0000;
  line->BorderColor(0x0000ff);
  line->BringToFront();
  EXPECT_NE(Painted(surface).pixel(16, 16), red);

  const auto note = AddLabel(surface, "", 0, 0);
  note->Resize(480, 480);
  note->BackStyle(1);
  note->BackColor(0x0000ff);
  EXPECT_EQ(Painted(surface).pixel(16, 16), red);
  image->BringToFront();
  EXPECT_NE(Painted(surface).pixel(16, 16), red);

  Line& rubber = surface.ctlLine.Template();
  rubber.Place(0, 240, 480, 240);
  rubber.BorderColor(0x0000ff);
  rubber.BringToFront();
  rubber.Visible(true);
  EXPECT_EQ(Painted(surface).pixel(16, 16), red) << "an arc being drawn";
}

TEST(ChartPainter, LetsNoLineRunThroughACaption) {
  ChartSurface surface;
  const auto label = AddLabel(surface, "i                              i", 300, 300);
  const auto level = static_cast<int>(label->Top() + label->Height() / 2), middle = static_cast<int>(label->Left() + label->Width() / 2);
  AddLine(surface, 0, static_cast<float>(level), 3000, static_cast<float>(level))->BringToFront();
  const QImage image = Painted(surface);
  const auto darkest = [&](int x) { return std::min(qGray(image.pixel(x, level / 15)), qGray(image.pixel(x, level / 15 - 1))); };
  EXPECT_GT(darkest(middle / 15), 120);
  EXPECT_LT(darkest(10), 80);
}

TEST(ChartPainter, MarksASelectedPictureByMoreThanColour) {
  ChartSurface surface;
  const auto image = AddImage(surface, "Place", 0, 0);
  for (const double zoom : {0.5, 1.0, 4.0}) {
    const auto side = static_cast<int>(4 * zoom), far = static_cast<int>(32 * zoom) - side;
    for (const auto& [x, y] : {std::pair{0, 0}, {far, 0}, {0, far}, {far, far}}) {
      const QRect corner(x, y, side, side);
      image->BorderStyle(0);
      EXPECT_LT(Inked(Painted(surface, zoom, 1, {200, 200}), corner), side * side / 3);
      image->BorderStyle(1);
      EXPECT_EQ(Inked(Painted(surface, zoom, 1, {200, 200}), corner), side * side);
    }
  }
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

TEST(ChartPainter, EndsATextThatIsTooLongInAWholeLine) {
  ChartSurface surface;
  const auto label =
      AddLabel(surface, "Too much text for so small a box, so that most of it can never be seen at all, wherever it breaks", 0, 0);
  const auto line = static_cast<int>(std::lround(label->Height() / 15));
  label->Resize(1500, static_cast<float>(line * 15) * 2.7F);
  const QImage image = Painted(surface);
  EXPECT_GT(Inked(image, QRect(0, line, 100, line)), 0);
  EXPECT_EQ(Inked(image, QRect(0, line * 2 + 4, 100, line)), 0) << "halves of letters";
}

TEST(ChartPainter, StaysReadableOnEveryGround) {
  ChartSurface surface;
  AddLine(surface, 30, 450, 450, 450)->BorderWidth(3);
  AddImage(surface, "InputLeft", 600, 300);
  AddImage(surface, "OutputVertical", 900, 300);
  AddImage(surface, "Place", 1200, 300)->BorderStyle(1);
  AddImage(surface, "TransitionEnabled", 1800, 300);
  const auto text = AddLabel(surface, "MMM", 0, 900);
  text->Font({"Arial", 16, true});
  text->Resize(900, 450);
  const auto note = AddLabel(surface, "", 900, 900);
  note->Resize(600, 600);
  note->BorderStyle(1);
  for (const Color ground : {kWhite, 0xb4dcf0, 0x707070, 0x6a4a30, 0x302820, kBlack}) {
    surface.BackColor(ground);
    const QImage image = Painted(surface);
    const QColor paper = ToQColor(ground);
    struct Part {
      QRect Box;
      int Seen;  // pixels
    };
    for (const auto& part : {Part{{5, 20, 8, 20}, 24}, Part{{40, 20, 8, 8}, 15}, Part{{60, 20, 8, 8}, 12}, Part{{80, 20, 32, 32}, 100},
                             Part{{120, 20, 32, 32}, 80}}) {
      EXPECT_GE(Readable(image, part.Box, paper, 3), part.Seen) << part.Box.left() << " on " << ground;
    }
    EXPECT_GE(Readable(image, QRect(0, 60, 59, 30), paper, 4.5), 60) << "text on " << ground;
    EXPECT_GE(Readable(image, QRect(60, 60, 40, 40), paper, 3), 4 * 39) << "border on " << ground;
  }
}

TEST(ChartPainter, LeavesColoursThatSomebodyChose) {
  ChartSurface surface;
  AddLine(surface, 0, 450, 1500, 450)->BorderColor(0x000040);
  surface.BackColor(0x302820);
  EXPECT_EQ(Painted(surface).pixel(50, 30), 0xff400000);
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

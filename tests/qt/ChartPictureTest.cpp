#include "qt/ChartPicture.h"

#include <QDir>
#include <QFile>
#include <QImage>
#include <QTemporaryDir>
#include <cmath>

#include <gmock/gmock.h>

#include "qt/SampleSurface.h"
#include "util/Error.h"

namespace vantrel {
namespace {

class ChartPicture : public testing::Test {
 protected:
  ChartPicture() {
    AddImage(mobjSurface, "Place", -3000, 1500);
    AddLabel(mobjSurface, "Claim <received> & noted", -3000, 2100);
    mobjSurface.BackColor(0x00ffff);
  }

  std::string Path(const char* pstrName) const { return mobjFolder.filePath(pstrName).toStdString(); }
  QByteArray Written(const char* pstrName) {
    WriteChart(mobjSurface, Path(pstrName));
    QFile file(mobjFolder.filePath(pstrName));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    return file.readAll();
  }

  ChartSurface mobjSurface;
  QTemporaryDir mobjFolder;
};

TEST_F(ChartPicture, IsCroppedToWhatIsVisible) {
  AddImage(mobjSurface, "Place", 90000, 90000)->Visible(false);
  WriteChart(mobjSurface, Path("chart.png"), 2);
  const QImage image(mobjFolder.filePath("chart.png"));
  EXPECT_GT(image.width(), 2 * 100);
  EXPECT_LT(image.width(), 2 * 300);
  EXPECT_LT(image.height(), 2 * 120);
  EXPECT_EQ(image.pixel(2, 2), 0xffffff00) << "the chart's background";
  EXPECT_NE(image.pixel(2 * (12 + 16), 2 * (12 + 16)), 0xffffff00) << "the place";
}

TEST_F(ChartPicture, HoldsTextAsText) {
  const QByteArray svg = Written("chart.SVG");
  EXPECT_TRUE(svg.contains("<text"));
  EXPECT_TRUE(svg.contains("Claim &lt;received&gt; &amp; noted"));
  const QByteArray pdf = Written("chart.pdf");
  EXPECT_TRUE(pdf.startsWith("%PDF"));
  EXPECT_TRUE(pdf.contains("/Font"));
}

TEST_F(ChartPicture, OfAnEmptyChartIsSmall) {
  WriteChart(ChartSurface(), Path("empty.png"));
  EXPECT_FALSE(QImage(mobjFolder.filePath("empty.png")).isNull());
}

TEST_F(ChartPicture, ThatIsTooLargeIsRefusedWithAZoomThatFits) {
  AddImage(mobjSurface, "Place", 300000, 0);
  for (const double zoom : {1.0, 7.3, 1e12}) {
    std::string description;
    try {
      WriteChart(mobjSurface, Path("chart.png"), zoom);
    } catch (const Error& error) {
      description = error.Description;
    }
    const auto words = QString::fromStdString(description).split(' ');
    ASSERT_GE(words.size(), 2) << zoom;
    WriteChart(mobjSurface, Path("chart.png"), words[words.size() - 2].toDouble());
    EXPECT_GT(QImage(mobjFolder.filePath("chart.png")).width(), 14000) << description;
  }
}

TEST_F(ChartPicture, NamesTheFileThatItCannotWriteAndLeavesNothingBehind) {
  AddImage(mobjSurface, "Place", 300000, 0);
  struct Case {
    std::string Path;
    double Zoom;
    std::int32_t Error;
  };
  for (const auto& test : {Case{Path("chart.gif"), 1, 5}, Case{Path("chart"), 1, 5}, Case{Path("chart.png"), 0, 5},
                           Case{Path("chart.pdf"), std::nan(""), 5}, Case{Path("chart.png"), 1, 6}, Case{Path("chart.png"), 1e300, 6},
                           Case{Path("chart.svg"), 1e300, 6}, Case{Path("chart.pdf"), 1e9, 6}, Case{Path("nowhere/chart.svg"), 1, 75}}) {
    try {
      WriteChart(mobjSurface, test.Path, test.Zoom);
      ADD_FAILURE() << test.Path;
    } catch (const Error& error) {
      EXPECT_EQ(error.Number, test.Error) << test.Path;
      EXPECT_THAT(error.Description, testing::HasSubstr(test.Path));
    }
  }
  EXPECT_TRUE(QDir(mobjFolder.path()).isEmpty());
}

}  // namespace
}  // namespace vantrel

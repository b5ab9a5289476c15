#include "interchange/BendPoints.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <utility>

namespace vantrel {

namespace {

/// The distance of a point from the straight run between two others, ends included.
double Distance(const PlanePoint& pobjPoint, const PlanePoint& pobjFrom, const PlanePoint& pobjTo) {
  const double alongX = pobjTo.X - pobjFrom.X;
  const double alongY = pobjTo.Y - pobjFrom.Y;
  const double x = pobjPoint.X - pobjFrom.X;
  const double y = pobjPoint.Y - pobjFrom.Y;
  const double square = alongX * alongX + alongY * alongY;
  const double share = square > 0 ? std::clamp((x * alongX + y * alongY) / square, 0.0, 1.0) : 0.0;
  return std::hypot(x - share * alongX, y - share * alongY);
}

class LineSimplifier {
 public:
  LineSimplifier(const std::vector<PlanePoint>& pcolLine, double psngTolerance)
      : mLine(pcolLine), mTolerance(psngTolerance), mKept(pcolLine.size(), false) {}

  std::vector<PlanePoint> Run() {
    constexpr std::size_t kPiece = 256;  // the method is quadratic at worst
    for (std::size_t from = 0; from + 1 < mLine.size(); from += kPiece) {
      Thin(from, std::min(from + kPiece, mLine.size() - 1));
    }
    std::vector<PlanePoint> line;
    for (std::size_t at = 0; at < mLine.size(); ++at) {
      if (mKept[at]) line.push_back(mLine[at]);
    }
    return line;
  }

 private:
  void Thin(std::size_t plngFrom, std::size_t plngTo) {
    mKept[plngFrom] = mKept[plngTo] = true;
    std::vector<std::pair<std::size_t, std::size_t>> open{{plngFrom, plngTo}};
    while (!open.empty()) {
      const auto [from, to] = open.back();
      open.pop_back();
      const std::size_t middle = Farthest(from, to);
      if (middle == from) continue;
      mKept[middle] = true;
      open.emplace_back(from, middle);
      open.emplace_back(middle, to);
    }
  }

  /// The point farthest from the run, or plngFrom when all are near enough.
  std::size_t Farthest(std::size_t plngFrom, std::size_t plngTo) const {
    std::size_t farthest = plngFrom;
    double distance = mTolerance;
    for (std::size_t at = plngFrom + 1; at < plngTo; ++at) {
      const double away = Distance(mLine[at], mLine[plngFrom], mLine[plngTo]);
      if (away <= distance) continue;
      distance = away;
      farthest = at;
    }
    return farthest;
  }

  const std::vector<PlanePoint>& mLine;
  double mTolerance;
  std::vector<bool> mKept;
};

}  // namespace

std::vector<PlanePoint> SimplifyLine(const std::vector<PlanePoint>& pcolLine, double psngTolerance) {
  if (pcolLine.size() < 3) return pcolLine;
  return LineSimplifier(pcolLine, psngTolerance).Run();
}

}  // namespace vantrel

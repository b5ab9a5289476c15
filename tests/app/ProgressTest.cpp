#include "app/play/Progress.h"

#include <sstream>

#include <gtest/gtest.h>

namespace vantrel {

namespace {

std::string ShownDuring(std::chrono::milliseconds pLength) {
  std::ostringstream terminal;
  {
    const auto start = Progress::Clock::now();
    Progress progress(terminal, start);
    for (std::chrono::milliseconds passed(0); passed <= pLength; passed += std::chrono::milliseconds(10)) progress.Show({}, start + passed);
  }
  return terminal.str();
}

TEST(Progress, ShortRunWritesNothing) { EXPECT_EQ(ShownDuring(std::chrono::milliseconds(900)), ""); }

TEST(Progress, LongRunWritesFiveTimesASecondAndErasesItsLine) {
  const std::string shown = ShownDuring(std::chrono::milliseconds(2190));
  std::size_t lines = 0;
  for (auto at = shown.find("firings"); at != std::string::npos; at = shown.find("firings", at + 1)) ++lines;
  EXPECT_EQ(lines, 6U);
  EXPECT_TRUE(shown.ends_with("\r\033[K"));
}

}  // namespace

}  // namespace vantrel

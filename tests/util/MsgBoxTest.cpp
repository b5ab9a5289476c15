#include "util/MsgBox.h"

#include <gtest/gtest.h>

#include "util/Error.h"
#include "util/MessageRecorder.h"

namespace vantrel::test {
namespace {

using Texts = std::vector<std::string>;

TEST(ShowErrors, ShowsWhatLeavesTheWorkOnceAndSaysSo) {
  const MessageRecorder messages;
  EXPECT_FALSE(ShowErrors([] { throw Error(vntErrOverflow); }));
  EXPECT_FALSE(ShowErrors([] { throw std::runtime_error("no file"); }));
  bool hasRun = false;
  EXPECT_TRUE(ShowErrors([&] { hasRun = true; }));
  EXPECT_TRUE(hasRun);
  EXPECT_EQ(messages.Texts, (Texts{"Overflow", "no file"}));
}

TEST(MsgBoxScope, EndsWithTheBlockAndInsideAnother) {
  const MessageRecorder outer;
  {
    const MessageRecorder inner;
    MsgBox("inside");
    EXPECT_EQ(inner.Texts, Texts{"inside"});
  }
  MsgBox("after");
  EXPECT_EQ(outer.Texts, Texts{"after"});
}

}  // namespace
}  // namespace vantrel::test

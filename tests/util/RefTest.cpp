#include "util/Ref.h"

#include <memory>
#include <vector>

#include <gtest/gtest.h>

#include "util/ErrorOf.h"

namespace vantrel {

namespace {

struct Target : Referable, std::enable_shared_from_this<Target> {
  int Value = 1;
};

TEST(Ref, TestsFalseAndThrowsOnceItsObjectIsGone) {
  auto target = std::make_shared<Target>();
  const std::vector<Ref<Target>> refs(2, Ref<Target>(target));
  EXPECT_EQ(refs[0]->Value, 1);
  target.reset();
  EXPECT_FALSE(refs[0]);
  EXPECT_TRUE(refs[1].Expired());
  EXPECT_EQ(refs[1].Lock(), nullptr);
  EXPECT_EQ(test::ErrorOf([&] { refs[0]->Value = 2; }), vntErrObjectNotSet);
}

TEST(Ref, CopyOfAnObjectIsAnotherObject) {
  Target original;
  const Ref<Target> ref = &original;
  {
    Target copy = original;
    copy = original;
    EXPECT_FALSE(ref == &copy);
  }
  EXPECT_TRUE(ref == &original);
}

}  // namespace

}  // namespace vantrel

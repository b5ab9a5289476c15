#include "toolkit/HeadlessToolkit.h"

#include <gtest/gtest.h>

namespace vantrel {
namespace {

TEST(HeadlessToolkit, ChoosesOnlyWhatAUserCanReach) {
  MenuItem menu;
  int clicks = 0;
  std::vector<Subscription> listening;
  const auto listen = [&](MenuItem& item) -> MenuItem& {
    listening.push_back(item.OnClick.Connect([&] { ++clicks; }));
    return item;
  };
  listen(menu.Add("Copy", "copy"));
  listen(menu.Add("Paste", "paste")).Enabled = false;
  listen(menu.Add("Test", "test")).Visible = false;
  listen(menu.AddSeparator());
  MenuItem& format = listen(menu.Add("Format", "format"));
  listen(format.Add("Copy", "copy-format"));

  EXPECT_TRUE(HeadlessToolkit::Choose(menu, "copy"));
  EXPECT_TRUE(HeadlessToolkit::Choose(menu, "copy-format"));
  EXPECT_EQ(clicks, 2);
  for (const char* out : {"paste", "test", "", "format", "Copy"}) EXPECT_FALSE(HeadlessToolkit::Choose(menu, out)) << out;
  format.Enabled = false;
  EXPECT_FALSE(HeadlessToolkit::Choose(menu, "copy-format")) << "its sub-menu does not open";
  EXPECT_EQ(clicks, 2);
}

TEST(HeadlessToolkit, APopupMayReplaceItsScript) {
  HeadlessToolkit toolkit;
  MenuItem menu;
  int first = 0, second = 0;
  toolkit.OnPopup = [&](MenuItem&) {
    ++first;
    toolkit.OnPopup = [&](MenuItem&) { ++second; };
  };
  toolkit.ShowPopup(menu);
  toolkit.ShowPopup(menu);
  EXPECT_EQ(first, 1);
  EXPECT_EQ(second, 1);
  EXPECT_EQ(toolkit.PopupsShown, 2);
}

}  // namespace
}  // namespace vantrel

#include "model/Notation.h"

#include <gtest/gtest.h>

#include "model/TestHost.h"

namespace vantrel {

namespace {

using namespace test;

TEST(Notation, DrawsItsSettingsOnItsLabel) {
  TestHost host;
  Notation note;
  note.TextControl = host.NewLabel();
  note.Font = "";
  note.Size = 14;
  note.Underline = true;
  note.Caption = "Call first";
  note.BackColor = 0x00FFFF;
  note.Width(70000);
  note.Height(300);
  note.Draw();
  EXPECT_EQ(note.Font, "Arial");
  const Font expected{"Arial", 14, false, false, true, false};
  EXPECT_EQ(note.TextControl->Font(), expected);
  EXPECT_EQ(note.TextControl->Caption(), "Call first");
  EXPECT_EQ(note.TextControl->BackColor(), 0x00FFFF);
  EXPECT_EQ(note.TextControl->Width(), 70000);
}

TEST(Notation, SelectionLendsItABorder) {
  TestHost host;
  Notation note;
  note.TextControl = host.NewLabel();
  note.Selected(true);
  EXPECT_EQ(note.TextControl->BorderStyle(), 1);
  note.SetProperty("Caption", "redrawn");
  EXPECT_EQ(note.TextControl->Caption(), "redrawn");
  note.Selected(false);
  EXPECT_EQ(note.TextControl->BorderStyle(), 0);
}

TEST(Notation, CloneHasLookAndPlaceButNoLabel) {
  TestHost host;
  Notation note;
  note.TextControl = host.NewLabel();
  note.Key = "Notation1";
  note.Bold = true;
  note.Left(50000);
  const auto clone = note.Clone();
  clone->Left(clone->Left() + 100);
  EXPECT_TRUE(clone->Bold);
  EXPECT_EQ(note.TextControl->Left(), 50000);
  EXPECT_EQ(clone->Left(), 50100);
  EXPECT_EQ(clone->Key + note.Name(), "1");
}

}  // namespace

}  // namespace vantrel

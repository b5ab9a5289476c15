#include "model/Notation.h"

#include <algorithm>
#include <cmath>

#include "model/DesignerState.h"
#include "model/PropertyBuilder.h"
#include "model/Workflow.h"

namespace vantrel {

namespace {

constexpr std::size_t kKeyWordLength = 8;  // of "Notation"

std::int32_t WholeTwips(float psngValue) { return static_cast<std::int32_t>(std::nearbyint(std::clamp(psngValue, -1e9F, 1e9F))); }

}  // namespace

Notation::~Notation() {
  if (TextControl) TextControl->Unload();
}

std::string Notation::Name() const {
  if (Key.size() < kKeyWordLength) throw Error(vntErrInvalidCall);
  return Key.substr(kKeyWordLength);
}

void Notation::Top(std::int32_t plngTop) {
  mlngTop = plngTop;
  if (TextControl) TextControl->Top(static_cast<float>(plngTop));
}

void Notation::Left(std::int32_t plngLeft) {
  mlngLeft = plngLeft;
  if (TextControl) TextControl->Left(static_cast<float>(plngLeft));
}

void Notation::Height(std::int32_t plngHeight) {
  mlngHeight = plngHeight;
  if (TextControl) TextControl->Height(static_cast<float>(plngHeight));
}

void Notation::Width(std::int32_t plngWidth) {
  mlngWidth = plngWidth;
  if (TextControl) TextControl->Width(static_cast<float>(plngWidth));
}

std::optional<Rect> Notation::Bounds() const {
  const auto left = static_cast<float>(mlngLeft), top = static_cast<float>(mlngTop);
  return Rect{left, top, left + static_cast<float>(mlngWidth), top + static_cast<float>(mlngHeight)};
}

void Notation::MoveTo(float psngLeft, float psngTop) {
  Left(WholeTwips(psngLeft));
  Top(WholeTwips(psngTop));
  Dirty = true;
}

bool Notation::Visible() const { return TextControl && TextControl->Visible(); }

void Notation::Visible(bool pblnOn) {
  if (TextControl) TextControl->Visible(pblnOn);
}

void Notation::Selected(bool pblnOn) {
  if (TextControl) {
    TextControl->BorderStyle(pblnOn ? std::int16_t{1} : BorderStyle);
    TextControl->Marked(pblnOn);  // a note may have a border anyway
  }
  mblnSelected = pblnOn;
}

void Notation::Draw() {
  Label* label = TextControl.get();
  if (!label) return;
  label->Alignment(Alignment);
  label->Appearance(Appearance);
  label->BackStyle(BackStyle);
  label->BorderStyle(BorderStyle);
  label->MoveTo(static_cast<float>(mlngLeft), static_cast<float>(mlngTop));
  label->Resize(static_cast<float>(mlngWidth), static_cast<float>(mlngHeight));
  if (Font.empty()) Font = label->Font().Name;
  label->Font({Font, Size, Bold, Italics, Underline, Strikethrough});
  label->BackColor(BackColor);
  label->ForeColor(ForeColor);
  label->Caption(Caption);
}

std::shared_ptr<Notation> Notation::Clone() const {
  auto clone = std::make_shared<Notation>();
  clone->Alignment = Alignment;
  clone->Appearance = Appearance;
  clone->BackColor = BackColor;
  clone->BackStyle = BackStyle;
  clone->BorderStyle = BorderStyle;
  clone->ForeColor = ForeColor;
  clone->Font = Font;
  clone->Size = Size;
  clone->Underline = Underline;
  clone->Strikethrough = Strikethrough;
  clone->Bold = Bold;
  clone->Italics = Italics;
  clone->Caption = Caption;
  clone->Tag = Tag;
  clone->mlngTop = mlngTop;
  clone->mlngLeft = mlngLeft;
  clone->mlngHeight = mlngHeight;
  clone->mlngWidth = mlngWidth;
  return clone;
}

SharedProperties Notation::GetProperties() {
  PropertyBuilder records;
  const PropertyBuilder::Options yesNo = {{"True", true}, {"False", false}};
  records.Add("Caption", vntPropertyMultiLine, "Note text.", Caption);
  records.Add("Alignment", vntPropertyNoteChoice, "Text alignment.", std::int32_t{Alignment}, {{"Left", 0}, {"Right", 1}, {"Center", 2}});
  records.Add("Appearance", vntPropertyNoteChoice, "Text alignment.", std::int32_t{Appearance}, {{"Flat", 0}, {"3D", 1}});
  records.Add("BackStyle", vntPropertyNoteChoice, "Back style.", std::int32_t{BackStyle}, {{"Transparent", 0}, {"Opaque", 1}});
  records.Add("BorderStyle", vntPropertyNoteChoice, "Border style.", std::int32_t{BorderStyle}, {{"None", 0}, {"Fixed Single", 1}});
  records.Add("BackColor", vntPropertyColor, "Background color.", BackColor);
  records.Add("ForeColor", vntPropertyColor, "Text color.", ForeColor);
  auto& font = records.Add("Font", vntPropertyText, "Font name.", Font);
  for (const auto& name : DesignerOf(Workflow).Host->FontNames()) {
    if (!font.Options.Contains(name)) font.AddOption(name, name);
  }
  records.Add("Size", vntPropertyNoteChoice, "Font Size.", Size);
  records.Add("Bold", vntPropertyYesNo, "Use bold font face.", Bold, yesNo);
  records.Add("Italics", vntPropertyYesNo, "Use italics.", Italics, yesNo);
  records.Add("Underline", vntPropertyYesNo, "Underline text.", Underline, yesNo);
  records.Add("Strikethrough", vntPropertyYesNo, "Strike out text.", Strikethrough, yesNo);
  records.Add("Tag", vntPropertyText, "", Tag);
  return records.Done();
}

bool Notation::StoreLook(const std::string& pstrPropName, const Variant& pvarValue) {
  if (pstrPropName == "Alignment") {
    Alignment = pvarValue.ToInt16();
  } else if (pstrPropName == "Appearance") {
    Appearance = pvarValue.ToInt16();
  } else if (pstrPropName == "BackColor") {
    BackColor = pvarValue.ToInt32();
  } else if (pstrPropName == "BackStyle") {
    BackStyle = pvarValue.ToInt16();
  } else if (pstrPropName == "BorderStyle") {
    BorderStyle = pvarValue.ToInt16();
  } else if (pstrPropName == "ForeColor") {
    ForeColor = pvarValue.ToInt32();
  } else {
    return false;
  }
  return true;
}

void Notation::StoreText(const std::string& pstrPropName, const Variant& pvarValue) {
  if (pstrPropName == "Font") {
    Font = pvarValue.ToText();
  } else if (pstrPropName == "Size") {
    Size = pvarValue.ToInt32();
  } else if (pstrPropName == "Underline") {
    Underline = pvarValue.ToBoolean();
  } else if (pstrPropName == "Strikethrough") {
    Strikethrough = pvarValue.ToBoolean();
  } else if (pstrPropName == "Bold") {
    Bold = pvarValue.ToBoolean();
  } else if (pstrPropName == "Italics") {
    Italics = pvarValue.ToBoolean();
  } else if (pstrPropName == "Caption") {
    Caption = pvarValue.ToText();
  } else if (pstrPropName == "Tag") {
    Tag = pvarValue.ToText();
  }
}

void Notation::SetProperty(const std::string& pstrPropName, const Variant& pvarValue) {
  const auto keeper = KeepAlive();
  const bool stored = Guarded([&] {
    if (!StoreLook(pstrPropName, pvarValue)) StoreText(pstrPropName, pvarValue);
  });
  if (!stored) return;
  Dirty = true;
  if (Workflow) Workflow->Dirty(true);
  Draw();
}

}  // namespace vantrel

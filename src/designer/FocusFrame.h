// The frame round the element that has the focus.
#pragma once

#include <array>
#include <cstdint>
#include <string>

#include "chart/Element.h"
#include "chart/Geometry.h"
#include "toolkit/Pointer.h"
#include "util/Event.h"
#include "util/Ref.h"

namespace vantrel {

class Label;
class Vantrel;

/// Drawn in front of all elements of the chart. Round a label it shows eight handles that resize it, and a text box to edit its text in
/// place; round anything else an outline. Twips on the chart.
class FocusFrame {
 public:
  static constexpr std::int32_t kHandles = 8;
  static constexpr float kHandleSize = 6 * kTwipsPerPixel;
  static constexpr float kSmallestLabel = 200;  ///< the handles make no side of a label smaller

  explicit FocusFrame(Vantrel& pobjControl);
  FocusFrame(const FocusFrame&) = delete;
  FocusFrame& operator=(const FocusFrame&) = delete;

  const Ref<Element>& SelectedControl() const { return mobjSelected; }
  /// Frames the element and shows the frame, or hides it for null. Closes the text box.
  void SelectedControl(const Ref<Element>& pobjElement);
  /// Fits the frame round its element again, if there is one.
  void FrameControl();
  /// Also false when its element is gone.
  bool Visible() const;
  void Visible(bool pblnOn);

  std::int32_t InnerLeft() const { return mlngInnerLeft; }
  void InnerLeft(std::int32_t plngMargin);
  std::int32_t InnerTop() const { return mlngInnerTop; }
  void InnerTop(std::int32_t plngMargin);
  std::int32_t InnerWidth() const { return mlngInnerWidth; }
  void InnerWidth(std::int32_t plngWidth);
  std::int32_t InnerHeight() const { return mlngInnerHeight; }
  void InnerHeight(std::int32_t plngHeight);

  /// The whole frame, handles included; the outline; a handle's square.
  Rect Bounds() const;
  Rect Outline() const;
  Rect Handle(std::int32_t plngIndex) const;
  bool ShowsHandles() const;
  static PointerShape PointerOf(std::int32_t plngHandle);
  /// The handle under a point, or -1.
  std::int32_t HandleAt(float psngX, float psngY) const;

  /// Moves a handle by so much while the left button holds it. Does nothing when a side of the label that the handle moves is or would
  /// become too small.
  void DragHandle(std::int32_t plngIndex, float psngX, float psngY);
  /// The button was released: raises OnResized.
  void ReleaseHandle();

  /// Shows the text box over a framed label with the text that it edits: a caption; a guard without its brackets; a weight.
  void Edit();
  bool IsEditing() const { return mblnEditing; }
  /// Whether the text box has several lines: for a note, with Comfort::NotesHaveLines.
  bool EditsLines() const;
  const std::string& EditedText() const { return mstrText; }  ///< what the text box starts with
  /// Stores the text of the text box in the label's object and closes the box. An unchanged text changes nothing.
  void EndEdit(const std::string& pstrText);
  /// Closes the text box without effect.
  void CancelEdit();
  /// True from a press on a handle until a press elsewhere.
  bool HasFocus() const { return mblnFocus && Visible(); }
  /// Whether keys go to the frame rather than to the chart: while it has the focus, unless Comfort::ChosenIsSeen is on.
  bool TakesKeys() const;
  void HasFocus(bool pblnOn) { mblnFocus = pblnOn; }
  /// A key while the frame has the focus: Escape hides it, Delete clears a label's text or deletes an image's object. False for others.
  bool Key(std::int16_t pintCode);

  Event<float, float> OnResized;  ///< pHeight, pWidth
  Event<const Rect&> OnDamaged;   ///< to be painted again
  Event<> OnEditing;              ///< the text box appeared, moved or went

 private:
  Label* FramedLabel() const;
  void Store(const std::string& pstrText);
  template <class Change>
  void Alter(Change&& pChange);

  Vantrel& mobjControl;
  Ref<Element> mobjSelected;
  std::string mstrText;
  std::int32_t mlngInnerLeft, mlngInnerTop, mlngInnerWidth = 0, mlngInnerHeight = 0;
  float msngLeft = 0, msngTop = 0;
  bool mblnVisible = false;
  bool mblnEditing = false;
  bool mblnFocus = false;
};

}  // namespace vantrel

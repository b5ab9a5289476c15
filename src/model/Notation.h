// A free text note on the chart.
#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include "chart/Label.h"
#include "model/ChartObject.h"
#include "model/Forward.h"
#include "util/Color.h"
#include "util/Ref.h"

namespace vantrel {

class Recordset;

/// A box of text with its own font, colours, alignment and border. Takes no part in the token game. Shown by one label of
/// the chart; owned by the workflow's Notations.
class Notation final : public ChartObject {
 public:
  Notation() = default;
  /// Takes its label off the chart.
  ~Notation() override;

  std::int32_t RecId = 0;
  Ref<vantrel::Workflow> Workflow;
  Ref<Label> TextControl;
  std::int16_t Alignment = 0;   ///< 0 left, 1 right, 2 centre
  std::int16_t Appearance = 0;  ///< 0 flat, 1 three-dimensional
  Color BackColor = kBlack;
  std::int16_t BackStyle = 0;    ///< 0 transparent, 1 opaque
  std::int16_t BorderStyle = 0;  ///< 0 none, 1 fixed single
  Color ForeColor = kBlack;
  std::string Font = "Arial";  ///< empty takes the label's at the next Draw
  std::int32_t Size = 0;       ///< points
  bool Underline = false, Strikethrough = false, Bold = false, Italics = false;
  std::string Caption;  ///< the text
  std::string Tag;
  bool Protected = false;  ///< stored only
  bool Dirty = false;

  std::string Class() const override { return "VNTR.Notation.1"; }
  ChartKind Kind() const override { return ChartKind::Notation; }
  std::string NameText() const override { return Name(); }
  /// The key without its first eight characters; Error 5 for a shorter key.
  std::string Name() const;

  /// Twips. Setting moves or sizes the label at once.
  std::int32_t Top() const { return mlngTop; }
  void Top(std::int32_t plngTop);
  std::int32_t Left() const { return mlngLeft; }
  void Left(std::int32_t plngLeft);
  std::int32_t Height() const { return mlngHeight; }
  void Height(std::int32_t plngHeight);
  std::int32_t Width() const { return mlngWidth; }
  void Width(std::int32_t plngWidth);
  std::optional<Rect> Bounds() const override;
  /// To the nearest whole twips.
  void MoveTo(float psngLeft, float psngTop) override;
  /// The label's value; false without a label.
  bool Visible() const;
  void Visible(bool pblnOn);
  bool Selected() const override { return mblnSelected; }
  /// A border while selected, the note's own border style otherwise.
  void Selected(bool pblnOn) override;

  /// Copies all settings to the label. Does nothing without one.
  void Draw();
  /// A note of the same look, text and position, without key, workflow or label.
  std::shared_ptr<Notation> Clone() const;

  /// Copies the current row of the Notation table straight into the fields; Protected is not read. Throws Error for columns
  /// that cannot be read.
  void AssignValues(const Recordset& pobjRow);

  SharedProperties GetProperties() override;
  /// Redraws, even for an unknown name.
  void SetProperty(const std::string& pstrPropName, const Variant& pvarValue) override;

 private:
  bool StoreLook(const std::string& pstrPropName, const Variant& pvarValue);
  void StoreText(const std::string& pstrPropName, const Variant& pvarValue);

  std::int32_t mlngTop = 0, mlngLeft = 0, mlngHeight = 0, mlngWidth = 0;
  bool mblnSelected = false;
};

}  // namespace vantrel

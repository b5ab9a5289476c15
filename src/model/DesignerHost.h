// What the model asks of the control that shows it.
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "chart/Image.h"
#include "chart/Label.h"
#include "chart/Line.h"
#include "model/Enumerations.h"
#include "model/Forward.h"
#include "util/MsgBox.h"
#include "util/Ref.h"

namespace vantrel {

class WorkflowReader;

/// What the model knows of the designer control, reached as gobjVantrel. The functions here are those of the host used while there is no
/// control: it accepts everything, shows nothing, gives no elements and answers every question with "cancel".
class DesignerHost {
 public:
  virtual ~DesignerHost() = default;

  /// What reads the workflows that transitions embed; null without a database.
  virtual WorkflowReader* VNTRDB() { return nullptr; }
  /// The workflow shown; new places and transitions belong to it.
  virtual Ref<vantrel::Workflow> Workflow() const { return nullptr; }
  /// The position of new places and transitions, twips.
  virtual float CurrentX() const { return 200; }
  virtual float CurrentY() const { return 200; }

  /// Another control is about to show this one's workflow.
  virtual void LetGo() {}

  /// A workflow's dirty mark was set, perhaps to the same value.
  virtual void Dirty(vantrel::Workflow& /*pobjWorkflow*/, bool /*pblnDirty*/) {}
  /// Takes the process-wide use mode, gintUseMode.
  virtual void UseMode(UseModeConstant pintMode);
  /// Makes an element the current one, or none.
  virtual void CurrentControl(const Ref<Element>&) {}
  /// Gives a transition's action to the host application.
  virtual void RunAction(Transition&) {}

  /// New hidden elements on the chart, which owns them; null while there is no chart.
  virtual Ref<Image> NewImage() { return nullptr; }
  virtual Ref<Label> NewLabel() { return nullptr; }
  virtual Ref<Label> NewCountLabel() { return nullptr; }
  virtual Ref<Line> NewLine() { return nullptr; }
  virtual Ref<Image> NewHandle() { return nullptr; }

  /// Fits the focus frame round its element again, if it is visible.
  virtual void FrameControl() {}
  /// Names of the fonts on this system, in the system's order.
  virtual std::vector<std::string> FontNames() const { return {"Arial"}; }

  /// Tells the user what kept a firing from its end.
  virtual void Tell(const std::string& pstrText) { MsgBox(pstrText); }
  /// Asks the user for one of the options. Returns its text, or nothing when the user cancels.
  virtual std::optional<std::string> SelectOption(const std::string& /*pstrPrompt*/, const std::vector<std::string>& /*pcolOptions*/) {
    return std::nullopt;
  }
  /// A host that always takes the first case says so here: it is not asked while there is one, and the other candidates are not even
  /// gathered, which matters where a hundred thousand cases wait in one place.
  virtual bool TakesFirstCase() const { return false; }
  /// Shows the tokens that a transition could take, for the user to distribute by hand.
  virtual void SelectTokens(vantrel::Workflow& /*pobjWorkflow*/, Transition& /*pobjTransition*/) {}
};

}  // namespace vantrel

// The windows that the control opens.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "model/Forward.h"

namespace vantrel {

class ModelObject;
class Vantrel;

/// This class itself opens nothing and answers every question with "cancel".
class Dialogs {
 public:
  Dialogs() = default;
  Dialogs(const Dialogs&) = delete;
  Dialogs& operator=(const Dialogs&) = delete;
  virtual ~Dialogs() = default;

  /// The properties of an object, or of the control itself.
  virtual void ShowProperties(Vantrel& /*pobjControl*/, ModelObject& /*pobjObject*/) {}
  /// The tokens of a place.
  virtual void ShowTokens(Vantrel& /*pobjControl*/, Place& /*pobjPlace*/) {}
  /// See DesignerHost.
  virtual std::optional<std::string> SelectOption(const std::string& /*pstrPrompt*/, const std::vector<std::string>& /*pcolOptions*/) {
    return std::nullopt;
  }
  virtual void SelectTokens(Workflow& /*pobjWorkflow*/, Transition& /*pobjTransition*/) {}
  /// The picture at a transition that opens the list of its roles.
  virtual void LoadRolesImage(Vantrel& /*pobjControl*/, Transition& /*pobjTransition*/) {}
  virtual void DeleteRole(Vantrel& /*pobjControl*/) {}
  /// The control is being destroyed: closes its windows.
  virtual void CloseAll() {}
};

}  // namespace vantrel

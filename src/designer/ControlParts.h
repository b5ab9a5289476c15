// What a control keeps to itself: the operations of this folder work on it.
#pragma once

#include <memory>

#include "designer/ControlHost.h"
#include "designer/PastePlace.h"
#include "designer/Vantrel.h"

namespace vantrel {

class PopupMenus;

struct ControlParts {
  explicit ControlParts(Vantrel& pobjControl);
  ~ControlParts();
  ControlParts(const ControlParts&) = delete;
  ControlParts& operator=(const ControlParts&) = delete;

  ControlHost Host;                   // what the model reaches as gobjVantrel
  std::shared_ptr<PopupMenus> Menus;  // shared: an entry of a menu that is open may end the control
  std::shared_ptr<vantrel::Workflow> Workflow;
  Subscription TokenAdded;
  vantrel::PastePlace PastePlace;
  std::shared_ptr<ObjectCollection> Selection = std::make_shared<ObjectCollection>();
  Ref<Element> CurrentControl;
  std::shared_ptr<Object> CurrentObject;
  Color BackColor = kWhite;
  RunStyleConstant RunStyle = vntSilent;
  bool LockControls = false;
  bool RestrictTesting = false;
  bool InsertingArc = false;
  DesignerState State;  // shared with the model; goes before everything that the model could ask it for
};

inline ControlParts& PartsOf(const Vantrel& pobjControl) { return *pobjControl.mobjParts; }

}  // namespace vantrel

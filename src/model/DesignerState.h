// The state that the model shares with the control: one value per process, set by the control entered last.
#pragma once

#include <cstdint>

#include "chart/Picture.h"
#include "model/DesignerHost.h"

namespace vantrel {

/// A reference to a DesignerHost that is never null: without a control it leads to the built-in host.
class DesignerHostRef {
 public:
  DesignerHostRef() = default;
  DesignerHostRef(DesignerHost* pobjHost) : mobjHost(pobjHost) {}
  DesignerHost* operator->() const { return get(); }
  DesignerHost* get() const { return mobjHost ? mobjHost : &BuiltIn(); }
  friend bool operator==(const DesignerHostRef& a, const DesignerHost* b) { return a.mobjHost == b; }

 private:
  static DesignerHost& BuiltIn();
  DesignerHost* mobjHost = nullptr;
};

extern DesignerHostRef gobjVantrel;         ///< the control; whoever sets it takes it back before it dies
extern Ref<Workflow> gobjWorkflow;          ///< the workflow shown
extern const ImageList* gobjImageList;      ///< pictures that objects show; never null
extern WorkflowReader* gobjWorkflowReader;  ///< who is reading a workflow now; null while nobody is
extern UseModeConstant gintUseMode;         ///< vntDesign at first
extern std::int16_t gintInputPosition;      ///< ConnectorPosition given to new objects; every setting of one changes it
extern std::int16_t gintOutputPosition;

/// Puts the state back to what it was at its creation when it goes out of scope.
class DesignerStateScope {
 public:
  DesignerStateScope();
  ~DesignerStateScope();
  DesignerStateScope(const DesignerStateScope&) = delete;
  DesignerStateScope& operator=(const DesignerStateScope&) = delete;

 private:
  DesignerHostRef mobjVantrel;
  Ref<Workflow> mobjWorkflow;
  const ImageList* mobjImageList;
  UseModeConstant mintUseMode;
  std::int16_t mintInputPosition, mintOutputPosition;
};

}  // namespace vantrel

#include "model/DesignerState.h"

#include "model/Workflow.h"

namespace vantrel {

namespace {

const ImageList& OwnImages() {
  static const ImageList images = ImageList::VantrelImages();
  return images;
}

}  // namespace

void DesignerHost::UseMode(UseModeConstant pintMode) { gintUseMode = pintMode; }

DesignerHost& DesignerHostRef::BuiltIn() {
  static DesignerHost host;
  return host;
}

DesignerHostRef gobjVantrel;
Ref<Workflow> gobjWorkflow;
const ImageList* gobjImageList = &OwnImages();
WorkflowReader* gobjWorkflowReader = nullptr;
UseModeConstant gintUseMode = vntDesign;
std::int16_t gintInputPosition = vntLeft;
std::int16_t gintOutputPosition = vntRight;

DesignerStateScope::DesignerStateScope()
    : mobjVantrel(gobjVantrel),
      mobjWorkflow(gobjWorkflow),
      mobjImageList(gobjImageList),
      mintUseMode(gintUseMode),
      mintInputPosition(gintInputPosition),
      mintOutputPosition(gintOutputPosition) {}

DesignerStateScope::~DesignerStateScope() {
  gobjVantrel = mobjVantrel;
  gobjWorkflow = mobjWorkflow;
  gobjImageList = mobjImageList;
  gintUseMode = mintUseMode;
  gintInputPosition = mintInputPosition;
  gintOutputPosition = mintOutputPosition;
}

}  // namespace vantrel

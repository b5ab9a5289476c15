#include "app/window/WindowCommands.h"

#include "app/window/HelpTexts.h"
#include "designer/CommandRules.h"
#include "designer/Commands.h"
#include "qt/ChartView.h"

namespace vantrel {

namespace {

namespace Ids = CommandIds;
using Parts = WindowParts;
using Lines = std::vector<WindowCommand>;

constexpr double kZoomStep = 1.2;  // as the wheel's

void ShowStored(const Parts& pobjParts) {
  if (auto* const dock = pobjParts.Stored.parentWidget()) dock->show();
  pobjParts.Stored.Search();
}

// What the list has chosen, while the user is in it; otherwise what the chart shows.
void DeleteStored(const Parts& pobjParts) {
  const bool isInList = pobjParts.Stored.isAncestorOf(pobjParts.Window.focusWidget());
  const std::int32_t id = isInList ? pobjParts.Stored.Chosen().value_or(0) : pobjParts.Files.ShownId();
  if (id != 0) return static_cast<void>(pobjParts.Files.Delete(id));
  emit pobjParts.Files.Told("Nothing to delete: this workflow is not stored, and the list has none chosen.");
}

bool CanEditText(const Vantrel& pobjControl) { return CanInsert(pobjControl) && pobjControl.CurrentControl(); }
bool ShowsWeights(const Vantrel& pobjControl) { return pobjControl.ShowWeights(); }
bool ShowsGuards(const Vantrel& pobjControl) { return pobjControl.ShowGuards(); }

void ToggleWeights(const Parts& pobjParts) {
  Vantrel& control = pobjParts.Designer.Control();
  control.ShowWeights(!control.ShowWeights());
}

void ToggleGuards(const Parts& pobjParts) {
  Vantrel& control = pobjParts.Designer.Control();
  control.ShowGuards(!control.ShowGuards());
}

void ZoomBy(const Parts& pobjParts, double pdblFactor) {
  ChartView& view = pobjParts.Designer.View();
  view.Zoom(view.Zoom() * pdblFactor);
}

Lines FileMenu() {
  return {
      {Ids::New, "&New", "New", "Ctrl+N", [](const Parts& parts) { parts.Files.New(); }},
      {"open", "&Open…", "", "Ctrl+O", ShowStored},
      {"import", "&Import…", "Import", "Ctrl+I", [](const Parts& parts) { parts.Files.AskForImport(); }},
      {},
      {Ids::Save, "&Save", "Save", "Ctrl+S", [](const Parts& parts) { parts.Files.Save(); }, HasWorkflow},
      {"save-as-new", "Save &as new", "", "Ctrl+Shift+S", [](const Parts& parts) { parts.Files.SaveAsNew(); }, HasWorkflow},
      {"delete-stored", "&Delete from the database…", "", "", DeleteStored},
      {},
      {"export-picture", "Export &picture…", "Picture", "Ctrl+E", [](const Parts& parts) { parts.Files.AskForPicture(); }, HasWorkflow},
      {"export-net", "Export n&et…", "", "Ctrl+Shift+E", [](const Parts& parts) { parts.Files.AskForExport(); }, HasWorkflow},
      {},
      {"quit", "&Quit", "", "Ctrl+Q", [](const Parts& parts) { parts.Window.close(); }},
  };
}

Lines EditMenu() {
  return {
      {Ids::Copy, "&Copy", "Copy"},
      {Ids::Paste, "&Paste", "Paste"},
      {Ids::Delete, "&Delete", "Delete"},
      {Ids::SelectAll, "Select &All", "SelectAll"},
      {},
      {"edit-text", "&Text", "", "F2", [](const Parts& parts) { parts.Designer.View().EditText(); }, CanEditText},
      {},
      {Ids::Properties, "P&roperties"},
  };
}

Lines InsertMenu() {
  return {
      {Ids::InsertPlace, "Insert &Place", "Place"},
      {Ids::InsertTransition, "Insert &Transition", "Transition"},
      {Ids::InsertArc, "Insert &Arc", "Arc"},
      {},
      {Ids::InsertElbow, "Insert &Elbow", "InsertElbow"},
      {Ids::RemoveElbow, "&Remove Elbow", "RemoveElbow"},
      {},
      {Ids::AddNotation, "Add &Notation", "Note"},
  };
}

Lines FormatMenu() {
  return {
      {Ids::AlignHorizontal, "Align &Horizontal", "AlignHorizontal"},
      {Ids::AlignVertical, "Align &Vertical", "AlignVertical"},
      {},
      {Ids::Backcolor, "&Backcolor…", "Backcolor"},
      {},
      {Ids::LockControls, "&Lock controls", "Lock"},
      {},
      {Ids::Test, "&Test"},
  };
}

Lines ViewMenu() {
  return {
      {"zoom-in", "Zoom &in", "ZoomIn", "Ctrl++; Ctrl+=", [](const Parts& parts) { ZoomBy(parts, kZoomStep); }},
      {"zoom-out", "Zoom &out", "ZoomOut", "Ctrl+-", [](const Parts& parts) { ZoomBy(parts, 1 / kZoomStep); }},
      {"zoom-actual", "&Actual size", "", "Ctrl+0", [](const Parts& parts) { parts.Designer.View().Zoom(1); }},
      {"zoom-fit", "&Fit to window", "ZoomFit", "Ctrl+9", [](const Parts& parts) { parts.Designer.View().FitToWindow(); }},
      {},
      {"show-weights", "Show &weights", "", "", ToggleWeights, HasWorkflow, ShowsWeights},
      {"show-guards", "Show &guards", "", "", ToggleGuards, HasWorkflow, ShowsGuards},
      {},
  };
}

Lines HelpMenu() {
  return {
      {"help-keys", "&Mouse and keys", "", "F1", [](const Parts& parts) { ShowKeys(&parts.Window); }},
      {"about", "&About Vantrel", "", "", [](const Parts& parts) { ShowAbout(&parts.Window); }},
  };
}

}  // namespace

const std::vector<WindowMenu>& AllWindowMenus() {
  static const std::vector<WindowMenu> menus = {{"&File", FileMenu()},     {"&Edit", EditMenu()}, {"&Insert", InsertMenu()},
                                                {"F&ormat", FormatMenu()}, {"&View", ViewMenu()}, {"&Help", HelpMenu()}};
  return menus;
}

}  // namespace vantrel

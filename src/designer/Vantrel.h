// The designer control: shows one workflow as a chart, lets the user edit and test it, and tells its host what happens.
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <string>

#include "chart/ChartSurface.h"
#include "designer/ChartInput.h"
#include "designer/Comfort.h"
#include "designer/Dialogs.h"
#include "designer/FocusFrame.h"
#include "designer/ScrollBar.h"
#include "designer/SelectionRectangle.h"
#include "designer/TestCommands.h"
#include "model/DesignerState.h"
#include "model/Workflow.h"
#include "persistence/VNTRDB.h"
#include "toolkit/Toolkit.h"

namespace vantrel {

struct ControlParts;

/// What a control's selection and clipboard hold: model objects under their keys.
using ObjectCollection = Collection<ModelObject>;

/// A control is a plain object; a view (the Qt widget, or a test) shows its parts and feeds Input. Several may live in one
/// process: each has its own state, which the objects of its workflow use. For one thread.
///
/// Hosts may read and write fields without side effects. Operations throw Error as documented. Input by mouse and keyboard never throws:
/// its errors are shown in message boxes.
class Vantrel final : public ModelObject {
  std::unique_ptr<ControlParts> mobjParts;

 public:
  /// The toolkit must outlive the control. Between two calls the newest control's state is the process-wide one.
  explicit Vantrel(Toolkit& pobjToolkit);
  ~Vantrel() override;

  const vantrel::ImageList*& ImageList;  ///< VantrelImages at first; never null
  const vantrel::ImageList* RolesImageList = nullptr;
  ChartSurface ChartArea;
  vantrel::FocusFrame FocusFrame;
  vantrel::SelectionRectangle MultiSelect;  ///< the rubber band
  ScrollBar HScroll, VScroll;
  ChartInput Input;
  bool MultiSelectOn = false;               ///< a selection made with the rubber band is still current
  float CurrentX = 200, CurrentY = 200;     ///< position of the next object, twips
  bool RefreshOn = true;                    ///< false while the chart is being built
  bool mblnDirty = false;                   ///< what Dirty reads; writing it raises no event
  std::shared_ptr<vantrel::VNTRDB> VNTRDB;  ///< offered to the host; reads embedded workflows
  bool CaseTestingEnabled = false;          ///< GetProperties also offers KeepHistory and CaseTracking
  bool EnablePopups = false, PropertyPopupEnabled = false;
  vantrel::Comfort Comfort;                             ///< all off at first
  std::shared_ptr<vantrel::Object> DragObject;          ///< what the host drags over the chart
  std::shared_ptr<ObjectCollection> Clipboard;          ///< null only if a host sets it to null; outlives workflow changes
  std::shared_ptr<vantrel::Dialogs> Dialogs;            ///< never null; does nothing at first
  std::shared_ptr<vantrel::TestCommands> TestCommands;  ///< never null; does nothing at first
  /// Called by "New" of the design menu before it replaces what is shown; false keeps it. Empty: "New" always replaces.
  std::function<bool()> MayReplaceWorkflow;

  std::string Class() const override { return "VNTR.Vantrel.1"; }
  std::string NameText() const override { return "Vantrel"; }
  std::string Name() const { return "Vantrel"; }

  /// Shows a workflow, or none: the only way in which a chart is built. The control shares it with the host.
  const std::shared_ptr<vantrel::Workflow>& Workflow() const;
  void Workflow(const std::shared_ptr<vantrel::Workflow>& pobjWorkflow);
  UseModeConstant UseMode() const;
  void UseMode(UseModeConstant pintMode);
  static std::string UseModeName(std::int32_t plngMode);
  bool Dirty() const { return mblnDirty; }
  /// Raises OnDirtyChange, even if unchanged.
  void Dirty(bool pblnDirty);
  /// The workflow's value; false without one. Setting needs a workflow (Error 91).
  bool ShowWeights() const;
  void ShowWeights(bool pblnOn);
  bool ShowGuards() const;
  void ShowGuards(bool pblnOn);
  Color BackColor() const;
  void BackColor(Color plngColor);
  RunStyleConstant RunStyle() const;
  void RunStyle(RunStyleConstant pStyle);
  bool LockControls() const;
  void LockControls(bool pblnOn);
  /// True lets object images made from now on take what the host drags.
  bool ContentsEnabled() const { return ChartArea.ctlImage.Template().AcceptsDrops(); }
  void ContentsEnabled(bool pblnOn) { ChartArea.ctlImage.Template().AcceptsDrops(pblnOn); }
  bool RestrictTesting() const;
  void RestrictTesting(bool pblnOn);
  const std::shared_ptr<vantrel::Object>& CurrentObject() const;
  void CurrentObject(const std::shared_ptr<vantrel::Object>& pobjObject);
  /// The element that the user clicked last. Setting it selects its object and frames it.
  const Ref<Element>& CurrentControl() const;
  void CurrentControl(const Ref<Element>& pobjElement);
  /// Never null. Setting null clears every mark.
  const std::shared_ptr<ObjectCollection>& Selection() const;
  void Selection(const std::shared_ptr<ObjectCollection>& pcolObjects);

  /// The model object of a key, or null for an unknown class word. Error 5 for an unknown key.
  std::shared_ptr<ModelObject> GetVNTRObject(const std::string& pstrKey) const;
  SharedProperties GetProperties() override;
  void SetProperty(const std::string& pstrPropName, const Variant& pvarValue) override;

  /// Makes and shows the default workflow: a start place, a transition after it, and an end place.
  std::shared_ptr<vantrel::Workflow> NewWorkflow();
  void Clear();
  /// Redraws everything, except in run mode. Errors end it silently.
  void Refresh();
  void Reset();
  /// Lets the user choose the background colour.
  void SetBackcolor();
  /// Moves everything to where no coordinate is negative, and fits the scroll bars.
  void FitChart();
  /// Widens the scroll bars to objects that were moved.
  void ExtendScrollRange();
  /// Gives an object of the workflow its elements.
  void BindPlace(Place& pobjPlace);
  void BindTransition(Transition& pobjTransition);
  void BindArc(Arc& pobjArc);
  void BindNotation(Notation& pobjNotation);

  std::shared_ptr<Place> InsertPlace(const std::string& pstrCaption = {});
  std::shared_ptr<Transition> InsertTransition(const std::string& pstrCaption = {});
  /// Null, with a message, when the rules forbid it.
  std::shared_ptr<Arc> InsertArc(const std::shared_ptr<ModelObject>& pobjFrom, const std::shared_ptr<ModelObject>& pobjTo);
  void StartArcInsert();
  std::shared_ptr<Notation> AddNotation();
  void InsertElbow();
  void RemoveElbow();
  void Delete();
  void DeleteObject(const std::shared_ptr<ModelObject>& pobjObject);

  /// The objects wholly inside the rubber band.
  std::shared_ptr<ObjectCollection> GetSelections() const;
  std::shared_ptr<ObjectCollection> SelectAll();
  bool InSelections(const std::shared_ptr<ModelObject>& pobjObject) const;
  void Copy();
  void Paste();
  void AlignSelection(const std::string& pstrDirection);

  /// While true, the next press on an object image completes an arc.
  bool IsInsertingArc() const;
  /// Ends the arc gesture: flag, rubber-band line and pointer.
  void EndArcInsert();
  /// The design pop-up, with its entries enabled for the situation: for pop-ups as well as for a menu bar.
  MenuItem& DesignMenu();
  MenuItem& TestMenu();
  MenuItem& RoleMenu();
  void ShowDesignMenu();
  void ShowTestMenu();
  /// Opens the properties dialog, when PropertyPopupEnabled.
  void ShowObjectProperties();
  /// Sets the control's size, twips, and lays out chart and scroll bars.
  void Resize(float psngWidth, float psngHeight);
  Toolkit& Tools() const { return mobjToolkit; }

  // Events wait until the outermost call of a control is over and are then delivered in the order in which they were raised. Listeners
  // find the operation done and may do anything, even close the control, which then delivers no more. Events of changes that the host
  // makes to the model itself are delivered at once. What a listener throws reaches the caller after all listeners were called; users
  // see it in a message box. While a listener runs an event loop, calls made from there deliver the waiting events when they end.
  // These two are delivered during a firing, which needs their effect:
  Event<const std::string&, const std::shared_ptr<Transition>&> OnRunCommand;  ///< an action for the host to run; not raised yet
  Event<const std::shared_ptr<Place>&, const std::shared_ptr<Token>&> OnTokenAdded;

  Event<const std::shared_ptr<vantrel::Object>&, std::int16_t, std::int16_t, float, float>
      OnObjectDragDrop;                 ///< pobjDragObject, Button, Shift, X, y: dropped on the background
  Event<const std::string&> OnMessage;  ///< never raised
  Event<const std::shared_ptr<Transition>&> OnTransitionDblClick;
  Event<const std::shared_ptr<vantrel::Object>&, const std::shared_ptr<vantrel::Object>&> OnObjectDropped;  ///< target, source
  Event<const std::shared_ptr<Transition>&, const std::string&> OnContentsClick;
  /// The object selected or right-clicked; the control itself for the background. It lives until all listeners were called.
  Event<ModelObject&> OnSelected, OnRightClick;
  Event<const std::shared_ptr<ObjectCollection>&> OnPasted;
  Event<const std::shared_ptr<Arc>&> OnArcInserted;
  Event<UseModeConstant> OnUseModeChange;
  Event<bool> OnDirtyChange;

 private:
  friend ControlParts& PartsOf(const Vantrel& pobjControl);

  Toolkit& mobjToolkit;
};

}  // namespace vantrel

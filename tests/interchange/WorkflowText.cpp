#include "WorkflowText.h"

#include <iomanip>
#include <map>
#include <sstream>

#include "model/ArcChain.h"

namespace vantrel::test {
namespace {

class WorkflowWriter {
 public:
  std::string Write(const Workflow& pobjWorkflow) {
    mText << std::hexfloat << std::boolalpha;
    WriteWorkflow(pobjWorkflow);
    return mText.str();
  }

 private:
  template <class... T>
  void Line(const char* pstrWhat, const T&... pValues) {
    mText << pstrWhat;
    (Value(pValues), ...);
    mText << '\n';
  }
  void Value(const std::string& pstrText) { mText << ' ' << std::quoted(pstrText); }
  void Value(const Variant& pvarValue) {
    static constexpr const char* kKinds[] = {"null", "text", "boolean", "date", "number"};
    const bool is[] = {pvarValue.IsNull(), pvarValue.IsText(), pvarValue.IsBoolean(), pvarValue.IsDate(), pvarValue.IsNumber()};
    for (std::size_t i = 0; i < std::size(is); ++i) {
      if (is[i]) mText << ' ' << kKinds[i] << (is[i] && i > 0 ? pvarValue.ToText() : "");
    }
  }
  template <class T>
  requires std::is_arithmetic_v<T> || std::is_enum_v<T>
  void Value(T pValue) { mText << ' ' << pValue + 0; }  // both zeros are one

  void WriteWorkflow(const Workflow& pobjWorkflow) {
    const auto nameOf = [](const Ref<Place>& place) { return place ? place->Name() + '#' + place->Key : std::string(); };
    Line("workflow", nameOf(pobjWorkflow.StartPlace), nameOf(pobjWorkflow.EndPlace()), pobjWorkflow.CaseTracking, pobjWorkflow.KeepHistory,
         pobjWorkflow.ShowGuards, pobjWorkflow.ShowWeights, pobjWorkflow.RunStyle, pobjWorkflow.LockControls, pobjWorkflow.Tag,
         pobjWorkflow.Status, pobjWorkflow.DivisionId, pobjWorkflow.DateEffective.Milliseconds());
    for (const auto& place : pobjWorkflow.Places) WritePlace(*place);
    for (const auto& transition : pobjWorkflow.Transitions) WriteTransition(*transition);
    for (const auto& arc : pobjWorkflow.Arcs) {
      if (arc->Place && arc->Transition) WriteArc(*arc);
    }
    for (const auto& note : pobjWorkflow.Notations) WriteNote(*note);
    Line("end");
  }

  void WriteNode(const Node& pobjNode) {
    Line(" at", pobjNode.Left(), pobjNode.Top(), pobjNode.CaptionOffsetLeft(), pobjNode.CaptionOffsetTop(), pobjNode.CaptionHeight,
         pobjNode.CaptionWidth, pobjNode.InputPosition(), pobjNode.OutputPosition());
    Line(" texts", pobjNode.Name(), pobjNode.Caption(), pobjNode.Description, pobjNode.Tag, pobjNode.HiddenTag, pobjNode.EnabledImageKey,
         pobjNode.DisabledImageKey);
  }

  void WriteRecords(const PropertyCollection& pcolRecords) {
    for (const auto& record : pcolRecords) {
      Line("  property", record->Name, record->Caption, record->Type, record->Description, record->Attributes, record->ReadOnly,
           record->Value);
      for (const auto& option : record->Options) Line("   option", option->Prompt, option->Value);
    }
  }

  void WritePlace(const Place& pobjPlace) {
    Line("place", pobjPlace.SelectionType, pobjPlace.TokenValue);
    WriteNode(pobjPlace);
    WriteRecords(*pobjPlace.TokenProperties);
  }

  void WriteTransition(const Transition& pobjTransition) {
    Line("transition", pobjTransition.TriggerType(), pobjTransition.OutputType(), pobjTransition.Action, pobjTransition.Duration,
         pobjTransition.DurationStdDev, pobjTransition.ComputationLevel, pobjTransition.ObjectClassName, pobjTransition.ObjectName);
    WriteNode(pobjTransition);
    if (pobjTransition.Roles) {
      Line(" roles");
      WriteRecords(*pobjTransition.Roles);
    }
    const auto* inner = dynamic_cast<const Workflow*>(pobjTransition.Object().get());
    if (!inner) return;
    const auto [known, isNew] = mEmbedded.emplace(inner, static_cast<int>(mEmbedded.size()));
    Line(" embeds", known->second);
    if (isNew) WriteWorkflow(*inner);
  }

  void WriteArc(const Arc& pobjArc) {
    Line("arc", pobjArc.ArcDirection, pobjArc.Place->Name(), pobjArc.Transition->Name(), pobjArc.Weight(), pobjArc.Guard(),
         pobjArc.Description, pobjArc.Tag, pobjArc.HiddenTag, pobjArc.StdPath);
    Line(" labels", pobjArc.CaptionOffsetX(), pobjArc.CaptionOffsetY(), pobjArc.CaptionHeight(), pobjArc.CaptionWidth(),
         pobjArc.WeightOffsetX(), pobjArc.WeightOffsetY(), pobjArc.WeightHeight(), pobjArc.WeightWidth());
    for (const Vector* segment : ChainOf(pobjArc)) Line(" segment", segment->X1(), segment->Y1(), segment->X2(), segment->Y2());
  }

  void WriteNote(const Notation& pobjNote) {
    Line("note", pobjNote.Caption, pobjNote.Left(), pobjNote.Top(), pobjNote.Width(), pobjNote.Height(), pobjNote.Alignment,
         pobjNote.Appearance, pobjNote.BackColor, pobjNote.BackStyle, pobjNote.BorderStyle, pobjNote.ForeColor, pobjNote.Font,
         pobjNote.Size, pobjNote.Bold, pobjNote.Italics, pobjNote.Underline, pobjNote.Strikethrough, pobjNote.Protected, pobjNote.Tag);
  }

  std::ostringstream mText;
  std::map<const Workflow*, int> mEmbedded;
};

}  // namespace

std::string TextOf(const Workflow& pobjWorkflow) { return WorkflowWriter().Write(pobjWorkflow); }

}  // namespace vantrel::test

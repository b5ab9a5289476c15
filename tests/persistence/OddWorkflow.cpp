#include "persistence/OddWorkflow.h"

#include <limits>
#include <random>
#include <set>
#include <sstream>

#include "model/Nets.h"

namespace vantrel::test {

namespace {

class Odd {
 public:
  explicit Odd(unsigned plngSeed) : mRandom(plngSeed) {}

  std::size_t Below(std::size_t plngLimit) { return mRandom() % plngLimit; }
  bool Flag() { return Below(2) == 1; }
  std::string Text() {
    static const char* const texts[] = {"",
                                        "'",
                                        "'); DROP TABLE Place; --",
                                        "two\nlines\r\n",
                                        "\xF0\x9F\x98\x80 \xC3\xBC",
                                        "\"[x]\" #2020-01-01#",
                                        "\\' %",
                                        "a;b",
                                        "  blanks  ",
                                        "NULL",
                                        "True",
                                        "\t`$1 ?"};
    return texts[Below(std::size(texts))];
  }
  float Single() {
    static const float singles[] = {0,    -1.5F,  1234.5F,  120,     3.4028235e38F, -3.4028235e38F, 1.17549435e-38F,
                                    0.1F, 1e-20F, 16777216, -0.001F, 1e20F,         33.333332F,     std::numeric_limits<float>::epsilon()};
    return singles[Below(std::size(singles))];
  }
  double Double() {
    static const double doubles[] = {0, 0.1, -1e300, 1.7976931348623157e308, 2.2250738585072014e-308, 1.0 / 3};
    return doubles[Below(std::size(doubles))];
  }
  std::int32_t Integer() {
    static const std::int32_t integers[] = {0, 1, -1, 2147483647, -2147483647 - 1, 70000};
    return integers[Below(std::size(integers))];
  }
  std::int16_t Short() {
    static const std::int16_t shorts[] = {0, 1, -1, 32767, -32768};
    return shorts[Below(std::size(shorts))];
  }

 private:
  std::mt19937 mRandom;
};

void FillNode(Node& pobjNode, Odd& pOdd) {
  pobjNode.AssignName(pOdd.Text() + pobjNode.Key);
  pobjNode.Caption(pOdd.Text());
  pobjNode.Description = pOdd.Text();
  pobjNode.Top(pOdd.Single());
  pobjNode.Left(pOdd.Single());
  pobjNode.InputPosition(pOdd.Short());
  pobjNode.OutputPosition(pOdd.Short());
  pobjNode.CaptionOffsetTop(pOdd.Single());
  pobjNode.CaptionOffsetLeft(pOdd.Single());
  pobjNode.EnabledImageKey = pOdd.Text();
  pobjNode.DisabledImageKey = pOdd.Text();
}

void FillPlace(Place& pobjPlace, Odd& pOdd) {
  FillNode(pobjPlace, pOdd);
  pobjPlace.SelectionType = static_cast<SelectionTypes>(pOdd.Integer());
  for (std::size_t i = pOdd.Below(3); i > 0; --i) {
    const auto record = std::make_shared<PropertyRecord>();
    record->Name = pOdd.Text() + std::to_string(i);
    record->Caption = pOdd.Text();
    record->Description = pOdd.Text();
    record->Type = pOdd.Integer();
    record->Value = pOdd.Text();
    record->Attributes = pOdd.Integer();
    for (std::size_t n = pOdd.Below(3); n > 0; --n) record->AddOption(pOdd.Text() + std::to_string(n), pOdd.Text());
    pobjPlace.TokenProperties->Add(record, record->Name);
  }
}

void FillTransition(Transition& pobjTransition, Odd& pOdd) {
  FillNode(pobjTransition, pOdd);
  pobjTransition.ObjectClassName = pOdd.Text();
  pobjTransition.ObjectName = pOdd.Text();
  pobjTransition.OutputType(static_cast<OutputTypes>(pOdd.Integer()));
  pobjTransition.TriggerType(static_cast<TriggerTypes>(pOdd.Integer()));
  pobjTransition.Action = pOdd.Text();
  pobjTransition.Duration = pOdd.Double();
  pobjTransition.DurationStdDev = pOdd.Double();
}

void FillArc(Arc& pobjArc, Odd& pOdd) {
  pobjArc.Description = pOdd.Text();
  pobjArc.StdPath = pOdd.Flag();
  pobjArc.Guard(pOdd.Text());
  pobjArc.Weight(pOdd.Text());
  pobjArc.CaptionOffsetX(pOdd.Single());
  pobjArc.CaptionOffsetY(pOdd.Single());
  pobjArc.CaptionHeight(pOdd.Single());
  pobjArc.CaptionWidth(pOdd.Single());
  pobjArc.WeightOffsetX(pOdd.Single());
  pobjArc.WeightOffsetY(pOdd.Single());
  pobjArc.WeightHeight(pOdd.Single());
  pobjArc.WeightWidth(pOdd.Single());
  for (std::size_t bends = pOdd.Below(4); bends > 0; --bends) pobjArc.InsertVector(ShareOf(*pobjArc.Segments().back()));
  if (pobjArc.Segments().size() < 2) return;  // a straight arc stores no path
  for (Vector* segment : pobjArc.Segments()) {
    segment->Start(pOdd.Single(), pOdd.Single());
    segment->End(pOdd.Single(), pOdd.Single());
  }
}

void AddNote(Workflow& pobjNet, Odd& pOdd) {
  const auto note = pobjNet.NewNotation();
  note->Alignment = pOdd.Short();
  note->Appearance = pOdd.Short();
  note->BorderStyle = pOdd.Short();
  note->BackColor = pOdd.Integer();
  note->ForeColor = pOdd.Integer();
  note->Font = pOdd.Text();
  note->Size = pOdd.Integer();
  note->Underline = pOdd.Flag();
  note->Strikethrough = pOdd.Flag();
  note->Bold = pOdd.Flag();
  note->Italics = pOdd.Flag();
  note->Caption = pOdd.Text();
  note->Tag = pOdd.Text();
  note->Top(pOdd.Integer());
  note->Left(pOdd.Integer());
  note->Height(pOdd.Integer());
  note->Width(pOdd.Integer());
}

class Description {
 public:
  template <class... Values>
  void Line(const char* pstrWord, const Values&... pValues) {
    mText << pstrWord;
    ((mText << " <" << Variant(pValues).ToText() << ">"), ...);
    mText << '\n';
  }
  void NodeLine(const char* pstrWord, const Node& pobjNode) {
    Line(pstrWord, pobjNode.Name(), pobjNode.Caption(), pobjNode.Description, pobjNode.Top(), pobjNode.Left(), pobjNode.InputPosition(),
         pobjNode.OutputPosition(), pobjNode.CaptionOffsetTop(), pobjNode.CaptionOffsetLeft(), pobjNode.EnabledImageKey,
         pobjNode.DisabledImageKey);
  }
  std::string Text() const { return mText.str(); }

 private:
  std::ostringstream mText;
};

void Describe(Description& pText, const Place& pobjPlace) {
  pText.NodeLine("place", pobjPlace);
  pText.Line(" ", std::int32_t{pobjPlace.SelectionType});
  for (const auto& record : *pobjPlace.TokenProperties) {
    pText.Line("  definition", record->Name, record->Caption, record->Description, record->Type, record->Value, record->Attributes);
    for (const auto& option : record->Options) pText.Line("    option", option->Prompt, option->Value);
  }
}

void Describe(Description& pText, const Transition& pobjTransition) {
  pText.NodeLine("transition", pobjTransition);
  pText.Line(" ", pobjTransition.ObjectClassName, pobjTransition.ObjectName, std::int32_t{pobjTransition.OutputType()},
             std::int32_t{pobjTransition.TriggerType()}, pobjTransition.Action, pobjTransition.Duration, pobjTransition.DurationStdDev);
}

void Describe(Description& pText, const Arc& pobjArc) {
  pText.Line("arc", pobjArc.Place->Name(), pobjArc.Transition->Name(), std::int32_t{pobjArc.ArcDirection}, pobjArc.Description,
             pobjArc.Guard(), pobjArc.Weight(), pobjArc.CaptionOffsetX(), pobjArc.CaptionOffsetY(), pobjArc.CaptionHeight(),
             pobjArc.CaptionWidth(), pobjArc.WeightOffsetX(), pobjArc.WeightOffsetY(), pobjArc.WeightHeight(), pobjArc.WeightWidth());
  for (const Vector* segment : pobjArc.Segments()) pText.Line("  segment", segment->X1(), segment->Y1(), segment->X2(), segment->Y2());
}

void Describe(Description& pText, const Notation& pobjNote) {
  pText.Line("note", pobjNote.Alignment, pobjNote.Appearance, pobjNote.BorderStyle, pobjNote.BackColor, pobjNote.ForeColor, pobjNote.Font,
             pobjNote.Size, pobjNote.Underline, pobjNote.Strikethrough, pobjNote.Bold, pobjNote.Italics, pobjNote.Caption, pobjNote.Tag,
             pobjNote.Top(), pobjNote.Left(), pobjNote.Height(), pobjNote.Width());
}

// The database decides the order of rows that no statement orders.
template <class T>
std::string Sorted(const Collection<T>& pcolItems) {
  std::multiset<std::string> blocks;
  for (const auto& item : pcolItems) {
    Description text;
    Describe(text, *item);
    blocks.insert(text.Text());
  }
  std::string all;
  for (const auto& block : blocks) all += block;
  return all;
}

}  // namespace

std::shared_ptr<Workflow> OddWorkflow(unsigned plngSeed) {
  Odd odd(plngSeed);
  auto net = std::make_shared<Workflow>();
  net->CaseTracking = odd.Flag();
  net->KeepHistory = odd.Flag();
  net->ShowGuards = odd.Flag();
  net->ShowWeights = odd.Flag();
  net->RunStyle = static_cast<RunStyleConstant>(odd.Integer());
  net->LockControls = odd.Flag();
  if (plngSeed == 0) return net;
  for (std::size_t i = 1 + odd.Below(6); i > 0; --i) FillPlace(*AddPlace(*net), odd);
  for (std::size_t i = 1 + odd.Below(6); i > 0; --i) FillTransition(*AddTransition(*net), odd);
  for (std::size_t i = 1 + odd.Below(12); i > 0; --i) {
    const auto place = net->Places.Item(static_cast<std::int32_t>(1 + odd.Below(static_cast<std::size_t>(net->Places.Count()))));
    const auto transition =
        net->Transitions.Item(static_cast<std::int32_t>(1 + odd.Below(static_cast<std::size_t>(net->Transitions.Count()))));
    FillArc(*net->CreateArc(place, transition, odd.Flag() ? vntInArc : vntOutArc), odd);
  }
  for (std::size_t i = 1 + odd.Below(3); i > 0; --i) AddNote(*net, odd);
  if (odd.Flag()) net->StartPlace = net->Places.First();
  if (odd.Flag()) net->EndPlace(net->Places.Last());
  return net;
}

std::string Described(const Workflow& pobjWorkflow) {
  Description text;
  const auto nameOf = [](const Ref<Place>& place) { return place ? "place " + place->Name() : std::string("none"); };
  text.Line("workflow", nameOf(pobjWorkflow.StartPlace), nameOf(pobjWorkflow.EndPlace()), pobjWorkflow.CaseTracking,
            pobjWorkflow.KeepHistory, pobjWorkflow.ShowGuards, pobjWorkflow.ShowWeights, std::int32_t{pobjWorkflow.RunStyle},
            pobjWorkflow.LockControls);
  return text.Text() + Sorted(pobjWorkflow.Places) + Sorted(pobjWorkflow.Transitions) + Sorted(pobjWorkflow.Arcs) +
         Sorted(pobjWorkflow.Notations);
}

}  // namespace vantrel::test

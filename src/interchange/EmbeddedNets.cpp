#include "interchange/EmbeddedNets.h"

#include <algorithm>

namespace vantrel {

namespace {

constexpr int kDeepest = 256;  // the destructors of workflows that own each other run nested

}  // namespace

void EmbeddedNets::AddWorkflow(const std::string& pstrNet, const std::shared_ptr<Workflow>& pobjWorkflow) {
  mWorkflows.emplace(pstrNet, pobjWorkflow);
}

void EmbeddedNets::AddTransition(const std::shared_ptr<Transition>& pobjTransition, const std::string& pstrNet, PnmlSection pobjSection) {
  mUses.push_back({pobjTransition, nullptr, pobjSection});
  mWanted.push_back(pstrNet);
}

void EmbeddedNets::Link(const PnmlXml& pobjXml) {
  for (std::size_t i = 0; i < mUses.size(); ++i) {
    const auto found = mWorkflows.find(mWanted[i]);
    if (found == mWorkflows.end()) {
      pobjXml.Fail("the embedded net " + QuotedForMessage(mWanted[i]) + " is not there", pugi::xml_node(mUses[i].Section));
    }
    mUses[i].Inner = found->second;
  }
  CheckNesting(pobjXml);
  for (const Use& use : mUses) use.Where->Object(use.Inner);
}

// Removes level after level of workflows that no remaining one embeds (Kahn 1962). Only circles remain.
void EmbeddedNets::CheckNesting(const PnmlXml& pobjXml) const {
  std::unordered_map<const Workflow*, std::vector<const Use*>> within;
  std::unordered_map<const Workflow*, int> waiting;  // uses that hold a workflow
  for (const Use& use : mUses) {
    within[use.Where->Workflow.get()].push_back(&use);
    ++waiting[use.Inner.get()];
  }
  std::vector<const Workflow*> level;
  for (const auto& [outer, uses] : within) {
    if (!waiting.contains(outer)) level.push_back(outer);
  }
  std::size_t open = mUses.size();
  for (int depth = 0; open > 0; ++depth) {
    if (level.empty() || depth > kDeepest) {
      const auto* what = level.empty() ? "the transition embeds a net in itself" : "nets embedded deeper than 256 are refused";
      const auto held = std::find_if(mUses.begin(), mUses.end(), [&](const Use& use) { return waiting[use.Inner.get()] > 0; });
      pobjXml.Fail(what, pugi::xml_node(held->Section));
    }
    std::vector<const Workflow*> next;
    for (const Workflow* outer : level) {
      for (const Use* use : within[outer]) {
        --open;
        if (--waiting[use->Inner.get()] == 0) next.push_back(use->Inner.get());
      }
    }
    level = std::move(next);
  }
}

}  // namespace vantrel

#pragma once

#include <memory>
#include <string>
#include <unordered_map>
#include <vector>

#include "interchange/PnmlDocument.h"
#include "interchange/PnmlXml.h"
#include "model/Workflow.h"

namespace vantrel {

/// The workflows of one file, by the ids of their nets, and the transitions that embed them.
class EmbeddedNets {
 public:
  /// The workflow must stay until Link.
  void AddWorkflow(const std::string& pstrNet, const std::shared_ptr<Workflow>& pobjWorkflow);
  /// pobjSection is the transition's, for messages.
  void AddTransition(const std::shared_ptr<Transition>& pobjTransition, const std::string& pstrNet, PnmlSection pobjSection);

  /// Embeds. Throws PnmlError for a net that is not there, nets embedded in a circle, and nets embedded deeper than 256.
  void Link(const PnmlXml& pobjXml);

 private:
  struct Use {
    std::shared_ptr<Transition> Where;
    std::shared_ptr<Workflow> Inner;
    PnmlSection Section;
  };

  void CheckNesting(const PnmlXml& pobjXml) const;

  std::unordered_map<std::string, std::shared_ptr<Workflow>> mWorkflows;
  std::vector<Use> mUses;
  std::vector<std::string> mWanted;  // of each use, the net's id
};

}  // namespace vantrel

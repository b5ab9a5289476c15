// Writes workflows as PNML files.
#pragma once

#include <string>
#include <vector>

#include "interchange/InitialTokens.h"
#include "model/Workflow.h"

namespace vantrel {

/// What a file contains besides the workflow.
struct PnmlExportOptions {
  std::string NetId;                   ///< used if it is an XML name of ASCII letters, else "net"
  std::string NetName;                 ///< written as the net's name; none when empty
  std::vector<InitialTokens> Marking;  ///< written as initial marking; see MarkingOf
};

/// The workflow as one net on one page of a PNML document (ISO/IEC 15909-2, place/transition nets, UTF-8). What PNML cannot say goes into
/// sections of the tool "Vantrel" (docs/pnml.md). ImportPnml reads back every stored field except record ids, GUID and dirty marks; keys
/// are numbered anew in the same order. An embedded workflow is written once, even if several transitions share it. Other objects of the
/// host are not written, and of tokens only those of the marking. See also ArcsLeftOut.
[[nodiscard]] std::string ToPnml(const Workflow& pobjWorkflow, const PnmlExportOptions& pobjOptions = {});

/// Writes ToPnml to a file. Replaces an existing file in one step, or leaves it as it was when writing fails. Follows a link.
/// Throws Error 321, which names the file, when it cannot be written.
void ExportPnml(const Workflow& pobjWorkflow, const std::string& pstrPath, const PnmlExportOptions& pobjOptions = {});

/// The tokens in the workflow's places, for PnmlExportOptions::Marking, without the empty places.
[[nodiscard]] std::vector<InitialTokens> MarkingOf(const Workflow& pobjWorkflow);

/// One line for every arc that PNML cannot express, embedded workflows included: arcs without direction or without both ends in the
/// workflow.
[[nodiscard]] std::vector<std::string> ArcsLeftOut(const Workflow& pobjWorkflow);

}  // namespace vantrel

// From a workflow to a PNML file.
#pragma once

#include <string>
#include <vector>

#include "interchange/InitialTokens.h"
#include "model/Workflow.h"

namespace vantrel {

/// What goes into a file besides the workflow.
struct PnmlExportOptions {
  std::string NetId;                   ///< kept where it is an XML name of ASCII letters; "net" when empty or no such name
  std::string NetName;                 ///< written as the net's name; none when empty
  std::vector<InitialTokens> Marking;  ///< written as initial marking; see MarkingOf
};

/// The workflow as one net on one page of a PNML document (ISO/IEC 15909-2, place/transition nets, UTF-8). What PNML has no words for goes
/// into sections of the tool "Vantrel", docs/pnml.md has a table: ImportPnml gives back every stored field except record ids, GUID and
/// marks of change; keys are numbered anew in the same order. Embedded workflows are written once each, however many transitions share
/// them; other objects of the host are not written, nor are tokens but those of the marking. See also ArcsLeftOut.
std::string ToPnml(const Workflow& pobjWorkflow, const PnmlExportOptions& pobjOptions = {});

/// Writes ToPnml to a file; an existing one is replaced in one step and is left as it was when writing fails. A link is followed.
/// Throws Error 321 that names the file when it cannot be written.
void ExportPnml(const Workflow& pobjWorkflow, const std::string& pstrPath, const PnmlExportOptions& pobjOptions = {});

/// The tokens that lie in the workflow's places, for PnmlExportOptions::Marking; places without tokens are left out.
std::vector<InitialTokens> MarkingOf(const Workflow& pobjWorkflow);

/// One line for every arc that PNML cannot carry, embedded workflows included: arcs without direction or without both ends in the
/// workflow.
std::vector<std::string> ArcsLeftOut(const Workflow& pobjWorkflow);

}  // namespace vantrel

// Reads the sections of the tool "Vantrel" in a file. A section can be more exact than PNML, and counts only while both agree: where
// another tool has moved, renamed or bent something since, its change counts. Throws PnmlError for an invalid value; unknown settings are
// ignored.
#pragma once

#include <string>

#include "interchange/PnmlDocument.h"
#include "interchange/PnmlXml.h"
#include "model/Workflow.h"

namespace vantrel {

/// The section of an element, or an empty node. Sections of other tools and versions do not count.
pugi::xml_node FindSection(const pugi::xml_node& pobjElement);

bool HasSectionValue(PnmlSection pobjSection, const char* pstrName);
/// A value of a section's settings; empty if it is missing.
std::string SectionText(const PnmlXml& pobjXml, PnmlSection pobjSection, const char* pstrName);

/// pblnExact: the node stands where the file has it.
void ReadSection(const PnmlXml& pobjXml, const PnmlNode& pobjFrom, bool pblnExact, Place& pobjPlace);
void ReadSection(const PnmlXml& pobjXml, const PnmlNode& pobjFrom, bool pblnExact, Transition& pobjTransition);
/// pblnExact: the arc runs as the file has it.
void ReadSection(const PnmlXml& pobjXml, const PnmlArc& pobjFrom, bool pblnExact, Arc& pobjArc);
/// Reads settings and notes. The caller finds start, end and embedded nets.
void ReadSection(const PnmlXml& pobjXml, PnmlSection pobjSection, Workflow& pobjWorkflow);

}  // namespace vantrel

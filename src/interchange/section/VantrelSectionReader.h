// The sections of the tool "Vantrel" in a file, as read. What a section says more exactly than PNML can holds only while both agree: where
// another tool has moved, renamed or bent something since, its change counts. A value that is none throws PnmlError; settings that are
// unknown are passed over.
#pragma once

#include <string>

#include "interchange/PnmlDocument.h"
#include "interchange/PnmlXml.h"
#include "model/Workflow.h"

namespace vantrel {

/// The section of an element, or an empty node. Those of other tools and versions are none.
pugi::xml_node FindSection(const pugi::xml_node& pobjElement);

bool HasSectionValue(PnmlSection pobjSection, const char* pstrName);
/// A value out of a section's settings; empty where there is none.
std::string SectionText(const PnmlXml& pobjXml, PnmlSection pobjSection, const char* pstrName);

/// pblnExact: the node stands where the file has it.
void ReadSection(const PnmlXml& pobjXml, const PnmlNode& pobjFrom, bool pblnExact, Place& pobjPlace);
void ReadSection(const PnmlXml& pobjXml, const PnmlNode& pobjFrom, bool pblnExact, Transition& pobjTransition);
/// pblnExact: the arc runs as the file has it.
void ReadSection(const PnmlXml& pobjXml, const PnmlArc& pobjFrom, bool pblnExact, Arc& pobjArc);
/// Settings and notes; start, end and embedded nets are the caller's to find.
void ReadSection(const PnmlXml& pobjXml, PnmlSection pobjSection, Workflow& pobjWorkflow);

}  // namespace vantrel

// The geometry that ties arcs to the objects they join, and labels to their texts.
#pragma once

#include "chart/Label.h"
#include "model/DesignerState.h"
#include "model/Forward.h"

namespace vantrel {

/// Where an arc leaves an object and where it enters one, twips, from the connector image and the side that it sits on.
/// 0 for an invalid side. Error 91 when the object has no such connector image.
float OutputConnectorX(const Node& pobjNode);
float OutputConnectorY(const Node& pobjNode);
float InputConnectorX(const Node& pobjNode);
float InputConnectorY(const Node& pobjNode);

/// Gives the label the size of its text, leaves its top-left corner where it is, and fits the focus frame of the label's control again.
void FitLabel(Label& pobjLabel, DesignerHost& pobjHost = *gobjVantrel);

}  // namespace vantrel

// Pictures of charts, as files.
#pragma once

#include <string>

namespace vantrel {

class ChartSurface;

/// Writes a picture of the visible elements with a small margin, on the chart's background colour. The extension chooses the format:
/// .png, .svg (SVG 1.2 Tiny) or .pdf (one page; at zoom 1 a chart pixel is 1/96 inch). Text stays text in the last two. An existing
/// file is replaced as a whole or not at all.
///
/// Throws Error 5 for another extension, a name that is not UTF-8, or a zoom that is not finite and above 0; Error 6 for a PNG of more
/// than 16,000 pixels a side and other pictures of more than 1,000,000, with the largest zoom that fits; Error 75 when the file cannot be
/// written. Each description names the file. Needs a QGuiApplication; the platform "offscreen" will do.
void WriteChart(const ChartSurface& pobjSurface, const std::string& pstrPath, double pdblZoom = 1);

}  // namespace vantrel

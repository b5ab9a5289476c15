// Pictures of charts, as files.
#pragma once

#include <string>

namespace vantrel {

class ChartSurface;

/// Writes a picture of the whole chart, cropped to its visible elements and a small margin, on the chart's background colour. The
/// file's extension says what it becomes: .png, .svg (SVG 1.2 Tiny) or .pdf (one page, 1 chart pixel at zoom 1 is 1/96 inch); text
/// stays text in the last two. A file that was there is replaced as a whole or not at all. Error 5 for another extension, a name
/// that is not UTF-8 or a zoom that is no number above 0; Error 6, which says what zoom would do, for a PNG beyond 16,000 pixels a side
/// and other pictures beyond 1,000,000; Error 75 when the file cannot be written; each names the file. Needs a QGuiApplication, though no
/// window: the platform "offscreen" will do.
void WriteChart(const ChartSurface& pobjSurface, const std::string& pstrPath, double pdblZoom = 1);

}  // namespace vantrel

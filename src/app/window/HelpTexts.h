#pragma once

class QWidget;

namespace vantrel {

/// Says what mouse and keyboard do on a chart.
void ShowKeys(QWidget* pobjParent);
void ShowAbout(QWidget* pobjParent);

}  // namespace vantrel

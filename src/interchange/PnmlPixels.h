// Between the twips of a workflow and the pixels of a file.
#pragma once

#include <string>

namespace vantrel {

constexpr float kFilePixel = 15;  ///< twips: files count pixels of 96 to the inch
constexpr float kNodeSize = 32 * kFilePixel;

/// The origin of a file's coordinates, in twips from the workflow's zero: a file has the centres of nodes and of captions' anchors,
/// a workflow the top-left corners.
constexpr float kOfCentre = kNodeSize / 2;  ///< positions of nodes
constexpr float kOfCaption = -kNodeSize / 2;
constexpr float kOfPoint = 0;  ///< bend points

float TwipsOfPixels(double psngPixels, float psngOrigin);

/// The shortest decimal number from which TwipsOfPixels makes these twips. Where there is none (beyond ten million pixels, or too near to
/// zero for a file's numbers), the nearest such number; 0 for NaN.
std::string PixelText(float psngTwips, float psngOrigin);

/// True when the file's pixels are those that PixelText wrote for the twips: then the exact values stored beside them still hold.
bool IsPixelOf(double psngPixels, float psngTwips, float psngOrigin);

/// True when the text alone brings the twips back.
bool IsExactInPixels(float psngTwips, float psngOrigin);

}  // namespace vantrel

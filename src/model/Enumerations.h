// The system's public enumerations. Databases store these numbers, so they never change.
#pragma once

#include <cstdint>

namespace vantrel {

/// How a transition distributes tokens on its output arcs.
enum OutputTypes : std::int32_t { vntBroadcast = 1, vntSelect = 2, vntDistribute = 3, vntProgrammed = 4 };

/// Who or what fires a transition.
enum TriggerTypes : std::int32_t { vntUser = 1, vntAutomatic = 2, vntMessage = 3, vntTimed = 4 };

/// Which token of a place a firing takes: the oldest or the newest.
enum SelectionTypes : std::int32_t { vntSelectionTypeFIFO = 0, vntSelectionTypeLIFO = 1 };

enum TokenStatusConstant : std::int32_t { txQueued = 0, txStarted = 1, txFinished = 2, txHold = 3 };

/// The spelling of the first and the last name is that of the public interface.
enum ArcTypeConstant : std::int32_t { vntOrSpilt = 1, vntOrJoin = 2, vntAndSplit = 3, vntAndJoin = 4, vntExplictOr = 5 };

/// From place to transition, or from transition to place.
enum ArcDirectionConstant : std::int32_t { vntInArc = 1, vntOutArc = 2 };

enum RunStyleConstant : std::int32_t { vntSilent = 0, vntVerbose = 1, vntHidden = 2 };

/// The side of an object that a connector sits on.
enum ConnectorPosition : std::int32_t { vntTop = 1, vntRight = 2, vntBottom = 3, vntLeft = 4 };

enum UseModeConstant : std::int32_t { vntDesign = 0, vntTest = 1, vntStepTest = 2, vntRun = 3 };

}  // namespace vantrel

#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "interchange/PnmlDocument.h"
#include "interchange/PnmlError.h"

namespace vantrel {

/// What to read from a file and what to put up with.
struct PnmlOptions {
  std::string NetId;                          ///< the net wanted of a file with several; empty: the first
  bool SkipUnsupported = false;               ///< leave out arcs that place/transition nets do not have, instead of refusing the file
  std::size_t SizeLimit = 64U * 1024 * 1024;  ///< bytes
};

/// Reads place/transition nets from PNML, the Petri Net Markup Language (ISO/IEC 15909-2), and from the older and looser files of the
/// field: with or without pages and namespaces, `value` for `text`, `arcpath` for positions, the weight in the arc's name, a net a level
/// deeper.
///
/// The pages of a net are taken together and reference nodes give way to what they stand for. A page that carries the id of a transition
/// and holds a net of its own is that transition's sub-process. What belongs to a tool, and what is unknown, is passed over; only an arc of
/// a kind that place/transition nets do not have (inhibitor, reset, read, …) is never passed over in silence nor read as an ordinary one.
///
/// Both operations throw PnmlError, whose one line says what is wrong and where: text that is no XML or no net, a NetId that is not there,
/// nodes without or with the same id, arcs that lead nowhere or join two places or two transitions, references without an end, numbers
/// that are none, foreign arcs, a file over the size limit, elements nested deeper than 256, declared entities.
class PnmlReader {
 public:
  explicit PnmlReader(PnmlOptions pobjOptions = {});

  PnmlNet ReadFile(const std::string& pstrPath) const;

  /// Reads a file's bytes; pstrName stands for the file in messages. The size limit does not apply.
  PnmlNet ReadBytes(std::string_view pstrBytes, const std::string& pstrName) const;

 private:
  PnmlOptions mOptions;
};

}  // namespace vantrel

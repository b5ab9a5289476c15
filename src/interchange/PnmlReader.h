#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "interchange/PnmlDocument.h"
#include "interchange/PnmlError.h"

namespace vantrel {

/// What to read from a file and what to accept.
struct PnmlOptions {
  std::string NetId;                          ///< the id of the net in a file with several; empty: the first
  bool SkipUnsupported = false;               ///< leave out arcs that place/transition nets do not have, instead of refusing the file
  std::size_t SizeLimit = 64U * 1024 * 1024;  ///< bytes
};

/// Reads place/transition nets from PNML, the Petri Net Markup Language (ISO/IEC 15909-2), and from the older and looser files of the
/// field: with or without pages and namespaces, `value` for `text`, `arcpath` for positions, the weight in the arc's name, a net a level
/// deeper.
///
/// Reads the pages of a net as one and replaces reference nodes by the nodes that they refer to. A page with the id of a transition holds
/// the sub-process of that transition if it holds a net. Sections of tools and unknown elements are skipped. An arc of a kind that
/// place/transition nets do not have (inhibitor, reset, read, …) is an error, unless such arcs are to be skipped; it is never read as an
/// ordinary one.
///
/// Both operations throw PnmlError, whose one line says what is wrong and where: text that is not XML or not a net, an unknown NetId, nodes
/// without id or with the same one, arcs that lead nowhere or join two places or two transitions, references without an end, invalid
/// numbers, foreign arcs, a file over the size limit, elements nested deeper than 256, declared entities.
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

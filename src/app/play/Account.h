#pragma once

#include <cstdint>
#include <iosfwd>
#include <optional>
#include <string>
#include <vector>

namespace vantrel {

/// Why a run ended: nothing was left to fire, there were enough firings or Ctrl-C, or a firing failed.
enum class StopReason : std::uint8_t { Quiet, Limit, Error };

/// A place or a transition as an account shows it. Inside an embedded workflow its key begins with the keys of the transitions that
/// embed it: "Transition4/Place2".
struct AccountEntry {
  std::string Key, Name;
};

/// What happened in a run.
struct Account {
  struct Holding {
    AccountEntry Place;
    std::int32_t Tokens = 0;
  };

  std::string Net;
  std::int32_t Places = 0, Transitions = 0, Arcs = 0;  ///< of the net itself, without embedded workflows
  std::optional<AccountEntry> Start, End;
  std::int64_t CasesStarted = 0, CasesFinished = 0;
  std::optional<std::int64_t> CasesTakenUp;     ///< of a run that went on from a store: cases that had not finished before
  std::int64_t DifferentCasesFinished = 0;      ///< counts a case that finished twice once, if tokens know their cases
  std::int64_t Firings = 0, TokensCreated = 0;  ///< embedded workflows included
  std::int64_t Actions = 0;                     ///< actions of transitions that a host would have run
  StopReason Stopped = StopReason::Quiet;
  std::string Error;                ///< with StopReason::Error: what failed
  std::vector<Holding> Marking;     ///< places with tokens in the order of the net, then those of embedded workflows
  std::vector<AccountEntry> Trace;  ///< in the order in which the firings began; empty unless asked for

  /// No failure, and as many cases finished as were started or taken up.
  bool IsFinished() const;
};

/// Writes it for a person, with the trace if there is one.
void WriteText(std::ostream& pobjOut, const Account& pobjAccount);
/// One JSON object on one line; docs/command-line.md describes it.
std::string ToJson(const Account& pobjAccount);

}  // namespace vantrel

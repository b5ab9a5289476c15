#include <iomanip>
#include <ostream>

#include "app/play/Account.h"
#include "interchange/PnmlError.h"

namespace vantrel {

namespace {

std::string Shown(const AccountEntry& pobjEntry) { return pobjEntry.Key + ' ' + QuotedForMessage(pobjEntry.Name); }

std::string Shown(const std::optional<AccountEntry>& pobjEntry) { return pobjEntry ? Shown(*pobjEntry) : "none"; }

std::string TakenUpText(const Account& pobjAccount) {
  return pobjAccount.CasesTakenUp ? std::to_string(*pobjAccount.CasesTakenUp) + " taken up, " : "";
}

std::string Reason(const Account& pobjAccount) {
  switch (pobjAccount.Stopped) {
    case StopReason::Limit:
      return "before the end: enough firings, or interrupted";
    case StopReason::Error:
      return "by an error: " + pobjAccount.Error;
    default:
      return "nothing is left to fire";
  }
}

void WriteMarking(std::ostream& pobjOut, const Account& pobjAccount) {
  pobjOut << "Left     " << (pobjAccount.Marking.empty() ? "no tokens\n" : "");
  constexpr std::size_t kMostLines = 40;
  const char* indent = "";
  std::size_t lines = 0;
  for (const auto& holding : pobjAccount.Marking) {
    if (++lines > kMostLines) {
      pobjOut << indent << "and in " << pobjAccount.Marking.size() - kMostLines << " more places (--json names them)\n";
      return;
    }
    pobjOut << indent << holding.Tokens << " in " << Shown(holding.Place) << '\n';
    indent = "         ";
  }
}

void WriteTrace(std::ostream& pobjOut, const Account& pobjAccount) {
  std::size_t number = 0;
  for (const auto& firing : pobjAccount.Trace) pobjOut << std::setw(7) << ++number << "  " << Shown(firing) << '\n';
}

}  // namespace

void WriteText(std::ostream& pobjOut, const Account& pobjAccount) {
  pobjOut << "Net      " << QuotedForMessage(pobjAccount.Net) << " with " << pobjAccount.Places << " places, " << pobjAccount.Transitions
          << " transitions, " << pobjAccount.Arcs << " arcs\n"
          << "Start    " << Shown(pobjAccount.Start) << "\nEnd      " << Shown(pobjAccount.End) << '\n'
          << "Cases    " << TakenUpText(pobjAccount) << pobjAccount.CasesStarted << " started, " << pobjAccount.CasesFinished
          << " finished\n"
          << "Firings  " << pobjAccount.Firings << "\nTokens   " << pobjAccount.TokensCreated << " created\n";
  if (pobjAccount.Actions > 0) pobjOut << "Actions  " << pobjAccount.Actions << " asked for, none run\n";
  pobjOut << "Stopped  " << Reason(pobjAccount) << '\n';
  WriteMarking(pobjOut, pobjAccount);
  WriteTrace(pobjOut, pobjAccount);
}

}  // namespace vantrel

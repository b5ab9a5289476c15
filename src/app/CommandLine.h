#pragma once

namespace vantrel {

/// The program's exit statuses. Scripts rely on these numbers.
enum ExitStatus : int {
  kDone = 0,
  kBadInput = 2,     ///< options or files that cannot be used; one line on standard error says why
  kNotFinished = 3,  ///< the work was done, with another outcome than the wanted one
};

/// Runs the program with the arguments of main() and returns the exit status. Throws nothing.
int RunCommandLine(int plngCount, const char* const* pstrArguments);

}  // namespace vantrel

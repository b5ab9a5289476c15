#pragma once

namespace vantrel {

/// What the program's exit status says. A script may rely on these numbers.
enum ExitStatus : int {
  kDone = 0,
  kBadInput = 2,     ///< options or files that cannot be used; one line on standard error says why
  kNotFinished = 3,  ///< the work was done, and its outcome is not the wanted one
};

/// Does what the arguments of main() say and returns the exit status. Throws nothing.
int RunCommandLine(int plngCount, const char* const* pstrArguments);

}  // namespace vantrel

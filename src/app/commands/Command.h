#pragma once

#include <string>

namespace CLI {
class App;
}

namespace vantrel {

/// A command of the program: `vantrel NAME ...`. CommandLine.cpp lists them all.
class Command {
 public:
  Command() = default;
  Command(const Command&) = delete;
  Command& operator=(const Command&) = delete;
  virtual ~Command() = default;

  virtual std::string Name() const = 0;
  virtual std::string Summary() const = 0;  ///< the line of `vantrel --help`
  /// Declares the command's options, which write into this object: it must outlive the parsing.
  virtual void Declare(CLI::App& pobjApp) = 0;
  /// Does the work after the parsing and returns an ExitStatus. An exception becomes the line on standard error and the status
  /// kBadInput.
  virtual int Run() = 0;
};

}  // namespace vantrel

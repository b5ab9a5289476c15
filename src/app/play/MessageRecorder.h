#pragma once

#include <optional>
#include <string>
#include <utility>

#include "util/Error.h"
#include "util/MsgBox.h"

namespace vantrel {

/// Answers message boxes with OK while it lives, shows none to the user, and remembers the first one.
class MessageRecorder {
 public:
  MessageRecorder()
      : mBefore(InstallMsgBoxPresenter([this](const std::string& pstrText, MsgBoxButtons, const std::string&) {
          if (!mFirst) mFirst = pstrText;
          return vntOK;
        })) {}
  ~MessageRecorder() { InstallMsgBoxPresenter(std::move(mBefore)); }
  MessageRecorder(const MessageRecorder&) = delete;
  MessageRecorder& operator=(const MessageRecorder&) = delete;

  /// Throws the first message, if there was one, as an Error.
  void ThrowFirst() const {
    if (mFirst) throw Error(vntErrInvalidCall, *mFirst);
  }

 private:
  std::optional<std::string> mFirst;
  MsgBoxPresenter mBefore;
};

}  // namespace vantrel

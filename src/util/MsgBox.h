// Message boxes: how the system tells the user something and waits for an answer.
#pragma once

#include <cstdint>
#include <exception>
#include <functional>
#include <string>
#include <utility>

namespace vantrel {

enum MsgBoxButtons : std::int32_t { vntOKOnly = 0, vntOKCancel = 1, vntYesNoCancel = 3, vntYesNo = 4 };
enum MsgBoxAnswer : std::int32_t { vntOK = 1, vntCancel = 2, vntYes = 6, vntNo = 7 };

using MsgBoxPresenter = std::function<MsgBoxAnswer(const std::string& pstrText, MsgBoxButtons pintButtons, const std::string& pstrTitle)>;

/// Shows the text and returns the button that the user chose.
MsgBoxAnswer MsgBox(const std::string& pstrText, MsgBoxButtons pintButtons = vntOKOnly, const std::string& pstrTitle = {});

/// Installs what shows message boxes and returns what did so before. The first presenter writes to standard error and
/// answers OK (Yes where there is no OK); an empty one reinstalls it.
MsgBoxPresenter InstallMsgBoxPresenter(MsgBoxPresenter pPresenter);

/// Shows message boxes with another presenter for as long as it lives. Scopes end in the reverse order of their beginning.
class MsgBoxScope {
 public:
  explicit MsgBoxScope(MsgBoxPresenter pPresenter) : mBefore(InstallMsgBoxPresenter(std::move(pPresenter))) {}
  ~MsgBoxScope() { InstallMsgBoxPresenter(std::move(mBefore)); }
  MsgBoxScope(const MsgBoxScope&) = delete;
  MsgBoxScope& operator=(const MsgBoxScope&) = delete;

 private:
  MsgBoxPresenter mBefore;
};

/// Runs what a user started. An error is shown once, in a message box, and goes no further: in the event loop of a window system it
/// would end the process. The box may run an event loop, so the caller's object may be gone afterwards. False after an error.
template <class Work>
bool ShowErrors(Work&& pWork) {
  try {
    std::forward<Work>(pWork)();
    return true;
  } catch (const std::exception& failure) {
    MsgBox(failure.what());
    return false;
  }
}

}  // namespace vantrel

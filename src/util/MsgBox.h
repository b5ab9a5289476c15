// Message boxes: the one door through which the system tells the user something and waits for an answer.
#pragma once

#include <cstdint>
#include <functional>
#include <string>

namespace vantrel {

enum MsgBoxButtons : std::int32_t { vntOKOnly = 0, vntOKCancel = 1, vntYesNoCancel = 3, vntYesNo = 4 };
enum MsgBoxAnswer : std::int32_t { vntOK = 1, vntCancel = 2, vntYes = 6, vntNo = 7 };

using MsgBoxPresenter = std::function<MsgBoxAnswer(const std::string& pstrText, MsgBoxButtons pintButtons, const std::string& pstrTitle)>;

/// Shows the text and returns the button that the user chose.
MsgBoxAnswer MsgBox(const std::string& pstrText, MsgBoxButtons pintButtons = vntOKOnly, const std::string& pstrTitle = {});

/// Replaces who shows message boxes and returns who did so before. The first presenter writes to standard error and
/// answers OK (Yes where there is no OK); an empty one brings it back.
MsgBoxPresenter InstallMsgBoxPresenter(MsgBoxPresenter pPresenter);

}  // namespace vantrel

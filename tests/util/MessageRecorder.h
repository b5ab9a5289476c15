#pragma once

#include <deque>
#include <string>
#include <vector>

#include "util/MsgBox.h"

namespace vantrel::test {

/// Shows no message box while it lives: records the text, and answers from Answers in turn, then OK or Yes.
class MessageRecorder {
 public:
  MessageRecorder()
      : mScope([this](const std::string& pstrText, MsgBoxButtons pintButtons, const std::string& pstrTitle) {
          return Show(pstrText, pintButtons, pstrTitle);
        }) {}
  ~MessageRecorder() = default;
  MessageRecorder(const MessageRecorder&) = delete;
  MessageRecorder& operator=(const MessageRecorder&) = delete;

  std::vector<std::string> Texts, Titles;
  std::deque<MsgBoxAnswer> Answers;

 private:
  MsgBoxAnswer Show(const std::string& pstrText, MsgBoxButtons pintButtons, const std::string& pstrTitle) {
    Texts.push_back(pstrText);
    Titles.push_back(pstrTitle);
    if (Answers.empty()) return pintButtons == vntYesNo || pintButtons == vntYesNoCancel ? vntYes : vntOK;
    const MsgBoxAnswer answer = Answers.front();
    Answers.pop_front();
    return answer;
  }

  MsgBoxScope mScope;
};

}  // namespace vantrel::test

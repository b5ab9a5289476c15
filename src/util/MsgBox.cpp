#include "util/MsgBox.h"

#include <iostream>
#include <utility>

namespace vantrel {

namespace {

MsgBoxAnswer WriteToStandardError(const std::string& pstrText, MsgBoxButtons pintButtons, const std::string& pstrTitle) {
  if (!pstrTitle.empty()) std::cerr << pstrTitle << ": ";
  std::cerr << pstrText << '\n';
  return pintButtons == vntYesNo || pintButtons == vntYesNoCancel ? vntYes : vntOK;
}

MsgBoxPresenter& Presenter() {
  static MsgBoxPresenter presenter = WriteToStandardError;
  return presenter;
}

}  // namespace

MsgBoxAnswer MsgBox(const std::string& pstrText, MsgBoxButtons pintButtons, const std::string& pstrTitle) {
  const MsgBoxPresenter presenter = Presenter();  // the code that answers a box may install another presenter
  return presenter(pstrText, pintButtons, pstrTitle);
}

MsgBoxPresenter InstallMsgBoxPresenter(MsgBoxPresenter pPresenter) {
  return std::exchange(Presenter(), pPresenter ? std::move(pPresenter) : MsgBoxPresenter(WriteToStandardError));
}

}  // namespace vantrel

#include "app/database/OpenDatabase.h"

#include <filesystem>
#include <iostream>
#include <utility>

#include "app/Lines.h"
#include "app/database/Engines.h"
#include "util/Error.h"

namespace vantrel {

namespace {

std::string QuotedForShell(const std::string& pstrText) {
  if (pstrText.find_first_of(" \t\n'\"\\$`*?[]<>|&;()#~!{}") == std::string::npos) return pstrText;
  std::string quoted = "'";
  for (const char c : pstrText) quoted += c == '\'' ? std::string("'\\''") : std::string(1, c);
  return quoted + "'";
}

}  // namespace

OpenDatabase::OpenDatabase(const DatabaseAddress& pobjAddress)
    : mstrName(pobjAddress.Shown()), mBefore(InstallMsgBoxPresenter([this](const std::string& pstrText, MsgBoxButtons, const std::string&) {
        mMessages.push_back(pstrText);
        return vntOK;
      })) {
  try {
    Connect(pobjAddress);
    CheckTables();
  } catch (...) {
    InstallMsgBoxPresenter(std::move(mBefore));
    throw;
  }
}

OpenDatabase::~OpenDatabase() { InstallMsgBoxPresenter(std::move(mBefore)); }

void OpenDatabase::Connect(const DatabaseAddress& pobjAddress) {
  if (!pobjAddress.IsServer() && !std::filesystem::exists(pobjAddress.Text())) {
    if (mstrName.find("://") != std::string::npos)
      throw Failure("not an address of a database: that is a file, or postgresql://USER@HOST/NAME");
    throw Failure("no such database; `vantrel db create --db " + QuotedForShell(mstrName) + "` makes it");
  }
  try {
    mAccess.Connection = OpenConnection(pobjAddress);
  } catch (const Error& error) {
    throw EngineFailure(error.Description);
  }
}

void OpenDatabase::CheckTables() {
  try {
    const auto rows = Connection().NewRecordset();
    rows->Open("SELECT Id FROM Workflow WHERE Id = 0");
  } catch (const Error& error) {
    if (error.Number != vntErrStatement) throw EngineFailure(error.Description);
    throw Failure("a database without the tables of this system; `vantrel db create --db " + QuotedForShell(mstrName) + "` makes them");
  }
}

void OpenDatabase::Do(const std::function<void()>& pWork) {
  mMessages.clear();
  const auto failures = mAccess.Failures();
  try {
    pWork();
  } catch (const Error& error) {
    throw EngineFailure(mAccess.Failures() != failures ? mAccess.LastFailure() : error.Description);
  }
  if (mAccess.Failures() != failures) throw EngineFailure(mAccess.LastFailure());
  for (const std::string& message : mMessages) std::cerr << "vantrel: " << mstrName << ": " << OnOneLine(message) << '\n';
}

std::shared_ptr<Workflow> OpenDatabase::ReadWorkflow(std::int32_t plngId) {
  std::shared_ptr<Workflow> workflow;
  Do([&] { workflow = mAccess.ReadWorkflow(plngId); });
  if (workflow) return workflow;
  CheckTables();  // that there is no connection any more looks the same
  throw NoSuchWorkflow(plngId);
}

DatabaseFailure OpenDatabase::NoSuchWorkflow(std::int32_t plngId) const {
  return Failure("no workflow " + std::to_string(plngId) + "; `vantrel list` says which there are");
}

DatabaseFailure OpenDatabase::Failure(const std::string& pstrWhat) const { return DatabaseFailure(mstrName + ": " + pstrWhat); }

DatabaseFailure OpenDatabase::EngineFailure(const std::string& pstrDescription) const {
  return pstrDescription.find(mstrName) == std::string::npos ? Failure(pstrDescription) : DatabaseFailure(pstrDescription);
}

}  // namespace vantrel

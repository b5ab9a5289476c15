#include "app/play/Account.h"

#include <sstream>

#include <gtest/gtest.h>

namespace vantrel {

namespace {

TEST(Account, JsonOfARunThatFailed) {
  Account account;
  account.Net = "n";
  account.Start = AccountEntry{"Place1", "in"};
  account.CasesStarted = 1;
  account.Stopped = StopReason::Error;
  account.Error = "Transition \"t\" fires itself without end.";
  account.Marking = {{{"Place1", "in"}, 2}};
  account.Trace = {{"Transition1", "t"}};
  EXPECT_EQ(ToJson(account), R"({"net":"n","places":0,"transitions":0,"arcs":0,"start":"Place1","end":null,)"
                             R"("cases":{"started":1,"finished":0},"firings":0,"tokens_created":0,"stopped":"error",)"
                             R"("error":"Transition \"t\" fires itself without end.","marking":{"Place1":2},"trace":["Transition1"]})");
}

TEST(Account, NamesOfAFileCannotSteerTheTerminal) {
  Account account;
  account.Net = "\033[2Jnet\nline";
  std::ostringstream out;
  WriteText(out, account);
  EXPECT_EQ(out.str().find('\033'), std::string::npos);
  EXPECT_EQ(out.str().find("\nline"), std::string::npos);
}

TEST(Account, FailureIsNoSuccessThoughTheCasesFinished) {
  Account account;
  account.CasesStarted = account.CasesFinished = account.DifferentCasesFinished = 1;
  EXPECT_TRUE(account.IsFinished());
  account.Stopped = StopReason::Error;
  EXPECT_FALSE(account.IsFinished());
}

}  // namespace

}  // namespace vantrel

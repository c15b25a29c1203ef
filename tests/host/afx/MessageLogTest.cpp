#include "host/afx/MessageLog.h"

#include <thread>
#include <utility>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using testing::ElementsAre;

class MessageLog : public testing::Test {
 protected:
  MessageLog() { afx::ClearLoggedMessages(); }
  ~MessageLog() override { afx::SetLogSink({}); }
};

TEST_F(MessageLog, KeepsMessagesInTheirOrder) {
  afx::LogMessage(L"一");
  afx::LogError(L"二");
  EXPECT_THAT(afx::LoggedMessages(), ElementsAre(CString(L"一"), CString(L"二")));
  afx::ClearLoggedMessages();
  EXPECT_TRUE(afx::LoggedMessages().empty());
}

TEST_F(MessageLog, TheSinkSeesKindAndText) {
  std::vector<std::pair<afx::MessageKind, CString>> seen;
  afx::SetLogSink([&seen](afx::MessageKind kind, const CString& text) { seen.emplace_back(kind, text); });
  afx::LogMessage(L"a");
  afx::LogError(L"b");
  afx::SetLogSink({});
  afx::LogMessage(L"c");
  EXPECT_THAT(seen, ElementsAre(std::pair(afx::MessageKind::Message, CString(L"a")),
                                std::pair(afx::MessageKind::Error, CString(L"b"))));
}

TEST_F(MessageLog, ASinkMayLog) {
  afx::SetLogSink([](afx::MessageKind kind, const CString&) {
    if (kind == afx::MessageKind::Error) afx::LogMessage(L"from the sink");
  });
  afx::LogError(L"x");
  EXPECT_THAT(afx::LoggedMessages(), ElementsAre(CString(L"x"), CString(L"from the sink")));
}

TEST_F(MessageLog, ForgetsTheOldestAndCutsTheLong) {
  for (int i = 0; i < 1500; ++i) {
    CString text;
    text.Format(L"%d", i);
    afx::LogMessage(text);
  }
  EXPECT_EQ(afx::LoggedMessages().size(), 1000u);
  EXPECT_EQ(afx::LoggedMessages().front(), L"500");
  EXPECT_EQ(afx::LoggedMessages().back(), L"1499");
  afx::LogMessage(CString(L'x', 100000));
  EXPECT_EQ(afx::LoggedMessages().back().GetLength(), 4096);
}

TEST_F(MessageLog, ThreadsMayLogAtOnce) {
  std::vector<std::thread> threads;
  for (int i = 0; i < 4; ++i)
    threads.emplace_back([] {
      for (int round = 0; round < 200; ++round) afx::LogMessage(L"x");
    });
  for (std::thread& thread : threads) thread.join();
  EXPECT_EQ(afx::LoggedMessages().size(), 800u);
}

} // namespace

// The shared form of a singleton: one address, one construction, another try after a failure, and destruction
// in reverse order, which a child process shows by what it prints while it ends.
#include <cstdio>
#include <cstdlib>
#include <stdexcept>

#include <gtest/gtest.h>

#include "plugin/base/SingletonForm.h"

namespace {

int g_filesRead = 0;

class OnceManager {
 public:
  static OnceManager* GetInstance();

 private:
  OnceManager() { ++g_filesRead; }
};
ZP_IMPLEMENT_SINGLETON(OnceManager)

TEST(SingletonForm, TwoCallsGiveTheSameAddressAndReadTheFileOnce) {
  OnceManager* first = OnceManager::GetInstance();
  EXPECT_NE(first, nullptr);
  EXPECT_EQ(OnceManager::GetInstance(), first);
  EXPECT_EQ(g_filesRead, 1);
}

int g_tries = 0;

class StubbornManager {
 public:
  static StubbornManager* GetInstance();

 private:
  StubbornManager() {
    if (++g_tries < 3) throw std::runtime_error("not yet");
  }
};
ZP_IMPLEMENT_SINGLETON(StubbornManager)

TEST(SingletonForm, AConstructorThatThrowsIsTriedAgainAtTheNextCall) {
  EXPECT_THROW(StubbornManager::GetInstance(), std::runtime_error);
  EXPECT_THROW(StubbornManager::GetInstance(), std::runtime_error);
  EXPECT_NE(StubbornManager::GetInstance(), nullptr);
  StubbornManager::GetInstance();
  EXPECT_EQ(g_tries, 3);
}

class ManagerA {
 public:
  static ManagerA* GetInstance();
  ~ManagerA() { std::fputs("A ends. ", stderr); }

 private:
  ManagerA() = default;
};
ZP_IMPLEMENT_SINGLETON(ManagerA)

class ManagerB {
 public:
  static ManagerB* GetInstance();
  ~ManagerB() { std::fputs("B ends. ", stderr); }

 private:
  ManagerB() = default;
};
ZP_IMPLEMENT_SINGLETON(ManagerB)

TEST(SingletonFormDeathTest, ManagersBuiltInTheOrderABAreDestroyedInTheOrderBA) {
  GTEST_FLAG_SET(death_test_style, "threadsafe");
  EXPECT_EXIT(
      {
        ManagerA::GetInstance();
        ManagerB::GetInstance();
        std::exit(0);
      },
      testing::ExitedWithCode(0), "B ends. A ends. ");
}

} // namespace

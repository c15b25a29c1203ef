// The one table of velocity limits, emptied and pointed at an installation folder of the test's own.
#pragma once

#include <gtest/gtest.h>

#include "host/afx/MessageLog.h"
#include "plugin/base/CIDPEx.h"
#include "plugin/pipes/OwnedElements.h"
#include "plugin/pipes/limits/CZPFlowVelocityMng.h"
#include "tests/support/TempInstall.h"

class LimitFixture : public testing::Test {
 protected:
  static constexpr const char* kFile = "Data/PipeLimit.idp";

  LimitFixture() : table(*CZPFlowVelocityMng::GetInstance()) {
    Empty();
    afx::ClearLoggedMessages();
  }
  ~LimitFixture() override { Empty(); }

  void Empty() { pipes::DestroyElements(table.m_arrLimits); }
  // The rows of before are destroyed, unlike by ReadData alone.
  int Reload() {
    Empty();
    return table.ReadData();
  }
  int ReadText(const std::string& text) {
    install.Write(kFile, text);
    return Reload();
  }
  CZPPipeLimit* AddRow(const CString& name, double minimum = 0, double maximum = 0) {
    auto* limit = new CZPPipeLimit;
    limit->SetName(name);
    limit->m_velocity = SZPRange(minimum, maximum);
    EXPECT_EQ(table.Add(limit), 1);
    return limit;
  }
  // The names in their order: "15 20 null".
  CString Names() const {
    CString joined;
    for (const CZPPipeLimit* limit : table.m_arrLimits)
      joined += (joined.IsEmpty() ? L"" : L" ") + (limit ? limit->GetName() : CString(L"null"));
    return joined;
  }
  static bool IsLogged(const wchar_t* text) {
    for (const CString& message : afx::LoggedMessages())
      if (message.Find(text) >= 0) return true;
    return false;
  }

  TempInstall install;
  CZPFlowVelocityMng& table;
};

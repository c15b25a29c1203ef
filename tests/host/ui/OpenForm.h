// A dialog without controls of its own, open for the length of a test; the test puts its controls on it.
#pragma once

#include "host/ui/CDialog.h"
#include "tests/support/UiFrontEndScript.h"

#include <gtest/gtest.h>

class OpenForm : public testing::Test {
 protected:
  OpenForm() { form.Create(); }
  // What a window has told of its changes since the last call.
  struct Told {
    explicit Told(CWnd& window)
        : connection(
              window.Changed.Watch([this](const UiChange& change) { changes.push_back(change.kind); })) {}
    std::size_t count() {
      const std::size_t told = changes.size();
      changes.clear();
      return told;
    }
    std::vector<UiChange::Kind> changes;
    UiConnection connection;
  };
  UiFrontEndScript frontEnd;
  CDialog form{L"测试"};
};

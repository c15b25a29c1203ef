// A store beside the one of the program, read from the file as at the program's start.
#pragma once

#include "plugin/resistance/CZPLocalResistanceMng.h"

class FreshStore {
 public:
  FreshStore() {}
  CZPLocalResistanceMng& operator*() { return m_store; }
  CZPLocalResistanceMng* operator->() { return &m_store; }

 private:
  CZPLocalResistanceMng m_store;
};

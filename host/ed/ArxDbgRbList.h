// Owns a chain of result buffers for the length of a scope.
#pragma once

#include "host/ed/acutBuildList.h"

class ArxDbgRbList {
 public:
  ArxDbgRbList() = default;
  explicit ArxDbgRbList(resbuf* chain) : m_chain(chain) {}

  resbuf* orphanData() { return m_chain.release(); }
  resbuf* head() const { return m_chain.get(); }
  void setHead(resbuf* chain) { m_chain.reset(chain); }
  bool isEmpty() const { return !m_chain; }
  operator resbuf*() const { return m_chain.get(); }

 private:
  ResbufPtr m_chain;
};

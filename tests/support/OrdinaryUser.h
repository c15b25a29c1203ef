// While it lives a test that runs as root works with the rights of the user "nobody", whom permissions hold
// back.
#pragma once

#include <cstdlib>

#include <unistd.h>

class OrdinaryUser {
 public:
  OrdinaryUser() : m_wasRoot(::geteuid() == 0), m_isOne(!m_wasRoot || ::seteuid(65534) == 0) {}
  ~OrdinaryUser() {
    if (m_wasRoot && ::seteuid(0) != 0) std::abort();
  }
  OrdinaryUser(const OrdinaryUser&) = delete;
  OrdinaryUser& operator=(const OrdinaryUser&) = delete;
  bool IsOne() const { return m_isOne; }

 private:
  bool m_wasRoot;
  bool m_isOne;
};

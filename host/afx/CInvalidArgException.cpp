#include "host/afx/CInvalidArgException.h"

const char* CInvalidArgException::what() const noexcept {
  return "invalid argument: index or count out of range";
}

void AfxThrowInvalidArgException() {
  throw CInvalidArgException();
}

#include "host/afx/CInvalidArgException.h"

const char* CInvalidArgException::what() const noexcept {
  return "内部错误，序号或个数超出范围";
}

void AfxThrowInvalidArgException() {
  throw CInvalidArgException();
}

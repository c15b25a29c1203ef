#include "host/afx/CFileException.h"

CFileException::CFileException(const CString& message) : m_message(message), m_utf8(message.ToUtf8()) {}

const char* CFileException::what() const noexcept {
  return m_utf8.c_str();
}

// What a file operation raises that has no result to tell by that it failed. A rule of a window may let it
// pass: the front end tells the user, and the window goes on. Operations that give a FileResult never raise
// it.
#pragma once

#include <exception>
#include <string>

#include "host/afx/CString.h"

class CFileException : public std::exception {
 public:
  // The message is for the user: which file, and why.
  explicit CFileException(const CString& message);

  const CString& Message() const { return m_message; }
  const char* what() const noexcept override; // the same, in UTF-8

 private:
  CString m_message;
  std::string m_utf8;
};

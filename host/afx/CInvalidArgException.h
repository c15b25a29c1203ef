// What an index or count outside its range raises. It marks a programming error: nothing but a test
// or the outermost command loop is expected to catch it, which shows its text to the user.
#pragma once

#include <exception>

class CInvalidArgException : public std::exception {
 public:
  const char* what() const noexcept override;
};

// Throws a CInvalidArgException by value; catch it by reference.
[[noreturn]] void AfxThrowInvalidArgException();

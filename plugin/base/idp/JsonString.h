// Strings of JSON to and from the stored form of a text.
#pragma once

#include <string>
#include <string_view>

namespace idp {

class JsonString {
 public:
  // raw stands behind the opening quote of a string that is known to be closed, valid UTF-8 and free of
  // control characters. The result lives until the next call, or as long as the text itself. False for an
  // escape that JSON does not know.
  bool Decode(const char* raw, std::string_view& stored);

 private:
  bool DecodeEscaped(const char* raw, const char* firstEscape, std::string_view& stored);

  std::string m_buffer;
};

// Appends the string with its quotes. Control characters, and surrogates without their partner, are escaped.
void AppendJsonString(std::string& out, std::string_view stored);

} // namespace idp

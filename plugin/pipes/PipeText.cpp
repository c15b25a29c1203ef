#include "plugin/pipes/PipeText.h"

CString ZP::GetDNFromPreDN(const CString& text) {
  CString digits;
  for (const wchar_t c : text.View())
    if (c >= L'0' && c <= L'9') digits += c;
  return digits;
}

#include "host/ui/UiFrontEnd.h"

namespace {
UiFrontEnd* s_frontEnd = nullptr;
} // namespace

UiFrontEnd* UiFrontEnd::Get() {
  return s_frontEnd;
}

void UiFrontEnd::Set(UiFrontEnd* frontEnd) {
  s_frontEnd = frontEnd;
}

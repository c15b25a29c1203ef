// A shared object has its resources in its own data, so there is nothing to load: the handles are what the
// host tells modules apart by.
#include "plugin/graph/ModuleResources.h"

#include <dlfcn.h>

namespace {

struct StringEntry {
  unsigned number;
  const wchar_t* text;
};

constexpr StringEntry kStrings[] = {{module::kApplicationName, L"ZPPipeManager"}};

struct State {
  bool initialised = false;
  void* instance = nullptr;
  void* resources = nullptr;
};

State& TheState() {
  static State state;
  return state;
}

void* BaseAddress() {
  Dl_info info{};
  return dladdr(reinterpret_cast<const void*>(&kStrings), &info) ? info.dli_fbase : nullptr;
}

} // namespace

void module::Attach() {
  State& state = TheState();
  state.instance = BaseAddress();
  if (state.initialised) return;
  state.resources = const_cast<StringEntry*>(kStrings);
  state.initialised = true;
}

void module::Detach() {
  if (TheState().initialised) TheState() = State();
}

void* module::InstanceHandle() {
  return TheState().instance;
}

void* module::ResourceHandle() {
  return TheState().resources;
}

CString module::LoadString(unsigned number) {
  for (const StringEntry& entry : kStrings)
    if (entry.number == number) return entry.text;
  return {};
}

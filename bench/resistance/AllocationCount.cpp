#include "bench/resistance/AllocationCount.h"

#include <cstdlib>
#include <new>

namespace {

std::size_t count = 0;

void* Counted(std::size_t size) {
  ++count;
  if (void* memory = std::malloc(size ? size : 1)) return memory;
  throw std::bad_alloc();
}

} // namespace

std::size_t AllocationCount() {
  return count;
}

// The other forms of new end up in these two.
void* operator new(std::size_t size) {
  return Counted(size);
}
void* operator new[](std::size_t size) {
  return Counted(size);
}
void operator delete(void* memory) noexcept {
  std::free(memory);
}
void operator delete[](void* memory) noexcept {
  std::free(memory);
}
void operator delete(void* memory, std::size_t) noexcept {
  std::free(memory);
}
void operator delete[](void* memory, std::size_t) noexcept {
  std::free(memory);
}

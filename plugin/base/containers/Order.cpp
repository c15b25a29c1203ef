#include "plugin/base/containers/Order.h"

namespace vk {

void SortPointers(std::vector<void*>& pointers, PointerBefore before, const void* context) {
  std::stable_sort(pointers.begin(), pointers.end(), [=](void* a, void* b) { return before(a, b, context); });
}

} // namespace vk

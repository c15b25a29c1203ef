// Sorting and searching as the container family does it. "Beyond" is the question that decides a sort:
// whether its first argument has to stand behind the second one.
#pragma once

#include <algorithm>
#include <concepts>
#include <functional>
#include <type_traits>
#include <utility>
#include <vector>

#include "plugin/base/ZpExport.h"

namespace vk {

using Ascending = std::greater<>;
using Descending = std::less<>;

// Beyond by a compare function as callers write it: above 0 when a belongs behind b.
template <class T> struct ByCompare {
  int (*compare)(const T&, const T&);
  bool operator()(const T& a, const T& b) const { return compare(a, b) > 0; }
};

// The same for the values behind pointers.
template <class T> struct ByValueCompare {
  int (*compare)(const T&, const T&);
  bool operator()(const T* a, const T* b) const { return compare(*a, *b) > 0; }
};

template <class Beyond> struct ByValue {
  template <class T> bool operator()(const T* a, const T* b) const { return Beyond()(*a, *b); }
};

// Holes are elements that no comparison says anything about: a number that is none, a null slot.
struct NoHoles {
  template <class T> constexpr bool operator()(const T&) const { return false; }
};
struct NotANumber {
  template <class T> constexpr bool operator()([[maybe_unused]] const T& value) const {
    if constexpr (std::floating_point<T>) return value != value;
    return false;
  }
};
struct NullSlot {
  template <class T> constexpr bool operator()(const T* slot) const { return !slot; }
};

template <class Beyond> struct Before {
  const Beyond& beyond;
  template <class T> bool operator()(const T& a, const T& b) const { return beyond(b, a); }
};

// The order that counting comparisons gives: every element goes as many places as it has smaller ones behind
// it, less the greater ones before it. That is a stable sort, and is done as one. Counting comparisons leaves
// a hole where it is and is undefined as soon as an element has to pass it: here the holes keep their places,
// and the others are sorted over the places that remain.
template <class T, class Beyond> void SortBlock(T* data, int length, Beyond beyond, auto isHole) {
  T* const end = data + length;
  if (std::none_of(data, end, isHole)) {
    std::stable_sort(data, end, Before<Beyond>{beyond});
    return;
  }
  std::vector<T> values;
  for (T* at = data; at != end; ++at) {
    if (!isHole(*at)) values.push_back(std::move(*at));
  }
  std::stable_sort(values.begin(), values.end(), Before<Beyond>{beyond});
  auto next = values.begin();
  for (T* at = data; at != end; ++at) {
    if (!isHole(*at)) *at = std::move(*next++);
  }
}

// The same with one copy of the sort for pointers of all kinds. before(a, b, context) tells whether a stands
// before b.
using PointerBefore = bool (*)(void* a, void* b, const void* context);
ZP_EXPORT void SortPointers(std::vector<void*>& pointers, PointerBefore before, const void* context);

template <class T, class Beyond> bool IsPointerBefore(void* a, void* b, const void* beyond) {
  return Before<Beyond>{*static_cast<const Beyond*>(beyond)}(static_cast<T*>(a), static_cast<T*>(b));
}
template <class T, class Beyond> void SortBlock(T** data, int length, Beyond beyond, auto isHole) {
  std::vector<void*> values;
  for (int i = 0; i < length; ++i) {
    if (!isHole(data[i])) values.push_back(const_cast<void*>(static_cast<const void*>(data[i])));
  }
  SortPointers(values, IsPointerBefore<T, Beyond>, &beyond);
  auto next = values.begin();
  for (int i = 0; i < length; ++i) {
    if (!isHole(data[i])) data[i] = static_cast<T*>(*next++);
  }
}

// What a list sorts: a node and the value to sort it by, which small values are copied for.
template <class T, class Node> struct SortEntry {
  static constexpr bool kCopied = std::is_trivially_copyable_v<T> && sizeof(T) <= 2 * sizeof(void*);

  SortEntry(const T& value, Node* sorted) : node(sorted) {
    if constexpr (kCopied) {
      key = value;
    } else {
      key = &value;
    }
  }
  const T& Key() const {
    if constexpr (kCopied) {
      return key;
    } else {
      return *key;
    }
  }

  std::conditional_t<kCopied, T, const T*> key;
  Node* node;
};
template <class Beyond> struct EntryBefore {
  const Beyond& beyond;
  template <class Entry> bool operator()(const Entry& a, const Entry& b) const {
    return beyond(b.Key(), a.Key());
  }
};

// Below, at or above 0 as the wanted value is below, equal to or above the element.
template <class T> int OrderOf(const T& value, const T& element) {
  return value < element ? -1 : value > element ? 1 : 0;
}

// Where a search over ascending contents ends: at an equal element, or where the value would have to go.
struct Place {
  int index;
  bool found;
};

// orderAt(i) is the order of the wanted value to the element i, and isHole(i) whether there is nothing to
// compare with. from and to are valid indices. Of several equal elements that one is found which halving
// meets first.
template <class OrderAt, class IsHole> Place BinarySearch(int from, int to, OrderAt orderAt, IsHole isHole) {
  const int first = from;
  while (from <= to && isHole(from)) ++from;
  while (from <= to && isHole(to)) --to;
  if (from > to) return {first, false};
  if (orderAt(from) < 0) return {from, false};
  if (orderAt(to) > 0) return {to + 1, false};
  while (from < to) {
    const int middle = from + (to - from) / 2;
    int probe = middle;
    while (isHole(probe)) ++probe; // ends at to, which is none
    if (probe == to) {             // nothing from the middle to the last one: look before the middle
      for (probe = middle; isHole(probe);) --probe;
    }
    const int order = orderAt(probe);
    if (order == 0) return {probe, true};
    if (order < 0) {
      to = probe;
    } else {
      from = probe + 1;
      while (isHole(from)) ++from;
    }
  }
  const int order = orderAt(from);
  return {order > 0 ? from + 1 : from, order == 0};
}

} // namespace vk

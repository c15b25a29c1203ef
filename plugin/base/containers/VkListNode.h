// A link of the singly linked list.
#pragma once

#include "plugin/base/ZpExport.h"

// The value comes first: the list finds the node from a pointer to the value.
template <class T> struct ZP_EXPORT VkListNode {
  VkListNode() = default;
  explicit VkListNode(const T& newValue) : value(newValue) {}

  T value{};
  VkListNode* next = nullptr;
};

// A link of the doubly linked lists.
#pragma once

#include "plugin/base/containers/VkListNode.h"

template <class T> struct ZP_EXPORT VkDListNode : VkListNode<T> {
  VkDListNode() = default;
  explicit VkDListNode(const T& newValue) : VkListNode<T>(newValue) {}

  VkDListNode* previous = nullptr;
};

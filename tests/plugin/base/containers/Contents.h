// What a container holds, taken by each way there is to walk it.
#pragma once

#include <gtest/gtest.h>

#include <vector>

#include "plugin/base/containers/VkDynArrayBase.h"

template <class T> std::vector<T> Contents(const VkDynArrayBase<T>& container) {
  std::vector<T> forward;
  for (const T* at = container.GetFirst(); at; at = container.GetNext(at)) forward.push_back(*at);
  std::vector<T> backward;
  for (const T* at = container.GetLast(); at; at = container.GetPre(at)) backward.push_back(*at);
  EXPECT_EQ(std::vector<T>(backward.rbegin(), backward.rend()), forward);
  EXPECT_EQ(static_cast<int>(forward.size()), container.GetLength());
  for (int i = 0; i < container.GetLength(); ++i)
    EXPECT_EQ(container[i], forward[static_cast<std::size_t>(i)]);
  return forward;
}

template <class T> void Fill(VkDynArrayBase<T>& container, const std::vector<T>& values) {
  container.Reset();
  for (const T& value : values) container.Append(value);
}

// EXPECT_EQ where an expression has to stand.
inline void ExpectEqual(int result, int expected) {
  EXPECT_EQ(result, expected);
}

// Random sequences of operations on every member, side by side with a plain model of the rules.
#include <gtest/gtest.h>

#include <random>

#include "plugin/base/containers/VkDynArray.h"
#include "plugin/base/containers/VkXList.h"
#include "tests/plugin/base/containers/ContainerModel.h"
#include "tests/plugin/base/containers/Contents.h"

namespace {

int Upwards(const int& a, const int& b) {
  return a - b;
}

template <int kGroup> struct Grouped : VkXList<int> {
  Grouped() : VkXList<int>(0, kGroup) {}
};

template <class Container> class SideBySide {
 public:
  explicit SideBySide(unsigned seed) : m_random(seed) {}

  void Run(int steps) {
    for (int step = 0; step < steps; ++step) {
      const int operation = Pick(kOperations);
      Do(operation);
      Compare(m_container, m_model);
      if (testing::Test::HasFailure()) FAIL() << "step " << step << " operation " << operation;
      if (m_model.Length() > 40) {
        const int value = Value();
        m_container.FindDel(value);
        m_model.FindDel(value);
      }
    }
  }

 private:
  static constexpr bool kIsList = std::is_base_of_v<VkList<int>, Container>;
  static constexpr int kOperations = kIsList ? 44 : 38;

  int Pick(int count) { return static_cast<int>(m_random() % static_cast<unsigned>(count)); }
  int Value() { return Pick(6); }
  int Index() { return Pick(m_model.Length() + 3) - 1; } // sometimes out of range
  int To() { return Pick(m_model.Length() + 4) - 2; }
  void SortBoth() {
    m_container.Sort(true);
    std::stable_sort(m_model.values.begin(), m_model.values.end());
  }

  static void Compare(const Container& container, const ContainerModel& model) {
    ASSERT_EQ(Contents<int>(container), model.values);
    ASSERT_EQ(container.GetCur(), model.cursor);
    ASSERT_EQ(container.IsOut(), model.IsOut());
    if constexpr (!kIsList) {
      ASSERT_EQ(container.GetSpaceSize(), model.space);
    }
  }

  void Do(int operation) {
    Container& c = m_container;
    ContainerModel& m = m_model;
    const int i = Index();
    const int j = Index();
    const int to = To();
    const int value = Value();
    switch (operation) {
    case 0:
      return ExpectEqual(c.MoveToFirst(), m.MoveTo(0));
    case 1:
    case 2:
      return ExpectEqual(c.MoveToNext(), m.MoveToNext());
    case 3:
      return ExpectEqual(c.MoveToPre(), m.MoveToPre());
    case 4:
      return ExpectEqual(c.MoveToLast(), m.MoveTo(m.Length() - 1));
    case 5:
    case 6:
      return ExpectEqual(c.MoveTo(i), m.MoveTo(i));
    case 7:
    case 8:
      return c.Insert(i, value), m.Insert(i, value);
    case 9:
      return c.InsertCur(value), m.InsertCur(value);
    case 10:
      return c.InsertHead(value), m.Insert(0, value);
    case 11:
    case 12:
      return ExpectEqual(c.Append(value), m.Append(value));
    case 13:
      return ExpectEqual(c.DelCur(), m.DelCur());
    case 14:
      return ExpectEqual(c.Del(i), m.Del(i));
    case 15:
      return ExpectEqual(c.DelHead(), m.Del(0));
    case 16:
      return ExpectEqual(c.DelTail(), m.Del(m.Length() - 1));
    case 17:
      if (m.IsOut()) return;
      c.SetCurData(value);
      m.At(m.cursor) = value;
      return;
    case 18: {
      const int index = Pick(m.Length() + 3);
      c[index] = value;
      if (index >= m.Length()) m.ReAllocate(index + 1);
      m.MoveTo(index);
      m.At(index) = value;
      return;
    }
    case 19:
      EXPECT_EQ(c.Exchange(i, j), m.IsValid(i) && m.IsValid(j));
      if (m.IsValid(i) && m.IsValid(j)) std::swap(m.At(i), m.At(j));
      return;
    case 20: {
      EXPECT_EQ(c.Find(value, i, to), m.Find(value, i, to));
      VkQuene<long> hits;
      const std::vector<int> expected = m.Hits(value, i, to);
      EXPECT_EQ(c.Find(value, hits, i, to), static_cast<int>(expected.size()));
      for (const int hit : expected) EXPECT_EQ(hits.TakeHead(), hit);
      return;
    }
    case 21: {
      const int hit = m.Find(value, i);
      EXPECT_EQ(c.FindTo(value, i), hit >= 0);
      if (hit >= 0) m.MoveTo(hit);
      return;
    }
    case 22:
      return ExpectEqual(c.FindDel(value), m.FindDel(value));
    case 23: {
      const int hit = m.Find(value);
      return ExpectEqual(c.FindOrAppend(value), hit >= 0 ? hit : m.Append(value));
    }
    case 24: {
      const int hit = m.Find(value);
      if (hit < 0) m.Insert(0, value);
      return ExpectEqual(c.FindOrInsertHead(value), std::max(hit, 0));
    }
    case 25:
      SortBoth();
      return ExpectEqual(c.BFindTo(value, i, to), m.BFindTo(value, i, to));
    case 26: {
      SortBoth();
      ContainerModel copy = m;
      const bool found = copy.BFindTo(value, i, to);
      return ExpectEqual(c.BFind(value, i, to), found ? copy.cursor : -1);
    }
    case 27:
      SortBoth();
      return ExpectEqual(c.SortInto(value, i % 2 == 0), m.SortInto(value, i % 2 == 0));
    case 28:
      c.Sort(false);
      return std::stable_sort(m.values.begin(), m.values.end(), std::greater<>());
    case 29:
      c.Sort(Upwards);
      return std::stable_sort(m.values.begin(), m.values.end());
    case 30:
    case 31: {
      const int target = Pick(m.Length() + 2);
      return ExpectEqual(c.Move(i, target), m.Move(i, target));
    }
    case 32: {
      c.Reverse(i, to);
      int from = i;
      int last = to;
      if (m.Clip(from, last)) std::reverse(m.values.begin() + from, m.values.begin() + last + 1);
      return;
    }
    case 33:
      return c.SetLength(Pick(20), to > 2), m.SetLength(c.GetLength(), to > 2);
    case 34:
      return c.ReAllocate(i), m.ReAllocate(i);
    case 35:
      return DoCopies(i, to);
    case 36:
      if (Pick(10) == 0) return c.Reset(), m.Reset();
      if (Pick(10) == 0) return c.SetAll(value), std::fill(m.values.begin(), m.values.end(), value);
      return;
    case 37:
      if constexpr (kIsList)
        return;
      else
        return DoSpace(i);
    default:
      if constexpr (kIsList) DoList(operation, i, j, value);
    }
  }

  void DoSpace(int i) {
    const bool fits = i + 5 >= m_model.Length();
    EXPECT_EQ(m_container.SetSpaceSize(i + 5), fits);
    if (!fits || i + 5 == m_model.space) return;
    m_model.space = i + 5;
    m_model.behind.assign(static_cast<std::size_t>(m_model.space - m_model.Length()), 0);
  }

  void DoCopies(int from, int to) {
    Container& c = m_container;
    ContainerModel& m = m_model;
    switch (Pick(6)) {
    case 0:
      c.Mid(from, to, m_other);
      m_otherModel.Refill(m.Slice(from, to));
      break;
    case 1:
      c.Left(from, m_other);
      m_otherModel.Refill(from > 0 ? m.Slice(0, std::min(from, m.Length()) - 1) : std::vector<int>());
      break;
    case 2:
      c = m_other;
      m.Refill(m_otherModel.values);
      break;
    case 3:
      c << m_other;
      for (const int value : m_otherModel.values) m.Append(value);
      break;
    case 4: {
      const std::vector<int> slice = m.Slice(from, to);
      c.Mid(from, to, c);
      m.SetLength(static_cast<int>(slice.size()), true);
      m.values = slice;
      break;
    }
    default:
      EXPECT_EQ(c == m_other, m.values == m_otherModel.values);
      EXPECT_EQ(c < m_other, m.Length() < m_otherModel.Length());
    }
    Compare(m_other, m_otherModel);
  }

  void DoList(int operation, int i, int j, int value) requires kIsList {
    Container& c = m_container;
    ContainerModel& m = m_model;
    switch (operation) {
    case 38:
    case 39:
      return c.InsertAfterCur(value), m.InsertAfterCur(value);
    case 40:
      c.ReverseList();
      return std::reverse(m.values.begin(), m.values.end());
    case 41:
      return c.Rotate(i, j), m.Rotate(i, j);
    case 42:
      EXPECT_EQ(c.Conbine(m_other, i), m.Conbine(m_otherModel, i));
      break;
    default:
      c.SplitAt(i, m_other);
      m_otherModel.Conbine(m, i);
    }
    Compare(m_other, m_otherModel);
  }

  std::mt19937 m_random;
  Container m_container;
  Container m_other;
  ContainerModel m_model{kIsList};
  ContainerModel m_otherModel{kIsList};
};

template <class Container> class RandomOperations : public testing::Test {};
using Members = testing::Types<VkDynArray<int>, VkList<int>, VkDList<int>, VkXList<int>, Grouped<1>,
                               Grouped<2>, Grouped<7>>;
TYPED_TEST_SUITE(RandomOperations, Members);

TYPED_TEST(RandomOperations, GiveTheSameAsThePlainModel) {
  for (unsigned seed = 0; seed < 60; ++seed) {
    SideBySide<TypeParam> run(seed);
    run.Run(1000);
    if (this->HasFailure()) FAIL() << "seed " << seed;
  }
}

} // namespace

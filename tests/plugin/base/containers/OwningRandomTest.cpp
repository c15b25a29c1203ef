// Random sequences of operations on the owning members, side by side with a vector of ids: contents, cursor,
// and which objects were deleted at which step.
#include <gtest/gtest.h>

#include <algorithm>
#include <random>

#include "plugin/base/containers/VkDynPArray.h"
#include "plugin/base/containers/VkPDList.h"
#include "plugin/base/containers/VkPXList.h"
#include "tests/plugin/base/containers/ContainerModel.h"
#include "tests/plugin/base/containers/Contents.h"
#include "tests/plugin/base/containers/Counted.h"

namespace {

int ByTens(const Counted& a, const Counted& b) {
  return a.id / 10 - b.id / 10;
}

struct SmallGroups : VkPXList<Counted> {
  SmallGroups() : VkPXList<Counted>(0, 3) {}
};

// The model keeps ids, 0 for null, and notes what its operations delete.
template <class Owner> class OwnerRun {
 public:
  explicit OwnerRun(unsigned seed) : m_random(seed) {}
  ~OwnerRun() { m_owner.Reset(); }

  void Run(int steps) {
    for (int step = 0; step < steps; ++step) {
      const int operation = Pick(22);
      Counted::Deleted().clear();
      m_deleted.clear();
      Do(operation);
      ASSERT_EQ(Ids(m_owner), m_model.values) << "step " << step << " operation " << operation;
      ASSERT_EQ(m_owner.GetCur(), m_model.cursor) << "step " << step << " operation " << operation;
      ASSERT_EQ(Counted::Deleted(), m_deleted) << "step " << step << " operation " << operation;
      const auto living = m_model.Length() - std::count(m_model.values.begin(), m_model.values.end(), 0);
      ASSERT_EQ(Counted::Alive(), living);
      ASSERT_EQ(m_owner.GetDataNum(), living);
    }
  }

 private:
  static constexpr bool kIsList = !std::is_base_of_v<VkDynArray<Counted*>, Owner>;

  int Pick(int count) { return static_cast<int>(m_random() % static_cast<unsigned>(count)); }
  int Index() { return Pick(m_model.Length() + 3) - 1; }
  int NewId() { return Pick(6) ? ++m_lastId : 0; }
  static Counted* Made(int id) { return id ? new Counted(id) : nullptr; }
  void Note(int id) {
    if (id) m_deleted.push_back(id);
  }
  // What the slots from the index on hold is deleted.
  void NoteFrom(int index) {
    for (int i = std::max(index, 0); i < m_model.Length(); ++i) {
      Note(m_model.At(i));
      m_model.At(i) = 0;
    }
  }
  int IdAt(int index) { return m_model.IsValid(index) ? m_model.At(index) : 0; }
  bool NoteAndDelCur() {
    Note(IdAt(m_model.cursor));
    return m_model.DelCur();
  }
  static void CompareTakenOff(Counted* object, int id) {
    EXPECT_EQ(object ? object->id : 0, id);
    delete object;
    if (id) Counted::Deleted().pop_back(); // not by the container
  }

  void Do(int operation) {
    Owner& o = m_owner;
    ContainerModel& m = m_model;
    const int i = Index();
    switch (operation) {
    case 0:
    case 1:
    case 2: {
      const int id = NewId();
      return ExpectEqual(o.Append(Made(id)), m.Append(id));
    }
    case 3:
    case 4: {
      const int id = NewId();
      return o.Insert(i, Made(id)), m.Insert(i, id);
    }
    case 5:
      return ExpectEqual(o.MoveTo(i), m.MoveTo(i));
    case 6:
      return ExpectEqual(o.MoveToNext(), m.MoveToNext());
    case 7:
      return ExpectEqual(o.DelCur(), NoteAndDelCur());
    case 8:
      return ExpectEqual(o.Del(i), m.MoveTo(i) && NoteAndDelCur());
    case 9:
      o.Release(i);
      m.MoveTo(i);
      Note(IdAt(i));
      if (m.IsValid(i)) m.At(i) = 0;
      return;
    case 10: {
      const int id = IdAt(m.cursor);
      CompareTakenOff(o.TakeOffCur(), id);
      m.DelCur();
      return;
    }
    case 11: {
      const int id = IdAt(i);
      CompareTakenOff(o.TakeOff(i), id);
      m.Del(i);
      return;
    }
    case 12: {
      const int id = ++m_lastId;
      const int slot = m.Find(0);
      EXPECT_EQ(o.PlaceIn(Made(id)), slot >= 0 ? slot : m.Append(id));
      if (slot >= 0) m.At(slot) = id;
      return;
    }
    case 13: {
      o.ReAllocate(i);
      NoteFrom(i);
      ClearBehind();
      return m.ReAllocate(i);
    }
    case 14: {
      const bool keep = Pick(2) == 0;
      o.SetLength(i, keep);
      NoteFrom(keep || (!kIsList && std::max(i, 0) == m.space) ? i : 0);
      ClearBehind();
      return m.SetLength(i, keep);
    }
    case 15:
      if (Pick(4)) return;
      o.Reset();
      NoteFrom(0);
      return m.Reset();
    case 16:
      if (Pick(4)) return;
      o.ReleaseAll();
      return NoteFrom(0);
    case 17: {
      const int target = Pick(m.Length() + 2);
      return ExpectEqual(o.Move(i, target), m.Move(i, target));
    }
    case 18: {
      const int id = IdAt(i);
      Counted* const object = m.IsValid(i) ? *o.GetTo(i) : nullptr;
      EXPECT_EQ(o.FindDel(object), m.FindDel(id));
      return Note(id);
    }
    case 19: {
      const int id = IdAt(i);
      if (id == 0) return;
      EXPECT_EQ(o.FindDataDel(*GetObject(i)), m.FindDel(id));
      return Note(id);
    }
    case 20:
      o.Sort(ByTens);
      return SortModel();
    default: {
      Owner shared(o);
      EXPECT_EQ(Ids(shared), m.values);
      shared.SetAll(nullptr);
      return;
    }
    }
  }

  Counted* GetObject(int index) { return &m_owner.GetPData(index); }
  void ClearBehind() { std::fill(m_model.behind.begin(), m_model.behind.end(), 0); }

  // Null slots keep their places in an array; in a list they sort like the greatest one before them.
  void SortModel() {
    std::vector<std::pair<int, int>> keyed; // key, id
    int greatest = -1;
    for (const int id : m_model.values) {
      if (id || kIsList) keyed.emplace_back(id ? id / 10 : greatest, id);
      if (id) greatest = std::max(greatest, id / 10);
    }
    std::stable_sort(keyed.begin(), keyed.end(),
                     [](const auto& a, const auto& b) { return a.first < b.first; });
    auto next = keyed.begin();
    for (int& id : m_model.values) {
      if (id || kIsList) id = next++->second;
    }
  }

  std::mt19937 m_random;
  int m_lastId = 0;
  Owner m_owner;
  ContainerModel m_model{kIsList};
  std::vector<int> m_deleted;
};

template <class Owner> class OwningRandom : public testing::Test {};
using Members = testing::Types<VkDynPArray<Counted>, VkPDList<Counted>, VkPXList<Counted>, SmallGroups>;
TYPED_TEST_SUITE(OwningRandom, Members);

TYPED_TEST(OwningRandom, GivesTheSameAsThePlainModelAndDeletesTheSameObjects) {
  for (unsigned seed = 0; seed < 60; ++seed) {
    {
      OwnerRun<TypeParam> run(seed);
      run.Run(800);
    }
    ASSERT_EQ(Counted::Alive(), 0);
    if (this->HasFailure()) FAIL() << "seed " << seed;
  }
}

} // namespace

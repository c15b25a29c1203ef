// The family's rules once more, as plainly as they can be written: a vector, an integer for the cursor, and
// for arrays what stands behind the length within the space.
#pragma once

#include <algorithm>
#include <vector>

class ContainerModel {
 public:
  explicit ContainerModel(bool newRing) : ring(newRing) {}

  bool ring; // a list, whose cursor at the end is at -1
  std::vector<int> values;
  int cursor = -1;
  int space = 0; // arrays only, like the two below
  std::vector<int> behind;
  static constexpr int kUnit = 10;

  int Length() const { return static_cast<int>(values.size()); }
  bool IsValid(int index) const { return index >= 0 && index < Length(); }
  bool IsOut() const { return !IsValid(cursor); }
  int& At(int index) { return values[static_cast<std::size_t>(index)]; }

  bool MoveTo(int index) {
    if (ring) {
      cursor = IsValid(index) ? index : -1;
    } else {
      cursor = std::clamp(index, -1, Length());
    }
    return !IsOut();
  }
  bool MoveToNext() { return MoveTo(cursor + 1); }
  bool MoveToPre() { return MoveTo(ring && cursor < 0 ? Length() - 1 : cursor - 1); }

  void ReAllocate(int count) {
    count = std::max(count, 0);
    if (!ring) {
      if (count > space) {
        space = count + kUnit;
        behind.assign(static_cast<std::size_t>(space - Length()), 0);
      }
      std::vector<int> all = values;
      all.insert(all.end(), behind.begin(), behind.end());
      behind.assign(all.begin() + count, all.end());
      values.assign(all.begin(), all.begin() + count);
    } else {
      values.resize(static_cast<std::size_t>(count));
    }
    KeepCursor();
  }
  void SetLength(int count, bool keep) {
    count = std::max(count, 0);
    if (!ring && count == space) return ReAllocate(count);
    if (!keep) values.clear();
    values.resize(static_cast<std::size_t>(count));
    space = count;
    behind.clear();
    KeepCursor();
  }
  void Reset() {
    values.clear();
    behind.clear();
    space = 0;
    cursor = -1;
  }

  void InsertCur(int value) {
    cursor = cursor >= 0 ? cursor : ring ? Length() : 0;
    if (!ring) {
      if (Length() == space) {
        space = Length() + 1 + kUnit;
        behind.assign(kUnit + 1, 0);
      }
      behind.erase(behind.begin());
    }
    values.insert(values.begin() + cursor, value);
  }
  void InsertAfterCur(int value) { // lists
    ++cursor;
    values.insert(values.begin() + cursor, value);
  }
  void Insert(int index, int value) {
    MoveTo(index);
    InsertCur(value);
  }
  int Append(int value) {
    Insert(Length(), value);
    return cursor;
  }
  bool DelCur() {
    if (IsOut()) return false;
    values.erase(values.begin() + cursor);
    if (!ring) behind.insert(behind.begin(), 0);
    --cursor;
    return true;
  }
  bool Del(int index) { return MoveTo(index) && DelCur(); }

  bool Clip(int& from, int& to) const {
    from = std::max(from, 0);
    if (to < 0 || to >= Length()) to = Length() - 1;
    return from <= to;
  }
  std::vector<int> Hits(int value, int from, int to) {
    std::vector<int> hits;
    if (!Clip(from, to)) return hits;
    for (int i = from; i <= to; ++i) {
      if (At(i) == value) hits.push_back(i);
    }
    return hits;
  }
  int Find(int value, int from = 0, int to = -1) {
    const std::vector<int> hits = Hits(value, from, to);
    return hits.empty() ? -1 : hits.front();
  }
  int FindDel(int value) {
    int count = 0;
    for (MoveTo(0); !IsOut(); MoveToNext()) {
      if (At(cursor) == value) count += DelCur();
    }
    return count;
  }
  bool Move(int from, int to) {
    if (!IsValid(from) || to < 0 || to > Length() || to == from || to == from + 1) return false;
    const int value = At(from);
    Insert(to, value);
    Del(from < to ? from : from + 1);
    return MoveTo(from < to ? to - 1 : to);
  }

  // On ascending values, step by step as it is defined.
  bool BFindTo(int value, int from, int to) {
    if (!Clip(from, to)) {
      MoveTo(from);
      return false;
    }
    MoveTo(from);
    if (value < At(from)) return false;
    if (value > At(to)) {
      MoveTo(to + 1);
      return false;
    }
    while (from < to) {
      const int middle = (from + to) / 2;
      MoveTo(middle);
      if (At(middle) == value) return true;
      if (value < At(middle)) {
        to = middle;
      } else {
        from = middle + 1;
      }
    }
    MoveTo(from);
    if (value > At(from)) MoveTo(from + 1);
    return !IsOut() && At(cursor) == value;
  }
  bool SortInto(int value, bool allowDuplicate) {
    if (BFindTo(value, 0, -1)) {
      if (!allowDuplicate) return false;
      while (!IsOut() && At(cursor) == value) MoveToNext();
    }
    InsertCur(value);
    return true;
  }

  // So many new elements, as for a copy; the cursor keeps its index.
  void Refill(const std::vector<int>& contents) {
    const int kept = cursor;
    SetLength(0, false);
    SetLength(static_cast<int>(contents.size()), false);
    values = contents;
    MoveTo(kept);
  }
  std::vector<int> Slice(int from, int to) const {
    if (!Clip(from, to)) return {};
    return {values.begin() + from, values.begin() + to + 1};
  }

  void Rotate(int from, int to) { // lists
    if (from == to || values.empty()) return;
    const int head = ((Length() - to + from) % Length() + Length()) % Length();
    std::rotate(values.begin(), values.begin() + head, values.end());
    cursor = 0;
  }
  int Conbine(ContainerModel& other, int from) { // lists
    if (!other.IsValid(from)) return Length();
    values.insert(values.end(), other.values.begin() + from, other.values.end());
    other.values.resize(static_cast<std::size_t>(from));
    other.cursor = from - 1;
    return Length();
  }

 private:
  void KeepCursor() { MoveTo(cursor); }
};

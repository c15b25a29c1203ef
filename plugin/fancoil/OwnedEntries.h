// What a maker does with its models and the catalogue with its makers. Both arrays own their entries, and
// either may hold null ones. Results are 1 for done and 0 for not, as both classes give them on.
#pragma once

#include "host/afx/CStringArray.h"
#include "plugin/base/CZPArray.h"

namespace fancoil {

template <typename Entry> using OwnedEntries = CZPArray<Entry*, Entry*>;

template <typename Entry> Entry* FindEntry(const OwnedEntries<Entry>& entries, const CString& name) {
  for (Entry* entry : entries)
    if (entry && entry->GetName() == name) return entry;
  return nullptr;
}

// The name test covers the pointer test too: the same entry has the same name.
template <typename Entry> bool CanAdd(const OwnedEntries<Entry>& entries, const Entry* entry) {
  return entry && !FindEntry(entries, entry->GetName());
}

template <typename Entry> int RemoveEntry(OwnedEntries<Entry>& entries, Entry* entry) {
  if (!entry) return 0;
  for (int i = 0; i < entries.GetSize(); ++i) {
    if (entries[i] != entry) continue;
    entries.RemoveAt(i);
    delete entry;
    return 1;
  }
  return 0;
}

template <typename Entry> int AppendNames(const OwnedEntries<Entry>& entries, CStringArray& out) {
  if (entries.IsEmpty()) return 0;
  for (const Entry* entry : entries)
    if (entry) out.Add(entry->GetName());
  return 1;
}

// Copies of the entries at the same places; out must be empty.
template <typename Entry> void CopyEntries(const OwnedEntries<Entry>& entries, OwnedEntries<Entry>& out) {
  for (const Entry* entry : entries) out.Add(entry ? new Entry(*entry) : nullptr);
}

template <typename Entry> void DeleteEntries(OwnedEntries<Entry>& entries) {
  for (Entry* entry : entries) delete entry;
  entries.SetSize(0);
}

} // namespace fancoil

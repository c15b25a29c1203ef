// A selection set that frees itself.
#pragma once

#include "host/db/resbuf.h"
#include "host/ed/SelectionSets.h"
#include "host/ge/AcGePoint3d.h"

class ArxDbgSelSet {
 public:
  // kSelected: there is at least one entity. kRejected: none, or a filter that is none.
  enum SelSetStatus { kSelected, kCanceled, kRejected };

  ArxDbgSelSet() = default;
  ArxDbgSelSet(const ArxDbgSelSet&) = delete;
  ArxDbgSelSet& operator=(const ArxDbgSelSet&) = delete;

  // Lets userSelect take what was selected before the command, where the command works on that.
  void setAllowPickfirst(bool allow) { m_allowPickfirst = allow; }

  // Each replaces what was selected before. filter may be null.
  SelSetStatus userSelect(const wchar_t* prompt = nullptr, const resbuf* filter = nullptr);
  SelSetStatus allSelect(const resbuf* filter = nullptr); // also what is not drawn
  SelSetStatus impliedSelect(const resbuf* filter = nullptr);
  SelSetStatus previousSelect(const resbuf* filter = nullptr);
  SelSetStatus lastSelect(const resbuf* filter = nullptr);
  SelSetStatus windowSelect(const AcGePoint3d& first, const AcGePoint3d& second,
                            const resbuf* filter = nullptr);
  SelSetStatus crossingSelect(const AcGePoint3d& first, const AcGePoint3d& second,
                              const resbuf* filter = nullptr);
  SelSetStatus lastStatus() const { return m_status; }

  const std::vector<AcDbObjectId>& ids() const { return m_set.ids(); }
  long length() const { return static_cast<long>(ids().size()); }
  // Fills an id array in the order of selection; what it held is gone.
  template <typename Array> void asArray(Array& array) const {
    array = Array();
    for (const auto& id : ids()) array.append(id);
  }
  void add(const AcDbObjectId& id) { m_set.add(id); }
  void remove(const AcDbObjectId& id) { m_set.remove(id); }
  bool member(const AcDbObjectId& id) const { return m_set.has(id); }

 private:
  SelSetStatus get(const wchar_t* mode, const void* first, const void* second, const resbuf* filter);
  SelectionSet m_set;
  SelSetStatus m_status = kRejected;
  bool m_allowPickfirst = false;
};

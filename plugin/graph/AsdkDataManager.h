// A record of T for each open document, made when it is first asked for and erased just before its document
// goes. What a record points to is its owner's business.
#pragma once

#include <map>

#include "host/ed/AcApDocManager.h"

template <typename T> class AsdkDataManager : public AcApDocManagerReactor {
 public:
  AsdkDataManager() { acDocManagerPtr()->addReactor(this); }
  ~AsdkDataManager() override { acDocManagerPtr()->removeReactor(this); }
  AsdkDataManager(const AsdkDataManager&) = delete;
  AsdkDataManager& operator=(const AsdkDataManager&) = delete;

  // Valid until the document is closed.
  T& GetDocData(AcApDocument* document) { return m_records[document]; }

  void documentToBeDestroyed(AcApDocument* document) override { m_records.erase(document); }

 private:
  std::map<AcApDocument*, T> m_records;
};

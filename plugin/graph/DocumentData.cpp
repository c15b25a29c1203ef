#include "plugin/graph/DocumentData.h"

namespace {
// With the module, not with its first use: a document that closes before must not be missed.
AsdkDataManager<CDocData> s_documentData;
} // namespace

AsdkDataManager<CDocData>& DocumentData() {
  return s_documentData;
}

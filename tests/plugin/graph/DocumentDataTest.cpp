#include "plugin/graph/DocumentData.h"

#include "tests/support/ScriptedEditor.h"

#include <gtest/gtest.h>

namespace {

CCADLayerDatabaseReactor* Mark(std::size_t number) {
  return reinterpret_cast<CCADLayerDatabaseReactor*>(number);
}

class DocumentRecords : public testing::Test {
 protected:
  ScriptedEditor editor;
  AcApDocument* document = acDocManagerPtr()->curDocument();
};

TEST_F(DocumentRecords, AreMadeEmptyWhenFirstAskedFor) {
  EXPECT_EQ(DocumentData().GetDocData(document).m_pDatabaseReactor, nullptr);
}

TEST_F(DocumentRecords, AreTheSameEachTime) {
  CDocData& record = DocumentData().GetDocData(document);
  EXPECT_EQ(&DocumentData().GetDocData(document), &record);
}

TEST_F(DocumentRecords, AreOnePerDocument) {
  DocumentData().GetDocData(document).m_pDatabaseReactor = Mark(1);
  AcApDocument* other = &acDocManagerPtr()->newDocument();
  EXPECT_EQ(DocumentData().GetDocData(other).m_pDatabaseReactor, nullptr);
  EXPECT_EQ(DocumentData().GetDocData(document).m_pDatabaseReactor, Mark(1));
}

TEST_F(DocumentRecords, AreErasedWithTheirDocument) {
  AsdkDataManager<int> numbers;
  AcApDocument* other = &acDocManagerPtr()->newDocument();
  numbers.GetDocData(document) = 1;
  numbers.GetDocData(other) = 2;
  acDocManagerPtr()->closeDocument(other);
  EXPECT_EQ(numbers.GetDocData(other), 0) << "a new record for what is no document any more";
  EXPECT_EQ(numbers.GetDocData(document), 1);
}

TEST_F(DocumentRecords, OfAManagerThatIsGoneAreNotToldOfDocuments) {
  { AsdkDataManager<int> numbers; }
  acDocManagerPtr()->closeDocument(&acDocManagerPtr()->newDocument()); // would call into freed memory
}

} // namespace

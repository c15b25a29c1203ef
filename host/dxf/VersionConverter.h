// Turns the records of a drawing into those of another version of the format while it is written; the drawing
// itself stays as it is. What the version lacks is put into its words where it has any, and else left out and
// counted.
#pragma once

#include "host/db/AcDbDatabase.h"
#include "host/dxf/LossList.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace dxf {

class VersionConverter {
 public:
  // target is one of writableVersions().
  VersionConverter(AcDbDatabase& database, std::string_view target);

  // Whether the version has the section; one that is left out counts as a loss.
  bool hasSection(std::string_view name);
  // The same for a record that belongs to nothing and is kept where it stood.
  bool hasStray();
  // Whether a block's definition is written.
  bool hasBlock(const AcDbObject& block);
  std::string header(std::string_view variables);
  std::string classRecord(std::string_view text) const;
  // Nothing: as it stands. An empty text: not written.
  std::optional<std::string> record(const AcDbObject& object);
  // Whether text goes from a code page to UTF-8, in which bytes that the page leaves open have no place:
  // inUtf8 is for every text of the file then.
  bool isToUtf8() const { return m_toUtf8; }
  std::string inUtf8(std::string_view text);
  // What the version asks for and the drawing has nowhere, at the end of OBJECTS.
  std::string addedObjects() const;

  // Above every handle that the conversion gave.
  AcDbHandle seed() const { return AcDbHandle(m_nextHandle); }
  std::vector<CString> losses() const;

 private:
  // Records of R2000 and later, without what is newer than the target.
  std::optional<std::string> reduced(DxfTags tags);
  std::optional<std::string> asR12(const AcDbObject& object, DxfTags tags);
  std::string r12Record(std::string_view type, DxfTags tags);
  // Counts a tag that R12 has no place for, unless it says what a missing one says.
  void missed(std::string_view type, const DxfTag& tag);
  std::string r12DimensionStyle(std::string_view text) const;
  std::string fromR12(const AcDbObject& object, DxfTags tags);
  std::string withOwner(const AcDbObject& object, std::string_view text, DxfTags tags) const;
  std::string withLayouts(const AcDbObject& object, std::string text) const;
  void planLayouts();

  struct Layout {
    AcDbObjectId block;
    CString name;
    AcDbHandle handle;
  };

  AcDbDatabase& m_database;
  std::string m_target;
  bool m_toR12;
  bool m_fromR12;
  bool m_toUtf8;
  bool m_addsOwners; // drawings before R2000 do without
  std::vector<Layout> m_layouts;
  AcDbHandle m_layoutDictionary;
  std::uint64_t m_nextHandle;
  LossList m_losses;
};

} // namespace dxf

// Merges changed fields into a record: what the fields don't name stays where and as it stood, a value that
// says the same keeps its spelling, and a field that the record lacks is put in behind the field before it.
// A new object starts from an empty record and thus gets its fields in the order of the calls.
#pragma once

#include "host/db/AcDbObjectId.h"
#include "host/db/DxfRecord.h"
#include "host/ge/AcGePoint3d.h"
#include "host/ge/AcGeVector3d.h"

#include <optional>

class DxfRecordEditor {
 public:
  // subclassMarkers: whether the drawing's version has them (R13 and later).
  DxfRecordEditor(const DxfRecord& base, bool subclassMarkers);

  bool subclassMarkers() const { return m_markers; }

  // The record's type tag. Must be the first call.
  void type(std::string_view name);
  // From here on fields belong to the subclass; the marker is added where it is missing and the version has
  // markers. A record without any marker is one scope.
  void subclass(std::string_view name);

  void text(int code, std::string_view value);
  void text(int code, const CString& value);
  void name(int code, const CString& value); // keeps the old spelling of a name that differs in case only
  void integer(int code, long long value);
  void real(int code, double value);
  void point(int code, const AcGePoint3d& value);
  void point2d(int code, double x, double y);
  void vector(int code, const AcGeVector3d& value);
  void handle(int code, AcDbHandle value);

  // The same, but a field that is absent and has its default value stays absent.
  void text(int code, const CString& value, const wchar_t* absent);
  void integer(int code, long long value, long long absent);
  void real(int code, double value, double absent);
  void vector(int code, const AcGeVector3d& value, const AcGeVector3d& absent);
  void handle(int code, AcDbHandle value, AcDbHandle absent);
  void name(int code, const CString& value, const wchar_t* absent);

  // Whether the scope has the field.
  bool has(int code) const;
  // The number that stands under the code now.
  std::optional<double> realAt(int code) const;
  std::optional<long long> integerAt(int code) const;

  // Adds a marker behind everything of this scope, for classes whose records end with a second one.
  void closingMarker(std::string_view name);

  // Takes a field away.
  void remove(int code);
  // Replaces the run of tags from the first to the last in this scope whose codes are among codes.
  void replaceRun(std::span<const int> codes, const std::string& newTags);
  // Replaces the 102 group of that name ("{ACAD_XDICTIONARY"), adds it, or removes it when inner is empty.
  void group(std::string_view name, const std::string& innerTags);

  // Replaces everything from the scope's beginning, its 280 left out, up to the extended data: for objects
  // whose data are tags of any code.
  void replaceData(const std::string& newTags);

  DxfRecord finish();

  // "code LF value LF", padded as files usually are.
  static std::string tag(int code, std::string_view value);
  static std::string realTag(int code, double value);

 private:
  struct Item {
    int code;
    std::string text; // of a new or changed tag
    std::string_view value;
    std::string_view raw; // the tag as it stood; empty when changed
  };

  std::size_t find(int code) const;
  void put(int code, std::string value);
  void replaceValue(std::size_t at, std::string value);
  std::size_t skipGroup(std::size_t at) const;
  void endOfScope();

  DxfRecord m_base;
  std::vector<Item> m_items;
  std::size_t m_begin = 0; // of the scope
  std::size_t m_end = 0;
  std::size_t m_cursor = 0; // behind the field touched last
  bool m_markers;
  bool m_hasMarkers = false;
};

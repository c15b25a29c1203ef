// Cuts the text of a drawing file into records: a tag with group code 0 and all tags up to the next one.
#pragma once

#include "host/afx/CString.h"
#include "host/db/DxfTag.h"

#include <string_view>
#include <vector>

namespace dxf {

class RecordScanner {
 public:
  explicit RecordScanner(std::string_view text);

  // Tags ahead of the first record (comments).
  std::string_view preamble() const { return m_preamble; }

  // Moves to the next record. False at the end of the text, behind EOF, and at a broken line.
  bool next();
  std::string_view type() const { return m_type; }
  std::string_view recordText() const { return m_record; }
  DxfTags tags() const { return m_tags; }
  // Tags of this record whose value should be a finite number and is none (NaN, inf, words, 1e999).
  const std::vector<std::size_t>& badReals() const { return m_badReals; }
  // From the current record to the end of the text.
  std::string_view restFromRecord() const;

  // Why next() gave false before EOF: empty when the text just ended.
  const CString& problem() const { return m_problem; }
  std::size_t problemLine() const { return m_problemLine; }
  // The tag that a cut-off text ends in, if any, belongs to no record.
  std::string_view rest() const;
  // Goes on behind a broken line, at the next line that can begin a record. False when there is none.
  bool resynchronise();

  // The line of a place in the text, from 1.
  std::size_t lineOf(const char* place) const;
  double progress() const;

 private:
  bool readTag(DxfTag& tag);
  const char* readPlainCode(int& code) const;
  bool readOddCode(int& code);
  void fail(const char* place, const CString& problem);

  std::string_view m_text;
  std::string_view m_preamble;
  const char* m_at;
  const char* m_end;
  DxfTag m_pending; // the 0 tag of the next record
  const char* m_pendingStart = nullptr;
  bool m_hasPending = false;
  std::string_view m_type;
  std::string_view m_record;
  std::vector<DxfTag> m_tags;
  std::vector<std::size_t> m_badReals;
  CString m_problem;
  std::size_t m_problemLine = 0;
  // The place whose line was asked for last: places mostly come in the order of the text.
  mutable const char* m_countedTo;
  mutable std::size_t m_linesCounted = 0;
};

} // namespace dxf

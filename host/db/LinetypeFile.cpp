#include "host/db/LinetypeFile.h"

#include "host/afx/AtomicFile.h"
#include "host/afx/Numbers.h"

#include <cmath>

namespace {

constexpr std::uint64_t kMaxFileSize = 16u << 20;
constexpr std::size_t kMaxDashes = 12; // of a pattern, as the format allows

CString lineMessage(const CString& path, int line, const wchar_t* what) {
  CString text;
  text.Format(L"%s 第 %d 行：%s", path, line, what);
  return text;
}

// "A,12.7,-6.35,0,-6.35": the alignment, then the dashes. False for anything else.
bool readPattern(CString text, LinetypeDefinition& definition, const wchar_t*& problem) {
  text.Trim();
  if (text.Find(L'[') >= 0) {
    problem = L"含形或文字的复杂线型不受支持";
    return false;
  }
  int start = 0;
  CString piece = text.Tokenize(L",", start);
  piece.Trim();
  if (piece.CompareNoCase(L"A") != 0) {
    problem = L"应以对齐方式“A”开头";
    return false;
  }
  for (piece = text.Tokenize(L",", start); start >= 0; piece = text.Tokenize(L",", start)) {
    piece.Trim();
    const wchar_t* end = nullptr;
    const double length = afx::wcstod(piece, &end);
    if (piece.IsEmpty() || end != piece.GetString() + piece.GetLength() || !std::isfinite(length)) {
      problem = L"划线长度不是数";
      return false;
    }
    definition.dashes.push_back(length);
  }
  if (definition.dashes.size() < 2 || definition.dashes.size() > kMaxDashes) {
    problem = L"划线应为 2 至 12 段";
    return false;
  }
  return true;
}

} // namespace

LinetypeFile readLinetypeText(std::string_view bytes, const CString& path) {
  LinetypeFile file;
  const CString text = CString::FromUtf8(bytes);
  LinetypeDefinition current;
  int currentLine = 0;
  int number = 0;
  for (int start = 0; start <= text.GetLength();) {
    int end = text.Find(L'\n', start);
    if (end < 0) end = text.GetLength();
    CString line = text.Mid(start, end - start);
    line.Trim();
    start = end + 1;
    ++number;
    if (number == 1 && !line.IsEmpty() && line[0] == 0xFEFF) line = line.Mid(1);
    if (line.IsEmpty() || line.Left(2) == L";;" || line[0] == L';') continue;
    if (line[0] == L'*') {
      if (currentLine) file.problems.push_back(lineMessage(path, currentLine, L"线型没有定义行"));
      const int comma = line.Find(L',');
      current = {};
      current.name = comma < 0 ? line.Mid(1) : line.Mid(1, comma - 1);
      current.name.Trim();
      if (comma >= 0) {
        current.description = line.Mid(comma + 1);
        current.description.Trim();
      }
      currentLine = number;
      continue;
    }
    if (!currentLine) {
      file.problems.push_back(lineMessage(path, number, L"定义行之前应有以“*”开头的线型名称行"));
      continue;
    }
    const wchar_t* problem = nullptr;
    if (current.name.IsEmpty())
      file.problems.push_back(lineMessage(path, currentLine, L"“*”之后应有线型名称"));
    else if (readPattern(line, current, problem))
      file.linetypes.push_back(current);
    else
      file.problems.push_back(lineMessage(path, number, problem));
    currentLine = 0;
  }
  if (currentLine) file.problems.push_back(lineMessage(path, currentLine, L"线型没有定义行"));
  return file;
}

LinetypeFile readLinetypeFile(const CString& path) {
  std::string bytes;
  const afx::FileResult result = afx::ReadWholeFile(path, bytes, kMaxFileSize);
  if (!result.ok) {
    LinetypeFile file;
    file.readable = false;
    file.problems.push_back(result.message);
    return file;
  }
  return readLinetypeText(bytes, path);
}

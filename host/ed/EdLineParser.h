// What a typed line means at a prompt: the one parser of console and desktop. Each function looks at the text
// alone; what the drawing makes of it is for the prompt to say.
#pragma once

#include "host/afx/CString.h"
#include "host/db/AcDbHandle.h"
#include "host/ge/AcGePoint3d.h"

#include <optional>
#include <vector>

namespace ed {

// "*cancel*", in any case: the Escape of a line.
bool IsCancelLine(const CString& line);

// "x,y", "x,y,z"; "@dx,dy" or "@dx,dy,dz" from the last point; "distance<angle" and "@distance<angle" with
// degrees. A point without z lies at the height of 0. Nothing for other text, or a number that is not finite.
std::optional<AcGePoint3d> ParsePoint(const CString& line, const AcGePoint3d& lastPoint);

// "drag x,y": where the cursor is moved without picking. Nothing for any other line.
std::optional<AcGePoint3d> ParseDrag(const CString& line, const AcGePoint3d& lastPoint);

// All of the text is one finite number.
std::optional<double> ParseReal(const CString& line);
std::optional<long> ParseInteger(const CString& line);

// "#1A2F": an object by its handle.
std::optional<AcDbHandle> ParseHandle(const CString& line);

// The answer to a message box: "answer BUTTON" gives BUTTON.
std::optional<CString> ParseAnswer(const CString& line);
// The button of an answer: by caption without its "(X)", whole caption, the letter in the brackets, or OK,
// Cancel, Yes or No.
std::optional<std::size_t> FindButton(const std::vector<CString>& buttons, const CString& answer);

struct SelectionLine {
  enum class Kind { end, all, window, crossing, last, previous, point, handle };
  Kind kind = Kind::end;
  AcGePoint3d first; // point; first corner
  AcGePoint3d second;
  bool corners = false; // of a window are given; they are to be asked for otherwise
  AcDbHandle handle;
};
// Nothing for a line that no selection prompt understands.
std::optional<SelectionLine> ParseSelection(const CString& line, const AcGePoint3d& lastPoint);

// A command's name without the marks "'", "_", "." before it, in capitals.
CString CommandName(const CString& line);

// A piece of foreign text as it may be shown in a message: control characters replaced, 60 characters at
// most.
CString Excerpt(const CString& text);

} // namespace ed

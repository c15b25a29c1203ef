// One command: its names, how it is to be run, and the function that does its work.
#pragma once

#include "host/afx/CString.h"

using AcRxFunctionPtr = void (*)();

// Flags of a command. The host looks at those that have a comment; the others are kept for plug-ins that ask.
inline constexpr unsigned ACRX_CMD_MODAL = 0x0;
inline constexpr unsigned ACRX_CMD_TRANSPARENT = 0x1;
inline constexpr unsigned ACRX_CMD_USEPICKSET = 0x2; // takes what was selected before the command
inline constexpr unsigned ACRX_CMD_REDRAW = 0x4;     // leaves that selection standing at its end
inline constexpr unsigned ACRX_CMD_NOPAPERSPACE = 0x40;
inline constexpr unsigned ACRX_CMD_DOCREADLOCK = 0x80000;       // locks the document for reading only
inline constexpr unsigned ACRX_CMD_DOCEXCLUSIVELOCK = 0x100000; // locks it alone
inline constexpr unsigned ACRX_CMD_SESSION = 0x200000;          // about documents, not in one: no lock
inline constexpr unsigned ACRX_CMD_NO_UNDO_MARKER = 0x1000000;  // no undo step of its own

class AcEdCommand {
 public:
  AcEdCommand(CString group, CString globalName, CString localName, unsigned flags, AcRxFunctionPtr function)
      : m_group(std::move(group)), m_global(std::move(globalName)), m_local(std::move(localName)),
        m_flags(flags), m_function(function) {}

  const CString& groupName() const { return m_group; }
  const CString& globalName() const { return m_global; }
  const CString& localName() const { return m_local; }
  unsigned commandFlags() const { return m_flags; }
  AcRxFunctionPtr functionAddr() const { return m_function; }
  bool has(unsigned flag) const { return (m_flags & flag) != 0; }

 private:
  CString m_group;
  CString m_global;
  CString m_local;
  unsigned m_flags;
  AcRxFunctionPtr m_function;
};

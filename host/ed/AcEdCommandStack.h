// All commands, in groups. Names compare without case; in a clash the group that was opened later wins.
#pragma once

#include "host/db/AcRxObject.h"
#include "host/db/AcadStatus.h"
#include "host/ed/AcEdCommand.h"

#include <functional>
#include <memory>
#include <vector>

class AcEdCommandStack : public AcRxObject {
  ACRX_DECLARE_MEMBERS(AcEdCommandStack);

 public:
  // The group is made when there is none. eInvalidInput for an empty name, a name with a blank, or no
  // function; eDuplicateKey when the group has the global or local name already.
  Acad::ErrorStatus addCommand(const wchar_t* group, const wchar_t* globalName, const wchar_t* localName,
                               unsigned flags, AcRxFunctionPtr function);
  // eKeyNotFound for an unknown group or command.
  Acad::ErrorStatus removeCmd(const wchar_t* group, const wchar_t* globalName);
  Acad::ErrorStatus removeGroup(const wchar_t* group);
  // Takes away every command that fits; empty groups go with them. The number of commands.
  std::size_t removeIf(const std::function<bool(const AcEdCommand&)>& fits);

  // By global or local name. The result lives until nobody holds it, so a command may remove itself.
  std::shared_ptr<const AcEdCommand> lookupCmd(const wchar_t* name) const;
  bool hasGroup(const wchar_t* group) const;
  // In the order in which they were added, group after group.
  std::vector<std::shared_ptr<const AcEdCommand>> commands() const;

 private:
  struct Group {
    CString name;
    std::vector<std::shared_ptr<const AcEdCommand>> commands;
  };
  Group* find(const wchar_t* group);
  std::vector<Group> m_groups;
};

AcEdCommandStack* acedCommandStack();
#define acedRegCmds acedCommandStack()

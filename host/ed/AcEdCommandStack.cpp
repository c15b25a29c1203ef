#include "host/ed/AcEdCommandStack.h"

#include <algorithm>

ACRX_NO_CONS_DEFINE_MEMBERS(AcEdCommandStack, AcRxObject)

namespace {

bool isUsableName(const CString& name) {
  return !name.IsEmpty() && name.FindOneOf(L" \t\r\n") < 0;
}

bool answersTo(const AcEdCommand& command, const wchar_t* name) {
  return command.globalName().CompareNoCase(name) == 0 || command.localName().CompareNoCase(name) == 0;
}

} // namespace

AcEdCommandStack::Group* AcEdCommandStack::find(const wchar_t* group) {
  for (auto& candidate : m_groups)
    if (candidate.name.CompareNoCase(group) == 0) return &candidate;
  return nullptr;
}

Acad::ErrorStatus AcEdCommandStack::addCommand(const wchar_t* group, const wchar_t* globalName,
                                               const wchar_t* localName, unsigned flags,
                                               AcRxFunctionPtr function) {
  if (!function || CString(group).IsEmpty() || !isUsableName(globalName) || !isUsableName(localName))
    return Acad::eInvalidInput;
  auto* target = find(group);
  if (target) {
    for (const auto& command : target->commands)
      if (answersTo(*command, globalName) || answersTo(*command, localName)) return Acad::eDuplicateKey;
  } else {
    target = &m_groups.emplace_back(Group{group, {}});
  }
  target->commands.push_back(
      std::make_shared<AcEdCommand>(target->name, globalName, localName, flags, function));
  return Acad::eOk;
}

Acad::ErrorStatus AcEdCommandStack::removeCmd(const wchar_t* group, const wchar_t* globalName) {
  auto* target = find(group);
  if (!target) return Acad::eKeyNotFound;
  const auto removed = std::erase_if(target->commands, [&](const auto& command) {
    return command->globalName().CompareNoCase(globalName) == 0;
  });
  return removed ? Acad::eOk : Acad::eKeyNotFound;
}

Acad::ErrorStatus AcEdCommandStack::removeGroup(const wchar_t* group) {
  const auto removed = std::erase_if(
      m_groups, [&](const auto& candidate) { return candidate.name.CompareNoCase(group) == 0; });
  return removed ? Acad::eOk : Acad::eKeyNotFound;
}

std::size_t AcEdCommandStack::removeIf(const std::function<bool(const AcEdCommand&)>& fits) {
  std::size_t count = 0;
  for (auto& group : m_groups)
    count += std::erase_if(group.commands, [&](const auto& command) { return fits(*command); });
  std::erase_if(m_groups, [](const auto& group) { return group.commands.empty(); });
  return count;
}

std::shared_ptr<const AcEdCommand> AcEdCommandStack::lookupCmd(const wchar_t* name) const {
  for (auto group = m_groups.rbegin(); group != m_groups.rend(); ++group)
    for (const auto& command : group->commands)
      if (answersTo(*command, name)) return command;
  return nullptr;
}

bool AcEdCommandStack::hasGroup(const wchar_t* group) const {
  return const_cast<AcEdCommandStack*>(this)->find(group) != nullptr;
}

std::vector<std::shared_ptr<const AcEdCommand>> AcEdCommandStack::commands() const {
  std::vector<std::shared_ptr<const AcEdCommand>> all;
  for (const auto& group : m_groups) all.insert(all.end(), group.commands.begin(), group.commands.end());
  return all;
}

AcEdCommandStack* acedCommandStack() {
  static auto* stack = new AcEdCommandStack; // never destroyed: plug-ins reach it while they are unloaded
  return stack;
}

// Registers a table of commands with the host.
#pragma once

struct VkCmdTable {
  const wchar_t* command; // the global name
  void (*handler)();
  int flags; // the host's, ACRX_CMD_...
};

// The groups that hold the commands. A command that may run inside another (ACRX_CMD_TRANSPARENT) lands in
// the second one, all others in the first. The second is removed first when the plug-in goes: what runs
// inside others must be out of reach before them.
inline constexpr const wchar_t* kCommandGroup = L"QR";
inline constexpr const wchar_t* kTransparentCommandGroup = L"QRQR";

// All rows in their order. A row that the host refuses is told to the message log under the application's
// name, and the others are registered all the same. reserved has no meaning.
void VkDefineCommand(const wchar_t* application, const VkCmdTable* table, int count, int reserved);

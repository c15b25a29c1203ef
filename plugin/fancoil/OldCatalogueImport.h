// The command that takes the fan-coil catalogue of an older installation over into this one's.
#pragma once

namespace fancoil {

inline constexpr const wchar_t* kOldCataloguePath =
    L"C:\\Program Files\\QingLanC\\Kor70\\Dwglib\\FJPG\\FANCOIL.IDP";

// Needs no document, shows no dialog, and reports on the command line. CFCUManager sees the new models after
// the next start; a SaveData of it before that drops them again.
void ImportOldCatalogue();

} // namespace fancoil

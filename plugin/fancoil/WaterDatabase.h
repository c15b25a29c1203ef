// The five parts of KTSLDatabase.xml with the attributes of their items, and the walks over them.
// docs/formats/ktsl.md describes the file.
#pragma once

#include "host/afx/CString.h"
#include "host/afx/CStringArray.h"
#include "plugin/base/xml/ItemWalk.h"

namespace fancoil {

// The tables of the installation, which nothing here changes.
inline constexpr const wchar_t* kPipeSystemPart = L"PipeSystem";
inline constexpr const wchar_t* kDuctSystemPart = L"DuctSystem";
// What is written here.
inline constexpr const wchar_t* kBlockPart = L"Block";
inline constexpr const wchar_t* kPipeConnectionPart = L"PipeConnection";
inline constexpr const wchar_t* kDuctConnectionPart = L"DuctConnection";

// Of a system the id, of a block the item's own name again, of a connection the block's id.
inline constexpr const wchar_t* kName = L"name";
inline constexpr const wchar_t* kSystemName = L"SysName";
inline constexpr const wchar_t* kMainPipeLayer = L"MainPipeLayer";
inline constexpr const wchar_t* kRiserLayer = L"RiserLayer";
inline constexpr const wchar_t* kDuctLayer = L"Layer";
inline constexpr const wchar_t* kBlockName = L"BlockName"; // in small letters
inline constexpr const wchar_t* kLabelX = L"Labelx";
inline constexpr const wchar_t* kLabelY = L"Labely";
inline constexpr const wchar_t* kId = L"id";

inline constexpr int kNoId = -1;

CString WaterDatabasePath();

// The item's text in small letters, as block names are stored and compared.
CString SmallLetters(CString name);

using xml::WalkItems;

// The first item whose attribute has exactly that text, or that number; null for none and without a part.
VkDtDictItem* FindItem(VkDtDictionary* part, const wchar_t* attribute, const CString& text);
VkDtDictItem* FindItem(VkDtDictionary* part, const wchar_t* attribute, int number);

// Appends the attribute of each item. False without a part.
bool AppendAttributes(VkDtDictionary* part, const wchar_t* attribute, CStringArray& out);

} // namespace fancoil

// Values that the user last left in a dialog, remembered across runs of the program under path-like keys. The
// separators are part of a key: "a\\b" and "a/b" are two keys.
#pragma once

#include "host/afx/CString.h"
#include "plugin/base/ZpExport.h"

namespace ZP {

// 1 when the key was set; else 0, and out stays as it was. Numbers and texts convert as in CIDPEx.
ZP_EXPORT int GetDefaultValue(const CString& key, double& out);
ZP_EXPORT int GetDefaultValue(const CString& key, CString& out);

// Written to the disk at once, unless the key already has this value. 1, or 0 when the disk refuses; the
// value then holds for this run of the program.
ZP_EXPORT int SetDefaultValue(const CString& key, double value);
ZP_EXPORT int SetDefaultValue(const CString& key, const CString& value);

// The file, a parameter file of the user's own. Without a call it is zppipemanager/Defaults.idp in the user's
// data folder: $XDG_DATA_HOME, else ~/.local/share.
ZP_EXPORT void SetDefaultValuesFile(const CString& path);

} // namespace ZP

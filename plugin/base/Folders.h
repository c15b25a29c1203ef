// The folders of the installation. Each ends in a separator, so that callers append names directly; their
// backslashes are understood wherever a file is opened.
#pragma once

#include "host/afx/CString.h"
#include "plugin/base/ZpExport.h"

namespace ZP {

ZP_EXPORT CString GetSystemPath();      // the root: what the host was started with
ZP_EXPORT CString GetDataPath();        // the shared data: the root's folder Data
ZP_EXPORT CString GetDataBmpPath();     // the pictures of the catalogues: Data, folder Bmp
ZP_EXPORT CString GetFCUDwgFilesPath(); // the block drawings of the fan-coil units: Data, folder FCUDwg

} // namespace ZP

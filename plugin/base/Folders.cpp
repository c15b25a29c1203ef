// All folders hang on the installation root, so GetSystemPath() + "Data\\" and GetDataPath() are one place.
#include "plugin/base/Folders.h"

#include "host/afx/Paths.h"

namespace ZP {

CString GetSystemPath() {
  const CString root = afx::InstallRoot();
  if (root.IsEmpty()) return L"./"; // the host has set none: the current folder, not that of the machine
  return root.GetAt(root.GetLength() - 1) == L'/' ? root : root + L"/";
}

CString GetDataPath() {
  return GetSystemPath() + L"Data/";
}

CString GetDataBmpPath() {
  return GetDataPath() + L"Bmp/";
}

CString GetFCUDwgFilesPath() {
  return GetDataPath() + L"FCUDwg/";
}

} // namespace ZP

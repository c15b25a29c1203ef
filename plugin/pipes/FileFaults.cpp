#include "plugin/pipes/FileFaults.h"

#include "host/afx/MessageLog.h"
#include "plugin/base/CIDPEx.h"

void pipes::LogFault(const CString& path, const CString& position, const wchar_t* reason) {
  afx::LogError(L"参数文件 " + path + L"：" + position + L"：" + reason);
}

void pipes::LogUnread(const CString& path, const CString& position, const wchar_t* reason) {
  afx::LogError(L"参数文件 " + path + L"：" + position + L"：" + reason + L"，未读入；下次保存前先另存一份");
  CIDPEx::MarkForeign(path);
}

#include "plugin/base/FileFaults.h"

#include "host/afx/MessageLog.h"
#include "plugin/base/CIDPEx.h"

void idp::LogFault(const CString& path, const CString& position, const wchar_t* reason) {
  afx::LogError(L"参数文件 " + path + L"：" + position + L"：" + reason);
}

void idp::LogUnread(const CString& path, const CString& position, const wchar_t* reason) {
  afx::LogError(L"参数文件 " + path + L"：" + position + L"：" + reason + L"，未读入；下次保存前先另存一份");
  CIDPEx::MarkForeign(path);
}

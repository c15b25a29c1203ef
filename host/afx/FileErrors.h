// What to tell the user about a file that the operating system refused.
#pragma once

#include "host/afx/FileResult.h"

namespace afx {

// The reason in Chinese, followed by the system's own words for it: "磁盘已满（No space left on device）".
CString ErrorReason(int errnoValue);

// A failure such as 无法写入文件“PATH”：REASON; action is 写入, 读取 and so on.
FileResult FileFailure(const wchar_t* action, const CString& path, const CString& reason);
FileResult FileFailure(const wchar_t* action, const CString& path, int errnoValue);

} // namespace afx

#include "host/afx/FileErrors.h"

#include <cerrno>
#include <system_error>

namespace afx {
namespace {

constexpr struct {
  int value;
  const wchar_t* text;
} kReasons[] = {
    {ENOENT, L"文件或文件夹不存在"}, {EEXIST, L"已有同名的文件"},   {EACCES, L"没有访问权限"},
    {EPERM, L"没有访问权限"},        {EROFS, L"磁盘是只读的"},      {ENOSPC, L"磁盘已满"},
    {EDQUOT, L"超出磁盘配额"},       {EFBIG, L"文件过大"},          {ENOTDIR, L"路径中有不是文件夹的部分"},
    {EISDIR, L"这是一个文件夹"},     {ENAMETOOLONG, L"文件名过长"}, {EIO, L"磁盘读写出错"},
    {EMFILE, L"打开的文件过多"},     {ELOOP, L"符号链接循环"},      {ENOMEM, L"内存不足"},
};

} // namespace

CString ErrorReason(int errnoValue) {
  const CString system = CString::FromUtf8(std::generic_category().message(errnoValue));
  for (const auto& [value, text] : kReasons)
    if (value == errnoValue) return text + (L"（" + system + L"）");
  return system;
}

FileResult FileFailure(const wchar_t* action, const CString& path, const CString& reason) {
  FileResult result{false, {}};
  result.message.Format(L"无法%s文件“%s”：%s", action, path, reason);
  return result;
}

FileResult FileFailure(const wchar_t* action, const CString& path, int errnoValue) {
  return FileFailure(action, path, ErrorReason(errnoValue));
}

} // namespace afx

// Removing sub-keys, and the memory image of a tree: a head of 12 bytes before the text of a file.
#include "plugin/base/CInterDpData.h"

#include <cstdint>
#include <cstring>
#include <string_view>

#include "host/afx/MessageLog.h"
#include "plugin/base/idp/Limits.h"
#include "plugin/base/idp/NodeAccess.h"
#include "plugin/base/idp/Reader.h"
#include "plugin/base/idp/StoredText.h"
#include "plugin/base/idp/Writer.h"

namespace {

constexpr std::string_view kMark = "IDP1";
constexpr std::size_t kHeadSize = 12;
constexpr std::size_t kShortestText = 7; // ["",{}]

// Eight bytes, the lowest first, on any machine.
std::uint64_t ReadLength(const unsigned char* bytes) {
  std::uint64_t length = 0;
  for (int i = 7; i >= 0; --i) length = length << 8 | bytes[i];
  return length;
}

short Refuse(const wchar_t* reason) {
  afx::LogError(CString(L"参数内存映像：") + reason);
  return 0;
}

} // namespace

CInterDpData::CInterDpData() = default;
CInterDpData::~CInterDpData() = default;

short CInterDpData::ClearDataFromMemory() {
  idp::NodeAccess::Table(*this).Clear();
  return 1;
}

short CInterDpData::DeleteSubKey(CString key) {
  return idp::NodeAccess::Table(*this).Remove(idp::CompactValue(idp::StoredText(key.View())));
}

short CInterDpData::ReadDataFromBuffer(void* buffer) {
  if (buffer && std::memcmp(buffer, kMark.data(), kMark.size()) == 0) {
    const std::uint64_t length = ReadLength(static_cast<const unsigned char*>(buffer) + kMark.size());
    if (length <= idp::kTextLimit)
      return ReadDataFromBuffer(buffer, kHeadSize + static_cast<std::size_t>(length));
  }
  return ReadDataFromBuffer(buffer, 0);
}

short CInterDpData::ReadDataFromBuffer(const void* buffer, std::size_t size) {
  idp::NodeAccess::Reset(*this);
  const auto* bytes = static_cast<const unsigned char*>(buffer);
  if (!bytes || size < kHeadSize) return Refuse(L"文件头不完整或标记不符");
  if (std::memcmp(bytes, kMark.data(), kMark.size()) != 0) return Refuse(L"标记不是 IDP1");
  const std::uint64_t length = ReadLength(bytes + kMark.size());
  if (length < kShortestText || length > idp::kTextLimit || length > size - kHeadSize) {
    return Refuse(L"长度不可能正确");
  }
  idp::PaddedText text;
  text.bytes.assign(reinterpret_cast<const char*>(bytes + kHeadSize), static_cast<std::size_t>(length));
  idp::Fault fault;
  if (idp::ReadTree(*this, text, fault)) return 1;
  return Refuse(idp::Describe(fault).GetString());
}

short CInterDpData::WriteDataToBuffer(std::string& image) const {
  image.assign(kHeadSize, '\0');
  if (!idp::WriteTree(*this, image)) {
    image.clear();
    return Refuse(L"嵌套过深或过长，未写出");
  }
  std::memcpy(image.data(), kMark.data(), kMark.size());
  std::uint64_t length = image.size() - kHeadSize;
  for (std::size_t i = kMark.size(); i < kHeadSize; ++i, length >>= 8)
    image[i] = static_cast<char>(length & 0xFF);
  return 1;
}

#include "plugin/rooms/RoomRecord.h"

#include <algorithm>
#include <string>

#include "host/afx/MessageLog.h"
#include "host/ed/acutPrintf.h"
#include "plugin/base/CIDPEx.h"
#include "plugin/graph/DocumentWriteLock.h"
#include "plugin/graph/XRecord.h"
#include "plugin/rooms/CTQStorage.h"
#include "plugin/rooms/RoomRecordFields.h"

namespace {

constexpr int kChunkCode = 310;
constexpr std::size_t kChunkSize = 127; // bytes; no drawing file holds more in a line of hexadecimal digits

template <class Work> void ForEachChunk(const resbuf* chain, Work work) {
  for (const resbuf* rb = chain; rb; rb = rb->rbnext)
    if (rb->restype == kChunkCode && rb->resval.rbinary.clen > 0) work(rb->resval.rbinary);
}

// The image whose pieces the chain holds; what else stands in it is passed over.
std::string JoinedChunks(const resbuf* chain) {
  std::size_t size = 0;
  ForEachChunk(chain, [&](const ads_binary& chunk) { size += static_cast<std::size_t>(chunk.clen); });
  std::string image;
  image.reserve(size);
  ForEachChunk(
      chain, [&](const ads_binary& chunk) { image.append(chunk.buf, static_cast<std::size_t>(chunk.clen)); });
  return image;
}

ResbufPtr InChunks(const std::string& image) {
  ResbufBuilder chain;
  for (std::size_t at = 0; at < image.size(); at += kChunkSize) {
    const std::size_t length = std::min(kChunkSize, image.size() - at);
    ads_binary chunk{static_cast<short>(length), new char[length]}; // the chain's
    std::copy_n(image.data() + at, length, chunk.buf);
    chain.binary(kChunkCode, chunk);
  }
  return chain.take();
}

} // namespace

int ZP::GetTQRoom(const AcDbObjectId& id, CTQRoom* room) {
  if (!id.isValid() || !room) return 0;
  const DocumentWriteLock lock; // reading goes on without it
  resbuf* chain = nullptr;
  if (!GetXRecord(id, rooms::kRecordKey, chain)) {
    acutPrintf(L"\n该房间编号无负荷对象信息。");
    return 0;
  }
  const std::string image = JoinedChunks(chain);
  acutRelRb(chain);
  CIDPEx tree;
  // The image comes from a file, so that the length in its head is not to be trusted.
  tree.ReadDataFromBuffer(image.data(), image.size());
  if (!CTQStorage::ReadRoom(room, &tree))
    afx::LogError(L"房间 #" + id.handle().ascii() + L" 的负荷记录无法识别，未读入");
  return 1;
}

int ZP::SetTQRoom(const AcDbObjectId& id, const CTQRoom* room) {
  CIDPEx tree;
  std::string image;
  if (!CTQStorage::WriteRoom(room, &tree) || !tree.WriteDataToBuffer(image)) return 0;
  return SetXRecord(id, rooms::kRecordKey, InChunks(image).get());
}

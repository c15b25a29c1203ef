#include "host/db/resbuf.h"

#include "host/afx/Numbers.h"
#include "host/db/DxfRecordEditor.h"
#include "host/db/DxfText.h"

#include <algorithm>
#include <cstring>
#include <cwchar>
#include <limits>

namespace {

enum class Storage { none, text, real, point, int16, int32, int64, binary };

// Where a buffer of the type keeps its value.
Storage storageOf(int type) {
  switch (type) {
  case RTREAL:
    return Storage::real;
  case RTPOINT:
  case RT3DPOINT:
    return Storage::point;
  case RTSHORT:
    return Storage::int16;
  case RTLONG:
    return Storage::int32;
  case RTSTR:
  case RTDXF0:
    return Storage::text;
  case 1071:
    return Storage::int32;
  default:
    break;
  }
  if (type >= 5000 || type < -5) return Storage::none;
  if (type < 0) return type == -4 ? Storage::text : Storage::none;
  switch (dxf::valueKind(type)) {
  case dxf::ValueKind::real:
    return type < 40 || (type >= 110 && type < 113) || type == 210 || (type >= 1010 && type < 1040)
               ? Storage::point
               : Storage::real;
  case dxf::ValueKind::integer:
    if (type >= 160 && type < 170) return Storage::int64;
    return (type >= 90 && type < 100) || (type >= 420 && type < 460) ? Storage::int32 : Storage::int16;
  case dxf::ValueKind::boolean:
    return Storage::int16;
  case dxf::ValueKind::binary:
    return Storage::binary;
  default:
    return Storage::text;
  }
}

int hexDigit(char c) {
  if (c >= '0' && c <= '9') return c - '0';
  if (c >= 'A' && c <= 'F') return c - 'A' + 10;
  if (c >= 'a' && c <= 'f') return c - 'a' + 10;
  return -1;
}

constexpr std::size_t kMaxItem = 0x7FFF; // bytes

ads_binary binaryFromHex(std::string_view hex) {
  const std::size_t length = std::min(hex.size() / 2, kMaxItem);
  ads_binary chunk{static_cast<short>(length), length ? new char[length] : nullptr};
  for (std::size_t i = 0; i < length; ++i)
    chunk.buf[i] =
        static_cast<char>(std::max(0, hexDigit(hex[2 * i])) << 4 | std::max(0, hexDigit(hex[2 * i + 1])));
  return chunk;
}

std::string hexFromBinary(const ads_binary& chunk) {
  static constexpr char digits[] = "0123456789ABCDEF";
  std::string hex;
  for (int i = 0; i < chunk.clen; ++i) {
    const auto byte = static_cast<unsigned char>(chunk.buf[i]);
    hex += digits[byte >> 4];
    hex += digits[byte & 15];
  }
  return hex;
}

constexpr int kMaxChunk = 127; // bytes

// The second and third number of a point stand under its code plus 10 and plus 20.
constexpr int kPointStep = 10;

} // namespace

resbuf* acutNewRb(int type) {
  auto* rb = new resbuf;
  std::memset(rb, 0, sizeof *rb);
  rb->restype = static_cast<short>(type);
  return rb;
}

int acutRelRb(resbuf* chain) {
  while (chain) {
    resbuf* next = chain->rbnext;
    const Storage storage = storageOf(chain->restype);
    if (storage == Storage::text) delete[] chain->resval.rstring;
    if (storage == Storage::binary) delete[] chain->resval.rbinary.buf;
    delete chain;
    chain = next;
  }
  return RTNORM;
}

wchar_t* acutNewString(const wchar_t* text) {
  const std::size_t length = std::wcslen(text);
  auto* copy = new wchar_t[length + 1];
  std::wmemcpy(copy, text, length + 1);
  return copy;
}

resbuf* ResbufBuilder::append(int type) {
  resbuf* rb = acutNewRb(type);
  if (m_tail)
    m_tail->rbnext = rb;
  else
    m_head.reset(rb);
  return m_tail = rb;
}

ResbufBuilder& ResbufBuilder::text(int type, const CString& value) {
  append(type)->resval.rstring = acutNewString(value);
  return *this;
}

ResbufBuilder& ResbufBuilder::integer(int type, std::int64_t value) {
  resbuf* rb = append(type);
  switch (storageOf(type)) {
  case Storage::int64:
    rb->resval.mnInt64 = value;
    break;
  case Storage::int32:
    rb->resval.rlong = static_cast<std::int32_t>(value);
    break;
  default:
    rb->resval.rint = static_cast<short>(value);
    break;
  }
  return *this;
}

ResbufBuilder& ResbufBuilder::real(int type, double value) {
  append(type)->resval.rreal = value;
  return *this;
}

ResbufBuilder& ResbufBuilder::point(int type, double x, double y, double z) {
  resbuf* rb = append(type);
  rb->resval.rpoint[0] = x;
  rb->resval.rpoint[1] = y;
  rb->resval.rpoint[2] = z;
  return *this;
}

ResbufBuilder& ResbufBuilder::binary(int type, const ads_binary& value) {
  append(type)->resval.rbinary = value;
  return *this;
}

ResbufPtr dxf::toResbuf(DxfTags tags) {
  ResbufBuilder builder;
  for (std::size_t i = 0; i < tags.size(); ++i) {
    const DxfTag& tag = tags[i];
    switch (storageOf(tag.code)) {
    case Storage::point: {
      double xyz[3] = {toReal(tag.value).value_or(0), 0, 0};
      for (int k = 1; k < 3 && i + 1 < tags.size() && tags[i + 1].code == tag.code + k * kPointStep; ++k)
        xyz[k] = toReal(tags[++i].value).value_or(0);
      builder.point(tag.code, xyz[0], xyz[1], xyz[2]);
      break;
    }
    case Storage::real:
      builder.real(tag.code, toReal(tag.value).value_or(0));
      break;
    case Storage::int16:
    case Storage::int32:
    case Storage::int64:
      builder.integer(tag.code, toInteger(tag.value).value_or(0));
      break;
    case Storage::binary: {
      // Bytes in the chain are hexadecimal text in a file. What is longer than an item can count goes on in
      // the next one.
      std::string_view hex = trimBlanks(tag.value);
      do {
        builder.binary(tag.code, binaryFromHex(hex));
        hex.remove_prefix(std::min(hex.size(), 2 * kMaxItem));
      } while (hex.size() > 1);
      break;
    }
    case Storage::text:
      builder.text(tag.code, decodeText(tag.value));
      break;
    case Storage::none:
      break;
    }
  }
  return builder.take();
}

std::string dxf::fromResbuf(const resbuf* chain) {
  std::string tags;
  for (const resbuf* rb = chain; rb; rb = rb->rbnext) {
    const int code = rb->restype;
    switch (storageOf(code)) {
    case Storage::text:
      tags += DxfRecordEditor::tag(code, encodeText(rb->resval.rstring));
      break;
    case Storage::real:
      tags += DxfRecordEditor::realTag(code, rb->resval.rreal);
      break;
    case Storage::point:
      for (int k = 0; k < 3; ++k)
        tags += DxfRecordEditor::realTag(code + k * kPointStep, rb->resval.rpoint[k]);
      break;
    case Storage::int16:
      tags += DxfRecordEditor::tag(code, std::to_string(rb->resval.rint));
      break;
    case Storage::int32:
      tags += DxfRecordEditor::tag(code, std::to_string(rb->resval.rlong));
      break;
    case Storage::int64:
      tags += DxfRecordEditor::tag(code, std::to_string(rb->resval.mnInt64));
      break;
    case Storage::binary:
      // A line of a file holds no more; what is longer goes on in the next tag of the code.
      for (int at = 0; at == 0 || at < rb->resval.rbinary.clen; at += kMaxChunk) {
        const int length = std::min<int>(kMaxChunk, rb->resval.rbinary.clen - at);
        tags += DxfRecordEditor::tag(
            code, hexFromBinary({static_cast<short>(length), rb->resval.rbinary.buf + at}));
      }
      break;
    case Storage::none:
      break;
    }
  }
  return tags;
}

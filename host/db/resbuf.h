// Chains of result buffers: the form in which extended data, xrecords and selection filters are handed over.
#pragma once

#include "host/afx/CString.h"
#include "host/db/AcDbObjectId.h"
#include "host/db/DxfTag.h"

#include <cstdint>
#include <memory>
#include <string>
#include <utility>

struct ads_binary {
  short clen;
  char* buf;
};

using ads_point = double[3];
using ads_real = double;

union ads_u_val {
  double rreal;
  double rpoint[3];
  short rint;
  wchar_t* rstring;
  std::int64_t mnInt64;
  std::int32_t rlong;
  ads_binary rbinary;
};

struct resbuf {
  resbuf* rbnext;
  short restype;
  ads_u_val resval;
};

constexpr int RTNORM = 5100;
constexpr int RTERROR = -5001;
constexpr int RTCAN = -5002;
constexpr int RTREJ = -5003;
constexpr int RTFAIL = -5004;
constexpr int RTKWORD = -5005;
constexpr int RTNONE = 5000;
constexpr int RTREAL = 5001;
constexpr int RTPOINT = 5002;
constexpr int RTSHORT = 5003;
constexpr int RTSTR = 5005;
constexpr int RT3DPOINT = 5009;
constexpr int RTLONG = 5010;
constexpr int RTDXF0 = 5020;

// A new buffer of the type, zero in value; release the chain with acutRelRb.
resbuf* acutNewRb(int type);
// Releases the whole chain with its texts.
int acutRelRb(resbuf* chain);
wchar_t* acutNewString(const wchar_t* text);

struct ResbufDeleter {
  void operator()(resbuf* chain) const { acutRelRb(chain); }
};
using ResbufPtr = std::unique_ptr<resbuf, ResbufDeleter>;

// Builds a chain by appending.
class ResbufBuilder {
 public:
  ResbufBuilder& text(int type, const CString& value);
  ResbufBuilder& integer(int type, std::int64_t value);
  ResbufBuilder& real(int type, double value);
  ResbufBuilder& point(int type, double x, double y, double z);
  ResbufBuilder& binary(int type, const ads_binary& value); // takes the bytes over
  ResbufPtr take() { return std::move(m_head); }
  const resbuf* chain() const { return m_head.get(); }

 private:
  resbuf* append(int type);
  ResbufPtr m_head;
  resbuf* m_tail = nullptr;
};

namespace dxf {

// Record tags to a chain, points gathered from their three tags; and back. A type outside the group codes of
// values gives an empty text.
ResbufPtr toResbuf(DxfTags tags);
std::string fromResbuf(const resbuf* chain);

} // namespace dxf

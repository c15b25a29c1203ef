// A sub-key that has sub-keys of its own begins a line, the others follow on it: a record of a catalogue is
// one line, which compares well. The recursion is as deep as the limit allows.
#include "plugin/base/idp/Writer.h"

#include <charconv>
#include <cmath>

#include "plugin/base/CIDPEx.h"
#include "plugin/base/idp/JsonString.h"
#include "plugin/base/idp/Limits.h"
#include "plugin/base/idp/NodeAccess.h"

namespace idp {

namespace {

void AppendDouble(std::string& out, double value) {
  if (!std::isfinite(value)) {
    out += std::isnan(value) ? R"({"double":"nan"})"
           : value > 0       ? R"({"double":"inf"})"
                             : R"({"double":"-inf"})";
    return;
  }
  char digits[32];
  char* end = std::to_chars(digits, digits + sizeof digits, value).ptr;
  const std::string_view text(digits, static_cast<std::size_t>(end - digits));
  out += text;
  if (text.find_first_of(".e") == text.npos)
    out += ".0"; // without it the value would read back as an integer
}

void AppendValue(std::string& out, const CompactValue& value) {
  switch (value.GetKind()) {
  case CompactValue::Kind::Text:
    AppendJsonString(out, value.Text());
    break;
  case CompactValue::Kind::Double:
    AppendDouble(out, value.Double());
    break;
  case CompactValue::Kind::Integer: {
    char digits[16];
    out.append(digits, std::to_chars(digits, digits + sizeof digits, value.Integer()).ptr);
    break;
  }
  case CompactValue::Kind::Nothing:
    break;
  }
}

bool AppendWithSubKeys(std::string& out, const CInterDpData& node, int depth) {
  if (depth > kDepthLimit || out.size() > kTextLimit) return false;
  out += '[';
  AppendValue(out, NodeAccess::Value(node));
  out += ",{";
  SubKeyTable& table = NodeAccess::Table(node);
  const int count = table.GetCount();
  for (int i = 0; i < count; ++i) {
    SubKey& below = table.At(i);
    if (i > 0) out += ',';
    const bool branch = below.HasSubKeys();
    if (branch) out += '\n';
    AppendJsonString(out, below.key.Text());
    out += ':';
    if (!branch) {
      if (depth == kDepthLimit) return false;
      AppendValue(out, below.Value());
    } else if (!AppendWithSubKeys(out, *below.node, depth + 1)) {
      return false;
    }
  }
  out += "}]";
  return true;
}

} // namespace

bool WriteTree(const CInterDpData& node, std::string& out) {
  const std::size_t start = out.size();
  if (!AppendWithSubKeys(out, node, 1)) return false;
  out += '\n';
  return out.size() - start <= kTextLimit;
}

} // namespace idp

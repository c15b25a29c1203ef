#include "plugin/graph/Xdata.h"

#include <optional>

#include "host/db/AcDbObjectPointer.h"
#include "host/db/resbuf.h"
#include "plugin/graph/XdataKey.h"
#include "plugin/graph/XdataText.h"

namespace {

constexpr int kApplicationCode = 1001;
constexpr int kTextCode = 1000;
constexpr int kBraceCode = 1002;

bool IsBrace(const resbuf* rb, const wchar_t* brace) {
  return rb && rb->restype == kBraceCode && CString(rb->resval.rstring) == brace;
}

// The texts from rb on, joined; rb moves behind them.
CString JoinedTexts(const resbuf*& rb) {
  CString joined;
  for (; rb && rb->restype == kTextCode; rb = rb->rbnext) joined += rb->resval.rstring;
  return joined;
}

// Data of another kind under the name of a key belongs to somebody else and is no value.
std::optional<CString> PlainValue(const AcDbObject& object, const CString& application) {
  const ResbufPtr chain(object.xData(application));
  if (!chain) return std::nullopt;
  const resbuf* rb = chain->rbnext;
  if (rb && rb->restype != kTextCode) return std::nullopt;
  return JoinedTexts(rb);
}

struct Carried {
  CString key;
  CString value;
};

// What stands under the name of the key's carrier: the key in braces, and its value behind.
std::optional<Carried> CarriedValue(const AcDbObject& object, const CString& key) {
  // Hardly any object has one.
  if (object.record().text().find(xdata::kCarrierMark) == std::string_view::npos) return std::nullopt;
  const CString application = xdata::CarrierName(key);
  const ResbufPtr chain(object.xData(application));
  if (!chain || !IsBrace(chain->rbnext, L"{")) return std::nullopt;
  const resbuf* rb = chain->rbnext->rbnext;
  Carried carried;
  carried.key = JoinedTexts(rb);
  if (!IsBrace(rb, L"}")) return std::nullopt;
  rb = rb->rbnext;
  carried.value = JoinedTexts(rb);
  return carried;
}

bool HasNull(const CString& text) {
  return text.View().find(L'\0') != std::wstring_view::npos;
}

// An object that is open for read is open for write while this lives, and open for read again afterwards.
class WriteAccess {
 public:
  explicit WriteAccess(AcDbObject& object) : m_object(object) {
    m_upgraded = !object.isWriteEnabled() && object.upgradeOpen() == Acad::eOk;
  }
  ~WriteAccess() {
    if (m_upgraded) m_object.downgradeOpen();
  }
  WriteAccess(const WriteAccess&) = delete;
  WriteAccess& operator=(const WriteAccess&) = delete;

 private:
  AcDbObject& m_object;
  bool m_upgraded;
};

bool Store(AcDbObject& object, AcDbDatabase& database, const CString& application, ResbufBuilder& data) {
  return database.registerApplication(application) == Acad::eOk && object.setXData(data.chain()) == Acad::eOk;
}

void TakeAway(AcDbObject& object, const CString& application) {
  ResbufBuilder nameAlone;
  nameAlone.text(kApplicationCode, application);
  object.setXData(nameAlone.chain());
}

bool StorePlain(AcDbObject& object, AcDbDatabase& database, const CString& key, const CString& value) {
  ResbufBuilder data;
  data.text(kApplicationCode, key);
  for (const CString& piece : xdata::Pieces(value, database.form())) data.text(kTextCode, piece);
  if (!Store(object, database, key, data)) return false;
  // The drawing may have been of a version that the key's name was too long for.
  const auto carried = CarriedValue(object, key);
  if (carried && carried->key == key) TakeAway(object, xdata::CarrierName(key));
  return true;
}

bool StoreCarried(AcDbObject& object, AcDbDatabase& database, const CString& key, const CString& value) {
  const CString carrier = xdata::CarrierName(key);
  const auto before = CarriedValue(object, key);
  if (before && before->key != key) return false; // two keys of one name: the first one stays
  ResbufBuilder data;
  data.text(kApplicationCode, carrier).text(kBraceCode, L"{");
  for (const CString& piece : xdata::Pieces(key, database.form())) data.text(kTextCode, piece);
  data.text(kBraceCode, L"}");
  for (const CString& piece : xdata::Pieces(value, database.form())) data.text(kTextCode, piece);
  if (!Store(object, database, carrier, data)) return false;
  if (xdata::IsApplicationNameAnywhere(key) && PlainValue(object, key)) TakeAway(object, key);
  return true;
}

} // namespace

int ZP::SetXdata(AcDbObject* object, const wchar_t* key, CString value) {
  const CString name = key;
  if (!object || name.IsEmpty() || HasNull(value)) return 0;
  AcDbDatabase* database = object->database();
  if (!database) database = acdbHostApplicationServices()->workingDatabase();
  if (!database) return 0;
  const WriteAccess access(*object);
  if (!object->isWriteEnabled()) return 0;
  const bool plain = xdata::IsApplicationName(name, database->form());
  const bool stored =
      plain ? StorePlain(*object, *database, name, value) : StoreCarried(*object, *database, name, value);
  return stored ? 1 : 0;
}

int ZP::SetXdata(AcDbObjectId id, const wchar_t* key, CString value) {
  const AcDbObjectPointer<AcDbObject> object(id, AcDb::kForWrite);
  return object ? SetXdata(object.object(), key, std::move(value)) : 0;
}

int ZP::GetXdata(AcDbObject* object, const wchar_t* key, CString& value) {
  const CString name = key;
  if (!object || name.IsEmpty()) return 0;
  if (xdata::IsApplicationNameAnywhere(name)) {
    if (const auto plain = PlainValue(*object, name)) {
      value = *plain;
      return 1;
    }
  }
  const auto carried = CarriedValue(*object, name);
  if (!carried || carried->key != name) return 0;
  value = carried->value;
  return 1;
}

int ZP::GetXdata(AcDbObjectId id, const wchar_t* key, CString& value) {
  const AcDbObjectPointer<AcDbObject> object(id, AcDb::kForRead);
  return object ? GetXdata(object.object(), key, value) : 0;
}

// The check of extended data's form: braces that pair, texts and amounts that files may hold.
#include "host/db/AcDbDictionary.h"
#include "host/db/AcDbObjectPointer.h"
#include "host/db/AcDbXrecord.h"
#include "host/db/AuditChecks.h"
#include "host/db/DxfDecodeContext.h"
#include "host/db/DxfRecordEditor.h"
#include "host/db/DxfText.h"

#include <algorithm>

namespace audit {
namespace {

constexpr std::size_t kMaxText = 255;           // bytes of a text in extended data
constexpr std::size_t kMaxExtendedData = 16384; // bytes of all of an object's

// The data of one application: its name (1001) and what follows.
struct Application {
  std::string name;
  std::vector<DxfTag> tags;
  std::size_t size() const {
    std::size_t sum = name.size() + 1;
    for (const DxfTag& tag : tags) sum += tag.value.size() + 1;
    return sum;
  }
};

// What an object has of extended data, by application, and what stands ahead of it.
struct ExtendedData {
  explicit ExtendedData(const DxfRecord& record) : source(record) {
    for (const DxfTag& tag : source.tags()) {
      if (tag.code == 1001)
        applications.push_back({std::string(tag.value), {}});
      else if (applications.empty())
        ahead += DxfRecordEditor::tag(tag.code, tag.value);
      else
        applications.back().tags.push_back(tag);
    }
  }
  std::size_t size() const {
    std::size_t sum = 0;
    for (const Application& application : applications) sum += application.size();
    return sum;
  }
  DxfRecord record() const {
    std::string text = ahead;
    for (const Application& application : applications) {
      text += DxfRecordEditor::tag(1001, application.name);
      for (const DxfTag& tag : application.tags) text += DxfRecordEditor::tag(tag.code, tag.value);
    }
    return DxfRecord::own(text);
  }

  DxfRecord source; // keeps the text of the tags alive
  std::string ahead;
  std::vector<Application> applications;
};

// A closing brace without its opening one goes, and what is still open at the end is closed there: no value
// is lost. Whether there was anything to do.
bool pairBraces(Application& application) {
  std::vector<DxfTag> paired;
  std::size_t depth = 0;
  for (const DxfTag& tag : application.tags) {
    if (tag.code == 1002 && dxf::trimBlanks(tag.value) != "{") {
      if (depth == 0) continue;
      --depth;
    } else if (tag.code == 1002) {
      ++depth;
    }
    paired.push_back(tag);
  }
  paired.insert(paired.end(), depth, DxfTag{1002, "}"});
  const bool changed = paired.size() != application.tags.size() || depth != 0;
  application.tags = std::move(paired);
  return changed;
}

// A text that is too long becomes several, cut between characters.
bool cutTexts(Application& application) {
  std::vector<DxfTag> cut;
  for (DxfTag tag : application.tags) {
    while (tag.code == 1000 && tag.value.size() > kMaxText) {
      std::size_t end = kMaxText;
      while (end > 0 && (static_cast<unsigned char>(tag.value[end]) & 0xC0) == 0x80) --end;
      if (end == 0) end = kMaxText; // no text in UTF-8
      cut.push_back({tag.code, tag.value.substr(0, end)});
      tag.value.remove_prefix(end);
    }
    cut.push_back(tag);
  }
  const bool changed = cut.size() != application.tags.size();
  application.tags = std::move(cut);
  return changed;
}

// The code that says in an xrecord what this one says in extended data.
int xrecordCode(int code) {
  switch (code) {
  case 1000:
    return 1;
  case 1002:
    return 102;
  case 1003:
    return 8;
  case 1004:
    return 310;
  case 1005:
    return 320;
  case 1070:
    return 70;
  case 1071:
    return 90;
  default:
    return code - 1000; // points and numbers
  }
}

// Puts an application's data into an xrecord of its name, which has no limit, in the object's extension
// dictionary.
bool moveToXrecord(AcDbObject& object, const Application& application) {
  AcDbDatabase& database = *object.database();
  if (object.extensionDictionary().isNull()) {
    AcDbObject* opened = nullptr;
    const auto status = acdbOpenObject(opened, object.objectId(), AcDb::kForWrite);
    if (status == Acad::eOnLockedLayer)
      (opened = &object)->openAsNew();
    else if (status != Acad::eOk)
      return false;
    const auto made = opened->createExtensionDictionary();
    opened->close();
    if (made != Acad::eOk) return false;
  }
  AcDbObjectPointer<AcDbDictionary> dictionary(object.extensionDictionary(), AcDb::kForWrite);
  const CString name = dxf::decodeText(dxf::trimBlanks(application.name));
  if (!dictionary || dictionary->has(name)) return false;
  std::string text = DxfRecordEditor::tag(0, "XRECORD") + DxfRecordEditor::tag(100, "AcDbXrecord") +
                     DxfRecordEditor::tag(280, "1");
  for (const DxfTag& tag : application.tags) text += DxfRecordEditor::tag(xrecordCode(tag.code), tag.value);
  auto record = std::make_unique<AcDbXrecord>();
  record->setRecord(DxfRecord::own(text), DxfDecodeContext(database));
  AcDbObjectId id;
  if (dictionary->setAt(name, record.get(), id) != Acad::eOk) return false;
  record.release()->close();
  return true;
}

// Moves out the largest until the others fit. Whether they do then.
bool moveOut(AcDbObject& object, ExtendedData& data) {
  while (data.size() > kMaxExtendedData) {
    auto& all = data.applications;
    const auto largest = std::max_element(all.begin(), all.end(),
                                          [](const auto& a, const auto& b) { return a.size() < b.size(); });
    if (!moveToXrecord(object, *largest)) return false;
    all.erase(largest);
  }
  return true;
}

void checkObject(Report& report, AcDbObject& object) {
  ExtendedData data(object.record());
  if (data.applications.empty()) return;
  bool isUneven = false;
  bool isLong = false;
  for (Application& application : data.applications) {
    isUneven |= pairBraces(application);
    isLong |= cutTexts(application);
  }
  const bool isLarge = data.size() > kMaxExtendedData;
  if (!isUneven && !isLong && !isLarge) return;
  bool fits = false;
  if (report.repairs()) {
    fits = !isLarge || moveOut(object, data);
    // The head may have got an extension dictionary meanwhile.
    data.ahead = ExtendedData(object.record()).ahead;
    report.change(object, data.record());
  }
  const auto tell = [&](const wchar_t* what, bool done) {
    report.add(AuditCheck::extendedDataForm, object.objectId(), nameOf(object) + what, done);
  };
  if (isUneven) tell(L" 的扩展数据括号不配对", report.repairs());
  if (isLong) tell(L" 的扩展数据中有超过 255 字节的文字，应分为几段", report.repairs());
  if (isLarge) tell(L" 的扩展数据超过 16 KB，最大的一份应移入扩展字典", fits);
}

} // namespace

void checkExtendedData(Report& report) {
  auto& database = report.database();
  for (std::size_t i = 0; i < database.stubs().size(); ++i) {
    AcDbObject& object = *database.stubs()[i].object;
    if (isLive(object)) checkObject(report, object);
  }
}

} // namespace audit

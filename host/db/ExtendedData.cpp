// A symbol of a drawing tool gets its data key by key, so that this is done by the ten thousand: the record
// is walked through once, and nothing of it is taken apart.
#include "host/db/ExtendedData.h"

#include "host/db/DxfRecordEditor.h"
#include "host/db/DxfText.h"
#include "host/db/SameName.h"

namespace {

constexpr int kApplicationCode = 1001;
constexpr int kFirstCode = 1000; // of extended data

// Where the application's data stand in the text; at its end where it has none.
struct Place {
  std::size_t from;
  std::size_t to;
};

Place placeOf(std::string_view text, std::string_view application) {
  Place place{text.size(), text.size()};
  std::size_t start = 0;
  DxfTagReader reader(text);
  for (DxfTag tag; reader.next(tag);) {
    const bool begins = tag.code == kApplicationCode;
    if (place.from < text.size() && (begins || tag.code < kFirstCode)) {
      place.to = start;
      break;
    }
    if (begins && place.from == text.size() && dxf::sameName(dxf::trimBlanks(tag.value), application))
      place.from = start;
    start = static_cast<std::size_t>(tag.value.data() + tag.value.size() - text.data());
    if (start < text.size()) ++start; // the line feed
  }
  return place;
}

} // namespace

DxfRecord dxf::withExtendedData(const DxfRecord& record, std::string_view application,
                                const std::string& tags) {
  const std::string_view text = record.text();
  const Place place = placeOf(text, application);
  if (tags.empty() && place.from == text.size()) return record;
  const std::string head = tags.empty() ? std::string() : DxfRecordEditor::tag(kApplicationCode, application);
  std::string changed;
  changed.reserve(text.size() + head.size() + tags.size() + 1);
  changed += text.substr(0, place.from);
  if (!changed.empty() && changed.back() != '\n') changed += '\n';
  changed += head;
  changed += tags;
  changed += text.substr(place.to);
  if (!changed.empty() && changed.back() != '\n') changed += '\n';
  return DxfRecord::own(std::move(changed));
}

#include "host/db/DxfRecord.h"

DxfRecord DxfRecord::own(std::string text) {
  auto source = std::make_shared<const std::string>(std::move(text));
  DxfRecord record;
  record.m_text = *source;
  record.m_source = std::move(source);
  return record;
}

DxfRecord DxfRecord::partOf(std::shared_ptr<const std::string> source, std::string_view part) {
  DxfRecord record;
  record.m_source = std::move(source);
  record.m_text = part;
  return record;
}

DxfRecord DxfRecord::part(std::size_t begin, std::size_t size) const {
  return partOf(m_source, m_text.substr(begin, size));
}

std::string_view DxfRecord::type() const {
  DxfTagReader reader(m_text);
  DxfTag tag;
  return reader.next(tag) && tag.code == 0 ? dxf::trimBlanks(tag.value) : std::string_view();
}

std::size_t DxfRecord::ownBytes() const {
  return m_source && m_source->size() == m_text.size() ? m_text.size() : 0;
}

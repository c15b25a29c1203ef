// The persistent form of one object: its tags as text, exactly as a drawing file holds them. A record is
// shared and never changes; an object that changes gets a new one. Undo, copying and saving work on records.
#pragma once

#include "host/db/DxfTag.h"

#include <memory>
#include <string>
#include <string_view>

class DxfRecord {
 public:
  DxfRecord() = default;

  // A record with a text of its own.
  static DxfRecord own(std::string text);
  // A record that is a part of a larger text, such as a file as read; it keeps that text alive.
  static DxfRecord partOf(std::shared_ptr<const std::string> source, std::string_view part);

  // A piece of this record's text, which it keeps alive in the same way.
  DxfRecord part(std::size_t begin, std::size_t size = std::string_view::npos) const;

  bool isEmpty() const { return m_text.empty(); }
  // The tags, each as "code LF value LF", beginning with the record's type (0).
  std::string_view text() const { return m_text; }
  std::vector<DxfTag> tags() const { return dxfTagsOf(m_text); }
  // The record's type, such as "LINE"; empty for an empty record.
  std::string_view type() const;
  // Memory that this record alone accounts for (nothing for a part of a larger text).
  std::size_t ownBytes() const;

 private:
  std::shared_ptr<const std::string> m_source;
  std::string_view m_text;
};

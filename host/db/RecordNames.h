// Where records name table records: the layer of an entity, the text style of a multi-line text, the block of
// a dimension, the layers in extended data. Drawing files refer to table records by name as often as by
// handle, also in records that the host keeps without understanding them; renaming, copying between drawings
// and auditing all ask here.
#pragma once

#include "host/afx/CString.h"
#include "host/db/DxfRecord.h"

#include <functional>
#include <optional>

class AcDbObject;

namespace dxf {

// Whose record it is: that decides what a group code means.
enum class RecordKind { entity, other, header };
RecordKind recordKindOf(const AcDbObject& object);

// table is the record type of the table, such as "LAYER". Names that mean nothing there (an empty name) are
// visited too.
using NameVisitor = std::function<void(std::string_view table, const DxfTag& tag)>;
void visitNames(const DxfRecord& record, RecordKind kind, const NameVisitor& visit);

// The new name for an old one, or nothing where it stays.
using NameChange = std::function<std::optional<CString>(std::string_view table, const CString& name)>;
// The record with names changed; nothing when none was.
std::optional<DxfRecord> withNames(const DxfRecord& record, RecordKind kind, const NameChange& change);

// Whether the record's block is its own and anonymous, as the picture of a dimension is.
bool ownsAnonymousBlock(std::string_view recordType);

} // namespace dxf

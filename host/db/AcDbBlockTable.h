// Blocks: named lists of entities, among them model space and the paper spaces.
#pragma once

#include "host/db/AcDbSymbolTable.h"
#include "host/ge/AcGePoint3d.h"

class AcDbBlockBegin;
class AcDbBlockEnd;
class AcDbEntity;

class AcDbBlockTableRecord : public AcDbSymbolTableRecord {
  ACRX_DECLARE_MEMBERS(AcDbBlockTableRecord);

 public:
  // Takes the entity into the drawing as the block's last; the block owns it, and it stays open for write.
  // eAlreadyInDb, eSelfReference for an insertion that would make the block contain itself. On failure the
  // caller keeps it. The block must be open for write.
  Acad::ErrorStatus appendAcDbEntity(AcDbObjectId& id, AcDbEntity* entity);
  Acad::ErrorStatus appendAcDbEntity(AcDbEntity* entity);
  // The entities in drawing order, erased ones included.
  const std::vector<AcDbObjectId>& entities() const { return m_entities; }

  bool isAnonymous() const;
  bool isLayout() const; // model space or a paper space
  bool isModelSpace() const;
  bool isPaperSpace() const; // the active one
  bool isFromExternalReference() const;
  AcGePoint3d origin() const;
  // The base point; may be set before the block is added to the table. eInvalidInput for what is not finite.
  Acad::ErrorStatus setOrigin(const AcGePoint3d& origin);
  // A description for the user.
  CString comments() const;
  Acad::ErrorStatus setComments(const CString& comments);

  // External references:

  bool isFromOverlayReference() const;
  // Where the file of an external reference is, as the drawing says it; empty for other blocks.
  CString pathName() const;
  // A path that is not empty makes a block that is no external reference none: only one that is takes it.
  // Empty is taken by every block.
  Acad::ErrorStatus setPathName(const wchar_t* path);
  // kXrfNotAnXref (0) for an ordinary block.
  AcDb::XrefStatus xrefStatus() const;
  // Makes the block refer to a drawing file. eNotApplicable for a space and for a block with entities.
  Acad::ErrorStatus makeExternalReference(const CString& path, bool overlay);
  // The drawing of a resolved external reference, owned by this one's; null otherwise.
  AcDbDatabase* xrefDatabase() const;

  // Marks as erased, with all that is in it. eObjectIsReferenced while insertions of it are in the drawing
  // and for the spaces.
  Acad::ErrorStatus erase(bool erasing = true) override;
  AcDbObjectId blockBeginId() const { return m_begin; }
  AcDbObjectId blockEndId() const { return m_end; }

  // For the database's own modules:

  // What an insertion of the block shows: its entities, or those of the drawing that it refers to.
  const std::vector<AcDbObjectId>& drawnEntities() const;
  void setBegin(const AcDbObjectId& begin) { m_begin = begin; }
  void setEnd(const AcDbObjectId& end) { m_end = end; }
  void file(const AcDbObjectId& entity) { m_entities.push_back(entity); }

 protected:
  void dxfOutFields(DxfRecordEditor& editor) const override;
  bool acceptsName(const CString& name) const override;
  Acad::ErrorStatus beforeAdding(AcDbSymbolTable& table) override;
  void afterAdding() override;

 private:
  AcDbBlockBegin* beginToChange();

  AcDbObjectId m_begin;
  AcDbObjectId m_end;
  std::vector<AcDbObjectId> m_entities;
  AcGePoint3d m_newOrigin; // until there is a BLOCK to keep it
};

// Walks the entities of a block, erased ones skipped by default.
class AcDbBlockTableRecordIterator {
 public:
  explicit AcDbBlockTableRecordIterator(const AcDbBlockTableRecord& block) : m_block(block) { start(); }
  void start(bool atBeginning = true, bool skipErased = true);
  bool done() const { return m_at >= m_block.entities().size(); }
  void step(bool forward = true, bool skipErased = true);
  Acad::ErrorStatus getEntityId(AcDbObjectId& id) const;
  Acad::ErrorStatus getEntity(AcDbEntity*& entity, AcDb::OpenMode mode, bool openErased = false) const;

 private:
  const AcDbBlockTableRecord& m_block;
  std::size_t m_at = 0;
};

ZP_SYMBOL_TABLE(AcDbBlock);

inline constexpr const wchar_t* ACDB_MODEL_SPACE = L"*Model_Space";
inline constexpr const wchar_t* ACDB_PAPER_SPACE = L"*Paper_Space";

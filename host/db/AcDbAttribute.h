// Attributes: a line of text with a tag that belongs to one insertion, and its definition in the block.
#pragma once

#include "host/db/AcDbText.h"

// What the two have in common.
class AcDbTaggedText : public AcDbText {
  ACRX_DECLARE_MEMBERS(AcDbTaggedText);

 public:
  CString tag() const { return m_tag; }
  // eInvalidInput for an empty tag or one with a blank in it.
  Acad::ErrorStatus setTag(const CString& tag);
  bool isInvisible() const { return (m_flags & 1) != 0; }
  bool isConstant() const { return (m_flags & 2) != 0; }
  bool isVerifiable() const { return (m_flags & 4) != 0; }
  bool isPreset() const { return (m_flags & 8) != 0; }
  Acad::ErrorStatus setInvisible(bool invisible);
  // An invisible one draws nothing.
  void worldDraw(AcGiWorldDraw& draw) const override;

 protected:
  void dxfInFields(DxfTags tags, const DxfDecodeContext& context) override;
  void outTagged(DxfRecordEditor& editor, std::string_view subclass, const CString* prompt) const;
  bool hasClosingMarker() const override { return false; }
  int verticalCode() const override { return 74; }
  int flags() const { return m_flags; }
  Acad::ErrorStatus setFlag(int bit, bool on) { return assign(m_flags, on ? m_flags | bit : m_flags & ~bit); }

 private:
  CString m_tag;
  int m_flags = 0;
};

class AcDbAttributeDefinition;

class AcDbAttribute : public AcDbTaggedText {
  ACRX_DECLARE_MEMBERS(AcDbAttribute);

 public:
  // Takes tag, text, look and place of a definition that is in a drawing, as an insertion with that block
  // transform has it. For an attribute outside a drawing: eAlreadyInDb otherwise; eNullObjectPointer,
  // eNoDatabase, eInvalidInput, eCannotScaleNonUniformly for a singular transform.
  Acad::ErrorStatus setAttributeFromBlock(const AcDbAttributeDefinition* definition,
                                          const AcGeMatrix3d& blockTransform);

 protected:
  void dxfOutFields(DxfRecordEditor& editor) const override;
};

class AcDbAttributeDefinition : public AcDbTaggedText {
  ACRX_DECLARE_MEMBERS(AcDbAttributeDefinition);

 public:
  CString prompt() const { return m_prompt; }
  Acad::ErrorStatus setPrompt(const CString& prompt);
  Acad::ErrorStatus setConstant(bool constant) { return setFlag(2, constant); }
  // Draws its tag; inside a block that is inserted only a constant one shows, and its text.
  void worldDraw(AcGiWorldDraw& draw) const override;

 protected:
  void dxfInFields(DxfTags tags, const DxfDecodeContext& context) override;
  void dxfOutFields(DxfRecordEditor& editor) const override;

 private:
  CString m_prompt;
};

// The mark that ends a run of sub-entities in a file.
class AcDbSequenceEnd : public AcDbEntity {
  ACRX_DECLARE_MEMBERS(AcDbSequenceEnd);
};

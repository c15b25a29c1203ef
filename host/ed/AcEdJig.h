// Base of interactive drags: something that follows the cursor until the user picks a point, gives a keyword
// or ends it. Front ends drive it with the moves of the mouse; at the console a line "drag x,y" moves the
// cursor, and a point picks.
#pragma once

#include "host/afx/CString.h"
#include "host/db/AcDbObjectId.h"
#include "host/db/AcRxObject.h"
#include "host/ed/EdKeywords.h"
#include "host/ge/AcGePoint3d.h"

#include <optional>

class AcDbEntity;

class AcEdJig : public AcRxObject {
  ACRX_DECLARE_MEMBERS(AcEdJig);

 public:
  enum DragStatus {
    kModeless = -17,
    kNoChange = -6, // for sampler: nothing moved, nothing is to be updated
    kCancel = -4,   // Escape, or the input has ended
    kOther = -3,    // other text, or a key that answers by itself; see otherText
    kNull = -1,     // Enter
    kNormal = 0,
    kKW1, // the keywords in the order of their list
    kKW2,
    kKW3,
    kKW4,
    kKW5,
    kKW6,
    kKW7,
    kKW8,
    kKW9
  };

  // Bits of setUserInputControls.
  enum UserInputControls {
    kGovernedByOrthoMode = 0x1,
    kNullResponseAccepted = 0x2, // Enter ends the drag
    kNoZeroResponseAccepted = 0x20,
    kNoNegativeResponseAccepted = 0x40,
    kAccept3dCoordinates = 0x80,
    kAnyBlankTerminatesInput = 0x200,
    kAcceptOtherInputString = 0x800 // text that is nothing else ends the drag with kOther
  };

  AcEdJig();
  ~AcEdJig() override;

  // Runs the drag. kNormal for a pick; kNoChange for a pick when no sample of this drag changed anything;
  // otherwise what the sampler gave. Escape does not mark the running command as cancelled: what it means is
  // for whoever drags to say.
  DragStatus drag();

  // Called for every move and every answer: asks by one of the acquire functions and tells what came.
  virtual DragStatus sampler();
  // Called when a sample was kNormal: brings entity() to its new shape. False when there is nothing to show.
  virtual bool update();
  // What is shown while dragging; may be null. Stays the jig's.
  virtual AcDbEntity* entity() const;
  // Adds entity() to the current space with the entity's own properties, and closes it. A null id when that
  // can't be.
  AcDbObjectId append();

  void setDispPrompt(const CString& prompt) { m_prompt = prompt; }
  const CString& dispPrompt() const { return m_prompt; }
  // As acedInitGet takes them; at most nine have a status of their own.
  void setKeywordList(const CString& keywords);
  const CString& keywordList() const { return m_keywordList; }
  void setUserInputControls(int controls) { m_controls = controls; }
  int userInputControls() const { return m_controls; }
  // The text of the last kOther.
  const CString& otherText() const { return m_otherText; }

  // For sampler only: what the user's latest move or answer comes to. The value changes with kNormal alone.
  DragStatus acquirePoint(AcGePoint3d& value);
  DragStatus acquirePoint(AcGePoint3d& value, const AcGePoint3d& base); // with a rubber band from base
  // The distance from base (the last point without one), or a number.
  DragStatus acquireDist(double& value);
  DragStatus acquireDist(double& value, const AcGePoint3d& base);
  // Radians from the x axis, anticlockwise, 0 to below 2 pi: the direction from base (the last point without
  // one), or a number in degrees.
  DragStatus acquireAngle(double& value);
  DragStatus acquireAngle(double& value, const AcGePoint3d& base);
  DragStatus acquireString(CString& value);

 private:
  enum class Quantity { point, distance, angle, text };
  struct Sample { // the latest move or answer
    std::optional<AcGePoint3d> moved;
    CString line;
    CString problem; // why the line is no answer
    CString expected;
  };
  struct Acquired {
    AcGePoint3d point;
    double number = 0;
  };
  DragStatus acquire(Quantity quantity, const std::optional<AcGePoint3d>& base, Acquired& result);
  DragStatus acquireNumber(Quantity quantity, const std::optional<AcGePoint3d>& base, double& value);
  DragStatus acquireLine(Quantity quantity, const AcGePoint3d& from, Acquired& result);
  void refuse(const CString& problem, const wchar_t* expected);
  DragStatus sampleAndUpdate();
  static AcGePoint3d lastPoint(); // of the working drawing

  CString m_prompt;
  CString m_keywordList;
  CString m_otherText;
  EdKeywords m_keywords;
  int m_controls = 0;
  Sample m_sample;
  std::optional<AcGePoint3d> m_base; // of the rubber band
  bool m_sampling = false;
};

// Modes and codes of the drawing database.
#pragma once

namespace AcDb {

enum OpenMode { kForRead = 0, kForWrite = 1, kForNotify = 2 };

// Line weights in hundredths of a millimetre; the three negative ones are not widths.
enum LineWeight {
  kLnWt000 = 0,
  kLnWt005 = 5,
  kLnWt009 = 9,
  kLnWt013 = 13,
  kLnWt015 = 15,
  kLnWt018 = 18,
  kLnWt020 = 20,
  kLnWt025 = 25,
  kLnWt030 = 30,
  kLnWt035 = 35,
  kLnWt040 = 40,
  kLnWt050 = 50,
  kLnWt053 = 53,
  kLnWt060 = 60,
  kLnWt070 = 70,
  kLnWt080 = 80,
  kLnWt090 = 90,
  kLnWt100 = 100,
  kLnWt106 = 106,
  kLnWt120 = 120,
  kLnWt140 = 140,
  kLnWt158 = 158,
  kLnWt200 = 200,
  kLnWt211 = 211,
  kLnWtByLayer = -1,
  kLnWtByBlock = -2,
  kLnWtByLwDefault = -3
};

enum Visibility { kInvisible = 1, kVisible = 0 };

// Which operand of an intersection counts with its extension.
enum Intersect { kOnBothOperands = 0, kExtendThis = 1, kExtendArg = 2, kExtendBoth = 3 };

// How an external reference stands. kXrfNotAnXref is 0, so that it reads as "no".
enum XrefStatus {
  kXrfNotAnXref = 0,
  kXrfResolved = 1,
  kXrfUnloaded = 2,
  kXrfUnreferenced = 3,
  kXrfFileNotFound = 4,
  kXrfUnresolved = 5
};

// What becomes of a table record that both drawings have when objects are copied from one to the other: the
// drawing's own stays, or it becomes like the one that comes.
enum DuplicateRecordCloning { kDrcIgnore = 1, kDrcReplace = 2 };

// Whether code is one of the weights that a drawing file may hold.
bool isValidLineWeight(int code);

} // namespace AcDb

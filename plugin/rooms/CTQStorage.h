// Between the records of the load calculation and trees of parameters.
#pragma once

#include "plugin/base/ZpExport.h"

class CIDPEx;
class CTQRoom;

class ZP_EXPORT CTQStorage {
 public:
  // Fills the room from the tree; what the tree lacks stays as it was. Non-zero when it did. 0, with the room
  // as it was, for null, and for a tree without the version mark that WriteRoom sets; a mark that is another
  // one is told to the message log.
  static int ReadRoom(CTQRoom* room, CIDPEx* tree);

  // Writes the room into the tree, beside what else the tree holds. Non-zero when it did; 0 for null.
  static int WriteRoom(const CTQRoom* room, CIDPEx* tree);
};

// How a drawing stood in its file, so that it can be written back in its place: version, encoding, line ends,
// the order of its sections, and the texts that the host keeps without looking into them.
#pragma once

#include "host/db/AcDbObjectId.h"
#include "host/db/DxfRecord.h"

#include <string>
#include <vector>

struct DrawingForm {
  // As $ACADVER says, "AC1009" to "AC1032". A file without a header goes by the rules of AC1009.
  std::string version = "AC1027";
  bool hasVersion = true;
  std::string saveVersion; // that SAVEAS chose; empty: the version above
  bool crlf = true;
  bool binary = false;
  // Whether text in the file is UTF-8; otherwise it is in codePage (the DXF name, such as "ANSI_936").
  bool utf8 = true;
  std::string codePage = "ANSI_936";

  // The sections in the order of the file. Text that belongs to no record (comments ahead of the first
  // record, a whole section that the host doesn't know) is kept as it stood.
  struct Section {
    std::string name;
    std::uint32_t firstRank = 0; // of the entities of an ENTITIES section; a damaged file has several
    DxfRecord head;              // from "0 SECTION" to the first record
    DxfRecord body;              // of sections that are kept whole
    DxfRecord tail;              // from "0 ENDSEC" to the next section
  };
  std::vector<Section> sections;
  // A record that belongs to nothing the host knows (a second ENDTAB, a table of no known kind), kept behind
  // what it stood behind.
  struct Stray {
    enum Place { behindHead, behindRecord, behindEnd, behindTail };
    std::size_t section = 0; // behindHead, behindTail: of which section; -1: ahead of the first
    AcDbObjectId object;     // behindRecord: of which object; behindEnd: of which table
    Place place = behindHead;
    DxfRecord text;
  };
  std::vector<Stray> strays;
  // The next free handle when reading had ended. Old drawings may go without handles in the file: as long as
  // nothing was added, their own seed stands.
  AcDbHandle seedAfterReading;
  DxfRecord preamble;                   // ahead of the first section
  DxfRecord eof;                        // "0 EOF" and what follows it
  std::vector<DxfRecord> classes;       // the records of CLASSES
  std::vector<AcDbObjectId> blockOrder; // block records in the order of their BLOCKs

  bool subclassMarkers() const { return version > "AC1009"; }
};

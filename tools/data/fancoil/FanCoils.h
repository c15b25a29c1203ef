// From the table fancoils.tsv to Data/FCUData.idp.
#pragma once

#include <string>

// Replaces the file. Throws TableError.
void WriteFanCoils(const std::string& tables);

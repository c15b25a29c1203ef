// From the tables watersystems.tsv and ductsystems.tsv to Data/KTSLDatabase.xml.
#pragma once

#include <string>

// Replaces the file by one without blocks and connections. Throws TableError.
void WriteWaterSystems(const std::string& tables);

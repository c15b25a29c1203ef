// From the tables fittings.tsv, tees.tsv and tee_pictures.tsv to VacCal.xml.
#pragma once

#include <string>

// Replaces the file. Throws TableError.
void WriteLocalResistances(const std::string& tables);

// From the table radiators.tsv to HeatingData/Srq.idp.
#pragma once

#include <string>

// Replaces the installation's file. Throws TableError.
void WriteRadiators(const std::string& tables);

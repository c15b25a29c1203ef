// From the table velocity.tsv to Data/PipeLimit.idp.
#pragma once

#include <string>

// Replaces the installation's file. Throws TableError.
void WriteVelocityLimits(const std::string& tables);

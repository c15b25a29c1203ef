// From the tables pipes.tsv and pipe_labels.tsv to Data/PipeMaterial.idp.
#pragma once

#include <string>

// Replaces the pipe section of the installation's file. Throws TableError.
void WritePipeMaterials(const std::string& tables);

// From the tables duct_materials.tsv, duct_thickness.tsv and ducts.tsv to Data/PipeMaterial.idp.
#pragma once

#include <string>

// Replaces the duct sections of the installation's file. Throws TableError.
void WriteDucts(const std::string& tables);

// From the table layers.tsv to the layer scheme 默认方案.
#pragma once

#include <string>

// Replaces the scheme's file. Throws TableError.
void WriteLayerScheme(const std::string& tables);

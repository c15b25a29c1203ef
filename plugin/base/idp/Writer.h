// Writes a tree as the text of a parameter file.
#pragma once

#include <string>

class CInterDpData;

namespace idp {

// Appends the text of the node and all below it, as a root. False, with an unfinished text, for a tree that
// is nested too deep or whose text is too long to be read back.
bool WriteTree(const CInterDpData& node, std::string& out);

} // namespace idp

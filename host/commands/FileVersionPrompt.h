// Which version of the format a drawing is to be saved in.
#pragma once

#include <optional>
#include <string>

class AcDbDatabase;

namespace commands {

// Asks for the version, by default the one that the drawing is saved in now. What the chosen one can't hold
// is shown, and without the user's consent nothing is chosen. The version's mark; none when the question was
// left.
std::optional<std::string> AskFileVersion(AcDbDatabase& database);

} // namespace commands

// Commands of the test sibling that work on the attributes of pipes.
#pragma once

void AddPipeCommands(const wchar_t* group);

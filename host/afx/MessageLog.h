// The one message log of the process: what is silent towards the user but must be traceable. The latest 1000
// messages are kept, each cut to 4096 characters. Callable from any thread.
#pragma once

#include <functional>
#include <vector>

#include "host/afx/CString.h"

namespace afx {

enum class MessageKind { Message, Error };

void LogMessage(const CString& text);
void LogError(const CString& text);

// Called for each new message, on the thread that logs it; it may log itself. An empty function takes it off.
using LogSink = std::function<void(MessageKind kind, const CString& text)>;
void SetLogSink(LogSink sink);

// The kept messages, oldest first.
std::vector<CString> LoggedMessages();
void ClearLoggedMessages();

} // namespace afx

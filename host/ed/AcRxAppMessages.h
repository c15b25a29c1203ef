// What the host tells a plug-in through its entry point, and what the entry point answers.
#pragma once

namespace AcRx {

enum AppMsgCode { kNullMsg = 0, kInitAppMsg = 1, kUnloadAppMsg = 2 };
enum AppRetCode { kRetOK = 0, kRetError = 3 };

} // namespace AcRx

// The interface generation that plug-ins are built for; acrxGetApiVersion gives it.
inline constexpr int ACRX_API_VERSION = 0x120000;

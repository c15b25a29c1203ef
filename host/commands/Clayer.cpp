// CLAYER: the layer that new entities stand on.
#include "host/commands/CommandFunctions.h"
#include "host/commands/LayerNames.h"
#include "host/ed/EdPrompts.h"

namespace commands {

void Clayer() {
  const auto answer = ed::AskText({L"输入当前图层的新名称 <" + CurrentLayerName() + L">:", {}, 0, {}});
  if (answer.hasValue()) MakeLayerCurrent(CString(answer.text).Trim());
}

} // namespace commands

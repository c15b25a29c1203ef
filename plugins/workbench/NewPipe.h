// What commands that draw pipes ask and write alike, whatever kind of pipe they draw.
#pragma once

#include "host/afx/CString.h"
#include "plugin/pipes/SZPPipeDNData.h"

class CZPPipe;
class CZPPipeMaterial;

namespace workbench {

struct NewPipe {
  CString layer; // its identifier; the layer is prepared
  const CZPPipeMaterial* material = nullptr;
  SZPPipeDNData diameter;
};

// The kind of pipe, under whose name the answers are remembered, and the first answers to be proposed.
struct PipePresets {
  const wchar_t* kind;
  const wchar_t* const* layers; // up to a null, the first one being proposed
  double nominal;               // mm
};

// Layer, material and diameter, with the answers of the last time as defaults. False for Escape and where a
// catalogue is empty.
bool AskNewPipe(const PipePresets& presets, NewPipe& pipe);
void RememberNewPipe(const PipePresets& presets, const NewPipe& pipe);
// Gives an entity its first data, those of the kind of the wrapper, with this material and diameter.
void WriteNewPipe(CZPPipe& attributes, const NewPipe& pipe);

} // namespace workbench

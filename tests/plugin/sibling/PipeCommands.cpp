#include "tests/plugin/sibling/PipeCommands.h"

#include "host/ed/AcEdCommandStack.h"
#include "host/ed/acedPrompts.h"
#include "host/ed/acutPrintf.h"
#include "host/ed/adsNames.h"
#include "plugin/pipes/attributes/CZPMainPipe.h"
#include "plugin/pipes/attributes/Elevation.h"

namespace {

bool AskForPipe(ads_name name, AcDbObjectId& id) {
  ads_real point[3];
  return acedEntSel(L"\n管线:", name, point) == RTNORM && acdbGetObjectId(id, name) == Acad::eOk;
}

// Makes the entity a main on the layer of an identifier.
void MakeMainPipe() {
  ads_name name;
  AcDbObjectId id;
  CString layerId;
  double dn = 0;
  if (!AskForPipe(name, id) || acedGetString(0, L"\n图层标识:", layerId) != RTNORM) return;
  if (acedGetReal(L"\n管径:", &dn) != RTNORM) return;
  CZPMainPipe pipe(id);
  pipe.InitEntityXdata();
  pipe.SetDN(dn);
  if (!pipe.SetLayerId(layerId)) acutPrintf(L"\n没有图层标识 %s\n", layerId);
}

void SetElevation() {
  ads_name name;
  AcDbObjectId id;
  double elevation = 0;
  if (!AskForPipe(name, id) || acedGetReal(L"\n标高:", &elevation) != RTNORM) return;
  ZP::SetElevation(name, elevation);
}

void TellPipe() {
  ads_name name;
  AcDbObjectId id;
  if (!AskForPipe(name, id)) return;
  const CZPMainPipe pipe(id);
  CString material = L"（无）";
  CString layerId = L"（无）";
  double dn = 0;
  double metres = 0;
  pipe.GetMaterial(material);
  pipe.GetLayerId(layerId);
  pipe.GetDN(dn);
  pipe.GetLength(metres);
  acutPrintf(L"\n%s 管径 %g 长度 %g m 标高 %g 图层标识 %s\n", material, dn, metres, ZP::GetElevation(name),
             layerId);
}

} // namespace

void AddPipeCommands(const wchar_t* group) {
  acedRegCmds->addCommand(group, L"TEST_MAINPIPE", L"TEST_MAINPIPE", 0, MakeMainPipe);
  acedRegCmds->addCommand(group, L"TEST_ELEVATION", L"TEST_ELEVATION", 0, SetElevation);
  acedRegCmds->addCommand(group, L"TEST_PIPE", L"TEST_PIPE", 0, TellPipe);
}

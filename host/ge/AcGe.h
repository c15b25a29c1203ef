// Result codes of the geometry classes. They tell which operand was degenerate.
#pragma once

struct AcGe {
  enum ErrorStatus {
    eOk,
    k0This, // the object itself has zero length
    k0Arg1, // the first argument has zero length
  };
};

using AcGeError = AcGe::ErrorStatus;

#include "plugin/pipes/limits/CZPPipeLimit.h"

CZPPipeLimit::~CZPPipeLimit() = default;

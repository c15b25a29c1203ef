#include "plugin/pipes/SZPPipeDNData.h"

SZPPipeDNData::SZPPipeDNData(double nominal, double outer, double inner)
    : dbNominal(nominal), dbOuter(outer), dbInner(inner) {
  CalThickness();
}

double SZPPipeDNData::CalThickness() {
  dbThickness = (dbOuter - dbInner) * 0.5;
  return dbThickness;
}

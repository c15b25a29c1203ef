// Writes catalogues as the older installation kept them, for tests and for the samples in samples/.
#pragma once

#include "plugin/base/CIDPEx.h"

enum class OldCatalogueForm {
  Clean,
  Damaged, // the second model of the first maker is counted but missing
};

// Three makers: one with two models, one without any, one with names full of percent signs and one model.
void FillOldCatalogue(CIDPEx& root, OldCatalogueForm form);

// A maker with that many models OLD-0, OLD-1 and so on, behind those that root has.
void AddOldMaker(CIDPEx& root, const CString& name, int models);

// A model as the old program wrote it, with all keys. The numbers follow from the seed.
void FillOldModel(CIDPEx& node, const CString& model, int seed);

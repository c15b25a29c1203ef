// The array of all catalogue lists: the framework's array under a name of its own. An array of pointers owns
// nothing; its manager deletes the objects before it empties the array.
#pragma once

#include "host/afx/CArray.h"
#include "plugin/base/ZpExport.h"

template <class TYPE, class ARG_TYPE = const TYPE&>
class ZP_EXPORT CZPArray : public CArray<TYPE, ARG_TYPE> {};

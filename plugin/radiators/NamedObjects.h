// What a type and the catalogue do alike with the objects that they own: names are unique, elements may be
// null.
#pragma once

#include "host/afx/CString.h"
#include "plugin/base/CZPArray.h"

namespace radiators {

// The first of exactly that name, or null.
template <typename Object> Object* FindNamed(const CZPArray<Object*, Object*>& objects, const CString& name) {
  for (Object* object : objects)
    if (object && object->GetName() == name) return object;
  return nullptr;
}

// Appends and takes ownership. False for null and for a name that is in already; the caller keeps it then.
template <typename Object> bool AddNamed(CZPArray<Object*, Object*>& objects, Object* object) {
  if (!object || FindNamed(objects, object->GetName())) return false;
  objects.Add(object);
  return true;
}

// Takes it out and destroys it. False for null and for a pointer that isn't in.
template <typename Object> bool RemoveObject(CZPArray<Object*, Object*>& objects, Object* object) {
  if (!object) return false;
  for (int i = 0; i < objects.GetSize(); ++i) {
    if (objects[i] != object) continue;
    objects.RemoveAt(i);
    delete object;
    return true;
  }
  return false;
}

template <typename Object> void DestroyObjects(CZPArray<Object*, Object*>& objects) {
  for (Object* object : objects) delete object;
  objects.SetSize(0);
}

} // namespace radiators

// What the catalogues of this module do alike with the arrays of objects that they own. Elements may be null.
#pragma once

#include "host/afx/CStringArray.h"
#include "plugin/base/CZPArray.h"

namespace pipes {

template <typename Element> using OwnedElements = CZPArray<Element*, Element*>;

// The first of exactly that name, or null.
template <typename Element> Element* FindNamed(const OwnedElements<Element>& elements, const CString& name) {
  for (Element* element : elements)
    if (element && element->m_strName == name) return element;
  return nullptr;
}

template <typename Element> bool Contains(const OwnedElements<Element>& elements, const Element* element) {
  for (const Element* held : elements)
    if (held == element) return true;
  return false;
}

// Appends and takes ownership. False for null and for a name that is in already; the caller keeps it then.
// The name test covers the pointer test too: the same element has the same name.
template <typename Element> bool AddNamed(OwnedElements<Element>& elements, Element* element) {
  if (!element || FindNamed(elements, element->m_strName)) return false;
  elements.Add(element);
  return true;
}

// Takes it out and destroys it. False for null and for a pointer that isn't in.
template <typename Element> bool RemoveElement(OwnedElements<Element>& elements, Element* element) {
  if (!element) return false;
  for (int i = 0; i < elements.GetSize(); ++i) {
    if (elements[i] != element) continue;
    elements.RemoveAt(i);
    delete element;
    return true;
  }
  return false;
}

template <typename Element> Element* FirstElement(const OwnedElements<Element>& elements) {
  for (Element* element : elements)
    if (element) return element;
  return nullptr;
}

template <typename Element> void NamesOf(const OwnedElements<Element>& elements, CStringArray& out) {
  out.RemoveAll();
  for (const Element* element : elements)
    if (element) out.Add(element->m_strName);
}

template <typename Element> void DestroyElements(OwnedElements<Element>& elements) {
  for (Element* element : elements) delete element;
  elements.SetSize(0);
}

} // namespace pipes

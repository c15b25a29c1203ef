#include "plugin/base/containers/ExportedContainers.h"

#include "plugin/base/VkDtDictItem.h"

#define ZP_MAKE_NUMBER(TYPE) ZP_EVERY_MEMBER(template, TYPE)
#define ZP_MAKE_CLASS(TYPE) ZP_POINTER_ARRAY(template, TYPE)
ZP_NUMBER_ELEMENTS(ZP_MAKE_NUMBER)
ZP_CLASS_ELEMENTS(ZP_MAKE_CLASS)

ZP_POINTER_ARRAY(template, VkDtDictItem)
template class VkOwning<VkDtDictItem, VkDynArray<VkDtDictItem*>>;
template class VkDynPArray<VkDtDictItem>;
template class VkList<VkDtDictItem*>;
template class VkDList<VkDtDictItem*>;
template class VkOwning<VkDtDictItem, VkDList<VkDtDictItem*>>;
template class VkPDList<VkDtDictItem>;

// The instantiations that sibling plug-ins share with this one, so that all use one copy of their code. Other
// element types need nothing: whoever includes the container has them.
#pragma once

#include "plugin/base/containers/Vk2dArray.h"
#include "plugin/base/containers/VkDynPArray.h"
#include "plugin/base/containers/VkPDList.h"
#include "plugin/base/containers/VkXList.h"

// Numbers: in every member of the family.
#define ZP_NUMBER_ELEMENTS(X) X(char) X(int) X(long) X(double)

// Classes of the libraries beside this plug-in. Only their names are known here, so what is shared are arrays
// of pointers; the owning forms are instantiated by those who know the class.
#define ZP_CLASS_ELEMENTS(X)                                                                                 \
  X(VkGePoint)                                                                                               \
  X(VkGePoint3d)                                                                                             \
  X(VkGeExtent)                                                                                              \
  X(VkGeExtent3d)                                                                                            \
  X(VkGeFace)                                                                                                \
  X(VkGeFace3d)                                                                                              \
  X(VkGeMLine2d)                                                                                             \
  X(VkGeMLine3d)                                                                                             \
  X(VkGeCurveMeshCell)                                                                                       \
  X(VkGeCurveMeshCell3d)                                                                                     \
  X(VkGeCurveMeshEdge)                                                                                       \
  X(VkGeCurveMeshEdge3d)                                                                                     \
  X(VkGeCurveMeshNode)                                                                                       \
  X(VkGeCurveMeshNode3d)                                                                                     \
  X(VkGeGridCellBJ)                                                                                          \
  X(VkGeGridLineBJ)                                                                                          \
  X(VkGeGridNodeBJ)                                                                                          \
  X(VkGeGridSegBJ)                                                                                           \
  X(VkGePtQuadTree2d)                                                                                        \
  X(VkGiObject)                                                                                              \
  X(VkGraphArc)                                                                                              \
  X(VkGraphNode)                                                                                             \
  X(VkDbGrip)                                                                                                \
  X(VkDbGripDim)                                                                                             \
  X(VkDbPipeGraphEdge)                                                                                       \
  X(VkDbReactorAndData)                                                                                      \
  X(VkDbWallGraphEdge)                                                                                       \
  X(VkDbWallGraphNode)                                                                                       \
  X(VkDbWallGraphPath)                                                                                       \
  X(VkDynArrayStream)

#define ZP_EVERY_MEMBER(PREFIX, TYPE)                                                                        \
  PREFIX class VkDynArrayBase<TYPE>;                                                                         \
  PREFIX class VkDynArray<TYPE>;                                                                             \
  PREFIX class VkList<TYPE>;                                                                                 \
  PREFIX class VkDList<TYPE>;                                                                                \
  PREFIX class VkXList<TYPE>;                                                                                \
  PREFIX class VkArray<TYPE>;                                                                                \
  PREFIX class Vk2dArray<TYPE>;
#define ZP_POINTER_ARRAY(PREFIX, TYPE)                                                                       \
  PREFIX class VkDynArrayBase<TYPE*>;                                                                        \
  PREFIX class VkDynArray<TYPE*>;

#define ZP_DECLARE(TYPE) class ZP_EXPORT TYPE;
ZP_CLASS_ELEMENTS(ZP_DECLARE)
#undef ZP_DECLARE

#define ZP_SHARE_NUMBER(TYPE) ZP_EVERY_MEMBER(extern template, TYPE)
#define ZP_SHARE_CLASS(TYPE) ZP_POINTER_ARRAY(extern template, TYPE)
ZP_NUMBER_ELEMENTS(ZP_SHARE_NUMBER)
ZP_CLASS_ELEMENTS(ZP_SHARE_CLASS)
#undef ZP_SHARE_NUMBER
#undef ZP_SHARE_CLASS

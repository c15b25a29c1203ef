// What the three tiers of a scheme that own nodes do alike.
#pragma once

#include "plugin/base/CZPArray.h"
#include "plugin/layers/CZPLayerObject.h"

namespace layers {

// Appends under the owner and takes ownership. False for null and for a pointer that is in already; equal
// names are legal.
template <typename Node> bool AddNode(CZPArray<Node*, Node*>& nodes, Node* node, CZPLayerObject* owner) {
  if (!node) return false;
  for (const Node* held : nodes)
    if (held == node) return false;
  node->SetParent(owner);
  nodes.Add(node);
  return true;
}

// Destroys the node and closes its gap. False for null and for a pointer that isn't in.
template <typename Node> bool RemoveNode(CZPArray<Node*, Node*>& nodes, Node* node) {
  if (!node) return false;
  for (int i = 0; i < nodes.GetSize(); ++i) {
    if (nodes[i] != node) continue;
    nodes.RemoveAt(i);
    delete node;
    return true;
  }
  return false;
}

template <typename Node> void DestroyNodes(CZPArray<Node*, Node*>& nodes) {
  for (Node* node : nodes) delete node;
  nodes.SetSize(0);
}

} // namespace layers

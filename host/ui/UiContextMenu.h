// The menu of a right click. What it offers is asked for at each click.
#pragma once

#include "host/afx/CString.h"
#include "host/ui/UiOutcome.h"
#include "host/ui/UiSignal.h"

#include <functional>
#include <vector>

struct UiMenuItem {
  int id = 0;
  CString text;
  bool enabled = true;
};

class UiContextMenu {
 public:
  using Provider = std::function<std::vector<UiMenuItem>()>;

  // Called when the menu opens, after the right click has selected what lies under it.
  void SetProvider(Provider provider) { m_provider = std::move(provider); }
  bool Exists() const { return static_cast<bool>(m_provider); }
  std::vector<UiMenuItem> Items() const { return m_provider ? m_provider() : std::vector<UiMenuItem>(); }

  // Refused for what the menu does not offer now.
  UiOutcome UserChoose(int id) const {
    for (const UiMenuItem& item : Items()) {
      if (item.id != id) continue;
      if (!item.enabled) return {L"菜单项“" + item.text + L"”现在不可用。", L"可用的菜单项"};
      Chosen(id);
      return {};
    }
    return {L"菜单没有这一项。", L"菜单中的一项"};
  }

  UiSignal<int> Chosen; // the id

 private:
  Provider m_provider;
};

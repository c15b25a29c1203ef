// How windows tell observers that something happened. Observers come and go while a signal is being told: one
// that has gone is not told any more, one that has just come waits for the next time.
#pragma once

#include <functional>
#include <memory>
#include <utility>
#include <vector>

// Ends a connection when it goes. May outlive the signal.
class UiConnection {
 public:
  UiConnection() = default;
  explicit UiConnection(std::weak_ptr<bool> alive) : m_alive(std::move(alive)) {}
  UiConnection(UiConnection&& other) noexcept : m_alive(std::exchange(other.m_alive, {})) {}
  UiConnection& operator=(UiConnection&& other) noexcept {
    Disconnect();
    m_alive = std::exchange(other.m_alive, {});
    return *this;
  }
  ~UiConnection() { Disconnect(); }

  void Disconnect() {
    if (const auto alive = m_alive.lock()) *alive = false;
    m_alive.reset();
  }

 private:
  std::weak_ptr<bool> m_alive;
};

template <class... Arguments> class UiSignal {
 public:
  using Observer = std::function<void(Arguments...)>;

  UiSignal() = default;
  UiSignal(const UiSignal&) = delete;
  UiSignal& operator=(const UiSignal&) = delete;

  // For an observer that lives as long as the signal, such as the dialog that owns the control.
  void Connect(Observer observer) { Add(std::move(observer)); }
  // For an observer that may go before the signal.
  [[nodiscard]] UiConnection Watch(Observer observer) { return UiConnection(Add(std::move(observer))); }

  // The signal itself may go while this runs.
  void operator()(Arguments... arguments) const {
    const auto slots = m_slots;
    for (const auto& slot : slots)
      if (*slot->alive) slot->observer(arguments...);
  }

 private:
  struct Slot {
    Observer observer;
    std::shared_ptr<bool> alive;
  };
  std::weak_ptr<bool> Add(Observer observer) {
    std::erase_if(m_slots, [](const auto& slot) { return !*slot->alive; });
    m_slots.push_back(std::make_shared<Slot>(Slot{std::move(observer), std::make_shared<bool>(true)}));
    return m_slots.back()->alive;
  }

  std::vector<std::shared_ptr<Slot>> m_slots;
};

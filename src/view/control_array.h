// Control arrays: controls of one kind and name, told apart by a subscript. The subscripts need not be
// without gaps, and an array can grow and shrink while its window stands.
#pragma once

#include "runtime/fault.h"
#include "view/window.h"

#include <algorithm>
#include <functional>
#include <map>
#include <memory>
#include <utility>
#include <vector>

namespace veldrin {

template <class T>
class ControlArray {
 public:
  using Maker = std::function<std::unique_ptr<T>(int index)>;

  /// The elements `first` to `last`, each made by `maker`, which also makes what the array grows by.
  ControlArray(int first, int last, Maker maker) : maker_(std::move(maker)) {
    for (int index = first; index <= last; ++index) Add(index);
  }
  ControlArray(std::initializer_list<int> indices, Maker maker) : maker_(std::move(maker)) {
    for (const int index : indices) Add(index);
  }

  /// The element with this subscript. Raises fault 340 when it is not there.
  T& operator[](int index) {
    const auto found = elements_.find(index);
    if (found == elements_.end()) Raise(kFaultNoControlElement);
    return *found->second;
  }
  const T& operator[](int index) const { return const_cast<ControlArray&>(*this)[index]; }

  bool Has(int index) const { return elements_.count(index) != 0; }

  /// Adds an element, hidden, behind the one before it in the order of the screen. An element that is
  /// there stays as it is.
  T& Load(int index) {
    if (!Has(index)) {
      T& element = Add(index);
      element.Visible.Design(false);
      PutBehindPredecessor(element);
      for (const auto& bind : binders_) bind(element);
      element.window.desk.machine.windows.ContentChanged(element.window);
    }
    return (*this)[index];
  }

  /// Takes an element away. Its record outlives the event that is running, which may be its own.
  void Unload(int index) {
    const auto found = elements_.find(index);
    if (found == elements_.end()) Raise(kFaultNoControlElement);
    Window& window = found->second->window;
    std::erase(window.controls, found->second.get());
    std::erase(found->second->parent->children, found->second.get());
    window.desk.retired.push_back(std::move(found->second));
    elements_.erase(found);
    window.desk.machine.windows.ContentChanged(window);
  }

  /// Does something with every element there is and every one that will be.
  void ForEach(std::function<void(T&)> bind) {
    for (auto& [index, element] : elements_) bind(*element);
    binders_.push_back(std::move(bind));
  }

  const std::map<int, std::unique_ptr<T>>& Elements() const { return elements_; }

 private:
  T& Add(int index) {
    auto element = maker_(index);
    element->index = index;
    return *(elements_[index] = std::move(element));
  }

  void PutBehindPredecessor(T& element) {
    const auto place = elements_.find(element.index);
    if (place == elements_.begin()) return;
    Control* const before = std::prev(place)->second.get();
    const auto moveBehind = [&](std::vector<Control*>& list) {
      std::erase(list, &element);
      list.insert(std::find(list.begin(), list.end(), before) + 1, &element);
    };
    moveBehind(element.window.controls);
    if (element.kind == ControlKind::Menu) moveBehind(element.parent->children);
  }

  Maker maker_;
  std::map<int, std::unique_ptr<T>> elements_;
  std::vector<std::function<void(T&)>> binders_;
};

/// Makes the elements of an array: each at its own place, all of one look, captions by subscript. A subscript
/// without a caption of its own gets that of the look.
template <class T>
typename ControlArray<T>::Maker Elements(const char* name, Control& parent,
                                         std::function<Place(int index)> place, const Look& look = {},
                                         std::vector<const char*> captions = {}) {
  return [name, &parent, place = std::move(place), look, captions = std::move(captions)](int index) {
    Look own = look;
    if (index >= 0 && index < static_cast<int>(captions.size())) {
      own.caption = captions[static_cast<std::size_t>(index)];
    }
    return std::make_unique<T>(name, parent, place(index), own);
  };
}

/// Elements with subscripts below `from` by the one maker, the others by the other.
template <class Maker>
Maker Split(Maker below, int from, Maker others) {
  return [=](int index) { return index < from ? below(index) : others(index); };
}

/// One place for all elements.
inline std::function<Place(int)> At(const Place& place) {
  return [place](int) { return place; };
}

/// Places below each other, and beside each other, `step` twips apart; `place` is that of subscript `first`.
inline std::function<Place(int)> Downward(const Place& place, float step, int first = 0) {
  return [=](int index) {
    const float top = place.top + step * static_cast<float>(index - first);
    return Place{place.left, top, place.width, place.height};
  };
}
inline std::function<Place(int)> Rightward(const Place& place, float step, int first = 0) {
  return [=](int index) {
    const float left = place.left + step * static_cast<float>(index - first);
    return Place{left, place.top, place.width, place.height};
  };
}

/// Places of a column of gears: gear 6 on top, 480 twips apart down to gear 1. Subscript 0 is the column's
/// head, at `headTop`.
inline std::function<Place(int)> GearColumn(float left, float width, float height, float topOfGear6 = 360,
                                            float headTop = 0) {
  return [=](int index) {
    const float top = index == 0 ? headTop : topOfGear6 + 480.0F * static_cast<float>(6 - index);
    return Place{left, top, width, height};
  };
}

}  // namespace veldrin

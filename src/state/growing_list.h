#pragma once

#include <vector>

/// A list that grows on access, for lists that count from one. Element 0 exists and is the list's empty or
/// special record; the count stands beside the list, in its group. Storage always stays at least `kSlack`
/// records above the highest index asked for. A negative index gives element 0.
template <class T>
class GrowingList {
  public:
    static constexpr int kSlack = 3;

    T& operator[](int index) {
        const auto i = static_cast<std::size_t>(index < 0 ? 0 : index);
        if (i + kSlack >= items_.size()) items_.resize(i + kSlack + 1);
        return items_[i];
    }

    /// Reading never grows: past the end stands an empty record.
    const T& operator[](int index) const {
        static const T kEmpty{};
        const auto i = static_cast<std::size_t>(index < 0 ? 0 : index);
        return i < items_.size() ? items_[i] : kEmpty;
    }

    /// Number of records that have storage, the count's concern is another.
    int size() const { return static_cast<int>(items_.size()); }

    void clear() { items_.clear(); }
    void reserve(int count) { items_.reserve(static_cast<std::size_t>(count < 0 ? 0 : count)); }

  private:
    std::vector<T> items_;
};

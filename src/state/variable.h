#pragma once

#include <array>
#include <span>
#include <string>
#include <string_view>

#include "state/growing_list.h"

// How a state variable describes itself, so that scenarios, the inspector, configuration and panel state
// files reach it by its own name. A scalar needs one row beside its group; a record type lists its fields
// once.

enum class ValueKind { kInt, kDouble, kText, kTextView, kRecord, kList };

struct Field;

struct ValueType {
    ValueKind kind;
    std::span<const Field> fields = {};                   // kRecord
    const ValueType* item = nullptr;                      // kList
    int (*list_size)(const void* list) = nullptr;         // kList
    void* (*list_item)(void* list, int index) = nullptr;  // kList; null outside the list
};

struct Field {
    std::string_view name;
    const ValueType* type;
    void* (*member)(void* record);
};

template <class T>
struct Describe;  // a record type specialises this, with `static constexpr ValueType type`

template <>
struct Describe<int> {
    static constexpr ValueType type{.kind = ValueKind::kInt};
};
template <>
struct Describe<double> {
    static constexpr ValueType type{.kind = ValueKind::kDouble};
};
template <>
struct Describe<std::string> {
    static constexpr ValueType type{.kind = ValueKind::kText};
};
/// Text that lives elsewhere, such as in a file kept in memory: readable, never writable.
template <>
struct Describe<std::string_view> {
    static constexpr ValueType type{.kind = ValueKind::kTextView};
};
template <class T>
struct Describe<GrowingList<T>> {
    static constexpr int kReach = 1000;  // how far past its storage a list may be asked to grow
    static int Size(const void* list) { return static_cast<const GrowingList<T>*>(list)->size(); }
    static void* At(void* list, int index) {
        if (index < 0 || index > Size(list) + kReach) return nullptr;
        return &(*static_cast<GrowingList<T>*>(list))[index];
    }
    static constexpr ValueType type{
        .kind = ValueKind::kList, .item = &Describe<T>::type, .list_size = Size, .list_item = At};
};
template <class T, std::size_t N>
struct Describe<std::array<T, N>> {
    static int Size(const void*) { return static_cast<int>(N); }
    static void* At(void* list, int index) {
        if (index < 0 || index >= static_cast<int>(N)) return nullptr;
        return &(*static_cast<std::array<T, N>*>(list))[static_cast<std::size_t>(index)];
    }
    static constexpr ValueType type{
        .kind = ValueKind::kList, .item = &Describe<T>::type, .list_size = Size, .list_item = At};
};

template <class>
struct MemberOf;
template <class Record, class Member>
struct MemberOf<Member Record::*> {
    using RecordType = Record;
    using MemberType = Member;
};

/// One field row of a record: FieldRow<&FlightPlanLeg::ident>("ident").
template <auto kMember>
constexpr Field FieldRow(std::string_view name) {
    using M = MemberOf<decltype(kMember)>;
    return {name, &Describe<typename M::MemberType>::type,
            [](void* record) -> void* { return &(static_cast<typename M::RecordType*>(record)->*kMember); }};
}

/// One row of the directory: the name that the world knows, and where the value stands.
struct Variable {
    std::string_view name;
    const ValueType* type;
    void* address;

    template <class T>
    constexpr Variable(std::string_view variable_name, T* value)
        : name(variable_name), type(&Describe<T>::type), address(value) {}
};

#pragma once

#include <bit>
#include <cstdint>
#include <string>
#include <string_view>

#include "base/text_fields.h"
#include "state/nav_tables.h"

// The tables are searched by ident on every key press that enters one; with an index the answer is that of a
// scan from the top, without the scan.

inline std::uint32_t HashIdent(std::string_view ident) {
    std::uint64_t hash = ident.size();
    for (const char c : ident) hash = hash * 131 + static_cast<unsigned char>(c);
    return static_cast<std::uint32_t>(hash * 0x9E3779B97F4A7C15u >> 32);
}

/// The ICAO code of a line of apts.txt, in upper case.
inline std::string AirportLineIdent(std::string_view line) {
    return UpperCase(NextField(line));
}

/// Indexes rows 1 to `count` of a list by what `ident_of` gives for a row.
template <class List, class IdentOf>
void BuildIdentIndex(IdentIndex& index, List& list, int count, IdentOf ident_of) {
    index = {};
    if (count == 0) return;
    const auto size = std::bit_ceil(static_cast<std::uint32_t>(count));
    index.heads.assign(size, 0);
    index.next.assign(static_cast<std::size_t>(count) + 1, 0);
    // From the end, so that each chain runs in file order.
    for (int row = count; row > 0; --row) {
        std::int32_t& head = index.heads[HashIdent(ident_of(list[row])) & (size - 1)];
        index.next[static_cast<std::size_t>(row)] = head;
        head = row;
    }
}

/// Calls `visit(row)` for each row whose hash fits, in file order, until it gives false.
template <class Visit>
void VisitIdent(const IdentIndex& index, std::string_view ident, Visit visit) {
    if (index.heads.empty()) return;
    std::int32_t row = index.heads[HashIdent(ident) & (index.heads.size() - 1)];
    for (; row != 0; row = index.next[static_cast<std::size_t>(row)])
        if (!visit(row)) return;
}

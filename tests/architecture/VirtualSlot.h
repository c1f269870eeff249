// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstring>

/// Where a virtual operation stands in the table of its class, counted from 0.
namespace VirtualSlot {

constexpr int kNotVirtual = -1;

/// Reads a pointer to a member function as the C++ ABI of all our compilers
/// lays it out: an address, or the offset into the table and a mark.
template <typename Member>
int of(Member member) {
    struct {
        std::ptrdiff_t pointer;
        std::ptrdiff_t adjustment;
    } raw;
    static_assert(sizeof raw == sizeof member);
    std::memcpy(&raw, &member, sizeof raw);
#if defined(__arm__) || defined(__aarch64__)
    const bool isVirtual = (raw.adjustment & 1) != 0; // there an address may be odd
    const std::ptrdiff_t offset = raw.pointer;
#else
    const bool isVirtual = (raw.pointer & 1) != 0;
    const std::ptrdiff_t offset = raw.pointer - 1;
#endif
    return isVirtual ? static_cast<int>(offset / static_cast<std::ptrdiff_t>(sizeof(void*))) : kNotVirtual;
}

/// Adds one virtual operation to a class; its slot is the number of those that
/// the class has.
template <typename Class>
struct Extended : Class {
    virtual void oneMore() = 0;
};

template <typename Class>
int count() {
    return of(&Extended<Class>::oneMore);
}

} // namespace VirtualSlot

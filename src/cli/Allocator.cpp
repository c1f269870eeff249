// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include <mimalloc.h>

#include <cstddef>
#include <new>

namespace {

// Pages of 2 MiB where the system has them to give, and none given back before the end: a large import touches tens of
// thousands of small ones. That has to be said before the first allocation, which constructors of libraries make.
void settle() {
    mi_option_enable(mi_option_large_os_pages);
    mi_option_disable(mi_option_allow_decommit);
}
[[gnu::section(".preinit_array"), gnu::used]] void (*const g_beforeAnything)() = settle;

// mimalloc is built as C where distributions package it: its own `operator new` ends the process where no memory is
// left. Here that is told like any other failure, and the store keeps what it had.
void* orThrow(void* memory) {
    if (memory == nullptr)
        throw std::bad_alloc();
    return memory;
}

} // namespace

void* operator new(std::size_t size) { return orThrow(mi_malloc(size)); }

void* operator new[](std::size_t size) { return orThrow(mi_malloc(size)); }

void* operator new(std::size_t size, std::align_val_t alignment) {
    return orThrow(mi_malloc_aligned(size, static_cast<std::size_t>(alignment)));
}

void* operator new[](std::size_t size, std::align_val_t alignment) {
    return orThrow(mi_malloc_aligned(size, static_cast<std::size_t>(alignment)));
}

void operator delete(void* memory) noexcept { mi_free(memory); }

void operator delete[](void* memory) noexcept { mi_free(memory); }

void operator delete(void* memory, std::size_t) noexcept { mi_free(memory); }

void operator delete[](void* memory, std::size_t) noexcept { mi_free(memory); }

void operator delete(void* memory, std::align_val_t) noexcept { mi_free(memory); }

void operator delete[](void* memory, std::align_val_t) noexcept { mi_free(memory); }

void operator delete(void* memory, std::size_t, std::align_val_t) noexcept { mi_free(memory); }

void operator delete[](void* memory, std::size_t, std::align_val_t) noexcept { mi_free(memory); }

// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "cli/Allocator.h"

#include <cstddef>
#include <cstdint>
#include <new>

#include <mimalloc.h>
#include <sys/mman.h>

namespace {

// mimalloc is built as C where distributions package it: its own `operator new` ends the process where no memory is
// left. Here that is told like any other failure, and the store keeps what it had.
template <typename Allocate>
void* allocated(Allocate allocate) {
    for (;;) {
        if (void* const memory = allocate())
            return memory;
        const std::new_handler handler = std::get_new_handler();
        if (handler == nullptr)
            throw std::bad_alloc();
        handler();
    }
}

void* allocated(std::size_t size) {
    return allocated([size] { return mi_malloc(size); });
}

void* allocated(std::size_t size, std::align_val_t alignment) {
    return allocated([=] { return mi_malloc_aligned(size, static_cast<std::size_t>(alignment)); });
}

} // namespace

// Other versions have other options, and ask the system for memory in other sizes.
#if MI_MALLOC_VERSION == 209

void Allocator::keepAll() { mi_option_disable(mi_option_allow_decommit); }

void Allocator::useLargePages() {
    mi_option_enable(mi_option_large_os_pages);
    // The segment in use came before that, and hardly any of it was touched so far. It lies at a multiple of its size.
    constexpr std::size_t kSegment = std::size_t{32} << 20;
    void* const block = mi_malloc(1);
    const auto address = reinterpret_cast<std::uintptr_t>(block);
    ::madvise(static_cast<char*>(block) - address % kSegment, kSegment, MADV_HUGEPAGE); // or it stays as it is
    mi_free(block);
}

#else

void Allocator::keepAll() {}

void Allocator::useLargePages() { mi_option_enable(mi_option_large_os_pages); }

#endif

void* operator new(std::size_t size) { return allocated(size); }

void* operator new[](std::size_t size) { return allocated(size); }

void* operator new(std::size_t size, std::align_val_t alignment) { return allocated(size, alignment); }

void* operator new[](std::size_t size, std::align_val_t alignment) { return allocated(size, alignment); }

void operator delete(void* memory) noexcept { mi_free(memory); }

void operator delete[](void* memory) noexcept { mi_free(memory); }

void operator delete(void* memory, std::size_t) noexcept { mi_free(memory); }

void operator delete[](void* memory, std::size_t) noexcept { mi_free(memory); }

void operator delete(void* memory, std::align_val_t) noexcept { mi_free(memory); }

void operator delete[](void* memory, std::align_val_t) noexcept { mi_free(memory); }

void operator delete(void* memory, std::size_t, std::align_val_t) noexcept { mi_free(memory); }

void operator delete[](void* memory, std::size_t, std::align_val_t) noexcept { mi_free(memory); }

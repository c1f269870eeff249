// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "reliability/FailingMemory.h"

#include <cerrno>
#include <cstdlib>
#include <new>

#if defined(__SANITIZE_ADDRESS__)
#define FAILS_NEW_ALONE 1
#elif defined(__has_feature)
#if __has_feature(address_sanitizer)
#define FAILS_NEW_ALONE 1
#endif
#endif

namespace {

bool g_counts = false;
bool g_paused = false;
std::size_t g_number = 0; // of the last allocation
std::size_t g_fatal = 0;
long g_live = 0;

/// Whether the allocation that is asked for now is to fail.
bool fails() { return g_counts && !g_paused && ++g_number == g_fatal; }

template <typename Pointer>
Pointer counted(Pointer block) {
    if (g_counts && block != nullptr)
        ++g_live;
    return block;
}

void uncount(const void* block) {
    if (g_counts && block != nullptr)
        --g_live;
}

} // namespace

#ifdef FAILS_NEW_ALONE

const bool FailingMemory::kFailsNewAlone = true;

void* operator new(std::size_t size) {
    void* block = fails() ? nullptr : counted(std::malloc(size != 0 ? size : 1));
    if (block == nullptr)
        throw std::bad_alloc();
    return block;
}
void* operator new[](std::size_t size) { return operator new(size); }
void* operator new(std::size_t size, const std::nothrow_t&) noexcept {
    return fails() ? nullptr : counted(std::malloc(size != 0 ? size : 1));
}
void operator delete(void* block) noexcept {
    uncount(block);
    std::free(block);
}
void operator delete[](void* block) noexcept { operator delete(block); }
void operator delete(void* block, std::size_t) noexcept { operator delete(block); }
void operator delete[](void* block, std::size_t) noexcept { operator delete(block); }

#else

const bool FailingMemory::kFailsNewAlone = false;

extern "C" {

// The C library's own, under the names by which it keeps them for those who replace malloc.
// NOLINTBEGIN(bugprone-reserved-identifier): the names are the C library's
void* __libc_malloc(std::size_t size);
void* __libc_calloc(std::size_t count, std::size_t size);
void* __libc_realloc(void* block, std::size_t size);
void __libc_free(void* block);
// NOLINTEND(bugprone-reserved-identifier)

__attribute__((visibility("default"))) void* malloc(std::size_t size) {
    if (fails()) {
        errno = ENOMEM;
        return nullptr;
    }
    return counted(__libc_malloc(size));
}

__attribute__((visibility("default"))) void* calloc(std::size_t count, std::size_t size) {
    if (fails()) {
        errno = ENOMEM;
        return nullptr;
    }
    return counted(__libc_calloc(count, size));
}

__attribute__((visibility("default"))) void* realloc(void* block, std::size_t size) {
    if (fails()) {
        errno = ENOMEM;
        return nullptr;
    }
    void* moved = __libc_realloc(block, size);
    return block == nullptr ? counted(moved) : moved;
}

__attribute__((visibility("default"))) void free(void* block) {
    uncount(block);
    __libc_free(block);
}
}

#endif

FailingMemory::Pause::Pause() : m_before(g_paused) { g_paused = true; }

FailingMemory::Pause::~Pause() { g_paused = m_before; }

FailingMemory::FailingMemory() {
    g_fatal = 0;
    g_live = 0;
    g_paused = false;
    g_counts = true;
}

FailingMemory::~FailingMemory() { g_counts = false; }

void FailingMemory::failAt(std::size_t nth) {
    g_number = 0;
    g_fatal = nth;
}

bool FailingMemory::hasFailed() const { return g_fatal != 0 && g_number >= g_fatal; }

long FailingMemory::liveBlocks() const { return g_live; }

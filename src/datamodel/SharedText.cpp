// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "datamodel/SharedText.h"

#include <cstring>
#include <new>

SharedText* SharedText::make(std::string_view text) {
    void* memory = ::operator new(sizeof(SharedText) + text.size() + 1);
    char* bytes = static_cast<char*>(memory) + sizeof(SharedText);
    std::memcpy(bytes, text.data(), text.size());
    bytes[text.size()] = '\0';
    return new (memory) SharedText;
}

void SharedText::dispose() {
    this->~SharedText();
    ::operator delete(this);
}

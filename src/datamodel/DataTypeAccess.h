// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <string_view>

#include "datamodel/SharedText.h"
#include "framework/datamodel_api/DataType.h"

/// The model's own way to the content of a `DataType`: texts of up to
/// `kInlineText` bytes lie in the value, longer ones in a `SharedText`.
class DataTypeAccess {
public:
    static constexpr std::size_t kInlineText = sizeof(DataType::Content::shortText) - 1;

    /// The bytes of a text value; valid as long as the value.
    static std::string_view text(const DataType& value) {
        return value.m_longText ? sharedText(value)->text() : std::string_view(value.m_content.shortText);
    }

    /// The block of a long text; null when the value holds anything else.
    static SharedText* sharedText(const DataType& value) {
        return value.m_longText ? reinterpret_cast<SharedText*>(value.m_content.text) : nullptr;
    }

    /// A text value with a copy of `text`, which holds no zero byte.
    static DataType makeText(std::string_view text);
    /// A text value that becomes one more owner of `text`.
    static DataType makeText(SharedText& text);

    /// Gives up the content; the value is then to be filled or destroyed.
    static void release(DataType& value) {
        if (SharedText* text = sharedText(value))
            text->release();
    }
    /// Fills a value whose content was given up, or that never held a long text.
    static void fill(DataType& value, std::string_view text);
    static void fill(DataType& value, SharedText* owned);
};

// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <string>

#include "cli/HomeBankingDocument.h"
#include "cli/Message.h"
#include "cli/XmlList.h"
#include "cli/XmlText.h"

/// Why a home-banking document was not imported, or not to its end. Most
/// failures have no text in the library: they are told from the model and the
/// document. Numbers of records count from 1 in the list.
namespace HomeBankingMessages {

/// Whether the library's text, UTF-8, is about the document and not about its list.
bool isOfDocument(const std::string& errorText);
/// Whether the list may have ended at its stranger: `imported` records came before the end.
bool mayBeStranger(const XmlList& list, std::size_t imported, const std::string& errorText);

/// The library's own text.
Message ofText(const std::string& errorText);
/// A failure before the first record.
Message ofFailure(const HomeBankingDocument& document, const XmlList& list, const std::string& errorText);

/// `field` of the model did not take what the booking brought; `id` is what the model has of it.
Message bookingRefused(const XmlList& list, const XmlText& text, std::size_t number, const std::string& id,
                       const std::string& field);
Message accountFull(const XmlList& list, const XmlText& text, std::size_t number);
/// The list has a stranger.
Message listEnded(const HomeBankingDocument& document, const XmlList& list, const XmlText& text);

} // namespace HomeBankingMessages

// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <limits>

#include <QtCore/qglobal.h>

/// What may differ between the parsers of Qt 5 and Qt 6 (docs/formats/homebanking-xml.md). Nothing else may, the
/// parsers' own messages apart.
namespace QtParser {

inline constexpr bool kIsOfQt5 = QT_VERSION_MAJOR == 5;

/// "&#0;" and a zero byte in a text: characters, or not well-formed, as XML has it.
inline constexpr bool kReadsZeroCharacters = kIsOfQt5;
/// An element that starts in one entity and ends elsewhere: read, or not well-formed, as XML has it.
inline constexpr bool kElementsMayLeaveEntities = kIsOfQt5;
/// A parameter entity that is external or that nobody declared: read past, or refused. Qt 6 gives no chance to look at
/// the others before it puts them in.
inline constexpr bool kSkipsParameterEntities = kIsOfQt5;
/// Declarations of attributes: read past, or refused. Qt 6 would add the declared values to the elements.
inline constexpr bool kSkipsAttributeDeclarations = kIsOfQt5;
/// Names of more than 4,096 characters: read, or not well-formed.
inline constexpr bool kReadsLongNames = kIsOfQt5;
/// A reference to an undeclared entity in an attribute: stands for nothing, or not well-formed, as XML has it.
inline constexpr bool kSkipsEntitiesInAttributes = kIsOfQt5;
/// A reference to an external entity: a node of its own, which ends a list, or nothing at all.
inline constexpr bool kExternalEntitiesAreNodes = kIsOfQt5;
/// An entity of more than 262,144 characters in a document that is longer than that: read, or refused.
inline constexpr bool kReadsLongEntities = kIsOfQt5;
/// Declarations of namespaces on one way from the root to a leaf: Qt 6 looks through all of them for every element.
inline constexpr int kMostDeclarationsInForce = kIsOfQt5 ? std::numeric_limits<int>::max() : 1000;

} // namespace QtParser

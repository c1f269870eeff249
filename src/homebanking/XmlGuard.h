// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

class QByteArray;

/// Looks at a document before a tree is built from it: elements nested tens of
/// thousands deep overflow the stack when the tree is built or destroyed, and
/// attributes, entities or namespace prefixes in great number take hours or
/// gigabytes.
///
/// Decodes the bytes as the tree's own reader does, so that it sees what that
/// one will see. Costs a few percent of building the tree. A document that looks
/// suspicious, or declares entities with elements in them, is read once more.
namespace XmlGuard {

/// Why no tree must be built: a German text in Latin-1; null when one may. A
/// document that is not well-formed is none of its business.
const char* findFault(const QByteArray& bytes);

} // namespace XmlGuard

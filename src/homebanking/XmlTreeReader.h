// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

class QByteArray;
class QDomDocument;
class QString;
class XmlLimits;
class XmlTextScanner;

/// The reader that Qt builds its trees with. Qt 5 and Qt 6 have different ones, and each has its own source here
/// (XmlTreeReaderQt5.cpp, XmlTreeReaderQt6.cpp); the build takes one of them. All three operations see the same
/// characters of a document.
namespace XmlTreeReader {

/// Shows the document, decoded, to the scanner.
void scan(const QByteArray& bytes, XmlTextScanner& scanner);

/// Reads without building, and tells the limits what is met: at least the document type, and behind it until the limits
/// ask for no more. An error in the document ends it silently. `scanner` has seen the whole document.
void read(const QByteArray& bytes, const XmlTextScanner& scanner, XmlLimits& limits);

/// False for a document that is not well-formed: `message` is the reader's own, in whatever language.
/// For documents that are within the limits.
bool buildTree(QDomDocument& document, const QByteArray& bytes, QString& message);

} // namespace XmlTreeReader

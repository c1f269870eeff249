// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

/// The characters of the host's texts that steer a terminal or end a line.
namespace HostControls {

/// Control characters of seven and of eight bits; texts of single bytes hold no other harmful ones.
inline bool isControl(char c) {
    const auto byte = static_cast<unsigned char>(c);
    return byte < 0x20 || byte == 0x7F || byte == 0x81 || byte == 0x8D || byte == 0x8F || byte == 0x90 || byte == 0x9D;
}

} // namespace HostControls

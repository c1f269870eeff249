// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

class Node;

/// Makes the next home-banking document read its dates on its own. On its path
/// nothing resets the order of day and month that an earlier import taught, nor
/// the window of two-digit years; the front door of the file imports resets
/// both: the order when it makes a module, the window, from the model at
/// `target`, when it is asked to import, even without a file.
void forgetEarlierDates(Node* target);

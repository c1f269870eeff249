// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#include "dmwrite/UtcClock.h"

#include <QtCore/QDateTime>

#include "framework/AssertTypeSizes.h"

namespace UtcClock {

DMDate today() {
    const QDate date = QDateTime::currentDateTimeUtc().date();
    return DMDate(static_cast<unsigned>(date.day()), static_cast<unsigned>(date.month()),
                  static_cast<unsigned>(date.year()));
}

} // namespace UtcClock

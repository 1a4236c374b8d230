#pragma once

#include <QList>
#include <QtGlobal>

#include <vector>

namespace tessarine {

// Tick values for an axis of counts or byte counts running from 0 to cover maxValue: multiples
// of a step of 1, 2 or 5 times a power of ten, chosen so about `intervals` steps span the range.
// Byte counts are shown in decimal units (150 MB), so these steps read as round sizes. The last
// tick is the axis end and is at least maxValue (a range of 0 or less is drawn as 0 to 1), unless
// maxValue lies within one step of the largest 64-bit value.
std::vector<qint64> niceAxisTicks(qint64 maxValue, int intervals = 4);

// The same ticks as numbers QML can place along an axis.
QList<double> niceAxisTickValues(qint64 maxValue);

} // namespace tessarine

#include "charts/TreemapCell.h"

#include "model/Format.h"

#include <algorithm>
#include <cmath>

namespace tessarine {

QString TreemapCellSpeech::value() const {
    const auto percent =
        qint64(std::trunc(double(size) / double(std::max<qint64>(wholeSize, 1)) * 100));
    return QStringLiteral("%1, %2 percent").arg(format::byteCount(size)).arg(percent);
}

} // namespace tessarine

#pragma once

#include <QString>
#include <QStringList>

namespace tessarine::bench {

// Makes HOME/Tessarine a history of `count` stored scans as a history of months looks: real scans
// of `folders`, saved, then copied under new ids an hour apart (the scan's total changing a
// little each time, as a disk does). Kept between runs: a history already complete is reused.
// Says whether the history is there.
bool makeStoredHistory(const QString& home, const QStringList& folders, int count);

} // namespace tessarine::bench

#pragma once

#include <QString>

namespace tessarine {

// One line of the comparison: what changed, its value before and after, and the difference with
// its arrow and colour. `icon` and `iconColor` mark what the line is about (a category, a file, a
// folder); `share` is the length of a folder's bar, from 0 to 1.
struct ChangeRow {
    QString title;
    QString detail;
    QString beforeText;
    QString afterText;
    QString changeText;
    QString symbol;
    QString color;
    QString icon;
    QString iconColor;
    double share = 0;

    bool operator==(const ChangeRow&) const = default;
};

} // namespace tessarine

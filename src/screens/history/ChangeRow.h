#pragma once

#include <QString>

namespace tessarine {

// One line of the comparison: what changed, its value before and after, and the difference with
// its arrow and colour. `icon` and `iconColor` mark what the line is about (a category, a file).
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

    bool operator==(const ChangeRow&) const = default;
};

} // namespace tessarine

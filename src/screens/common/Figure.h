#pragma once

#include <QString>

namespace tessarine {

// One labelled figure of a card or box. `detail` is the small text beside or under the value (a
// unit such as "files/sec", or a subtitle such as "levels deep"); `color` is a Theme colour name.
struct Figure {
    QString title;
    QString value;
    QString detail;
    QString icon;
    QString color;

    bool operator==(const Figure&) const = default;
};

} // namespace tessarine

#pragma once

#include <QByteArray>
#include <QHash>
#include <QMetaEnum>

namespace tessarine {

// The QML role names of a list model, taken from its role enumeration ("RootNameRole" ->
// "rootName"), so that a new role cannot be forgotten in a hand-written table.
template <typename Role> QHash<int, QByteArray> roleNamesOf() {
    const QMetaEnum roles = QMetaEnum::fromType<Role>();
    QHash<int, QByteArray> names;
    for (int i = 0; i < roles.keyCount(); ++i) {
        QByteArray name = roles.key(i);
        if (name.endsWith("Role"))
            name.chop(4);
        name[0] = static_cast<char>(QChar::toLower(name[0]));
        names.insert(roles.value(i), name);
    }
    return names;
}

} // namespace tessarine

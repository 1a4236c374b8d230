#include "scanner/ItemNameRules.h"

#include <array>
#include <string_view>

namespace tessarine {

bool isHiddenName(QByteArrayView name) {
    return name.startsWith('.');
}

bool isSelfOrParentName(QByteArrayView name) {
    return name == "." || name == "..";
}

bool isPackageName(QByteArrayView name) {
    static constexpr std::array<QByteArrayView, 7> suffixes{
        ".app", ".bundle", ".framework", ".kext", ".plugin", ".appex", ".xpc"};
    for (QByteArrayView suffix : suffixes) {
        if (name.size() > suffix.size() &&
            name.last(suffix.size()).compare(suffix, Qt::CaseInsensitive) == 0)
            return true;
    }
    return false;
}

QByteArrayView pathExtension(QByteArrayView name) {
    const std::size_t dot = std::string_view(name.data(), std::size_t(name.size())).rfind('.');
    if (dot == std::string_view::npos || dot == 0)
        return {};
    return name.sliced(qsizetype(dot) + 1);
}

} // namespace tessarine

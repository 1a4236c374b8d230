#include "scanner/ItemNameRules.h"

#include <array>

namespace tessarine {

bool isHiddenName(QByteArrayView name) {
    return name.startsWith('.');
}

bool isPackageName(QByteArrayView name) {
    static constexpr std::array<QByteArrayView, 7> suffixes{".app",    ".bundle", ".framework",
                                                            ".kext",   ".plugin", ".appex",
                                                            ".xpc"};
    for (QByteArrayView suffix : suffixes) {
        if (name.size() > suffix.size() &&
            name.last(suffix.size()).compare(suffix, Qt::CaseInsensitive) == 0)
            return true;
    }
    return false;
}

} // namespace tessarine

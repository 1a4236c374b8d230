#include "model/FolderColor.h"

#include "model/RawValueTable.h"

namespace tessarine {

namespace {

constexpr std::array<QStringView, 12> colorNames = {
    u"blue", u"green",  u"teal",  u"orange", u"pink", u"purple",
    u"red",  u"yellow", u"brown", u"indigo", u"mint", u"cyan",
};

} // namespace

const std::array<FolderColor, 12>& allFolderColors() {
    static constexpr std::array<FolderColor, 12> all = {
        FolderColor::blue,  FolderColor::green,  FolderColor::teal, FolderColor::orange,
        FolderColor::pink,  FolderColor::purple, FolderColor::red,  FolderColor::yellow,
        FolderColor::brown, FolderColor::indigo, FolderColor::mint, FolderColor::cyan,
    };
    return all;
}

QString rawValue(FolderColor color) {
    return rawValueAt(colorNames, color);
}

FolderColor folderColorAt(qint64 n) {
    const qint64 size = qint64(allFolderColors().size());
    // C++ remainder keeps the dividend's sign; shift negatives back into range.
    const qint64 position = ((n % size) + size) % size;
    return allFolderColors()[std::size_t(position)];
}

template <> std::optional<FolderColor> fromRawValue<FolderColor>(QStringView raw) {
    return caseWithRawValue<FolderColor>(colorNames, raw);
}

} // namespace tessarine

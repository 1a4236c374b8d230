#include "model/FileCategory.h"

#include "model/RawValueTable.h"

namespace tessarine {

namespace {

constexpr std::array<QStringView, 12> categoryNames = {
    u"Images",       u"Videos", u"Audio", u"Documents", u"Code",        u"Archives",
    u"Applications", u"System", u"Data",  u"Fonts",     u"3D & Design", u"Other",
};

constexpr std::array<QStringView, 12> categoryIcons = {
    u"photo.stack",
    u"film.stack",
    u"waveform",
    u"doc.text",
    u"chevron.left.forwardslash.chevron.right",
    u"archivebox",
    u"app.badge",
    u"gearshape",
    u"cylinder",
    u"textformat",
    u"cube",
    u"questionmark.folder",
};

constexpr std::array<QStringView, 12> categoryColors = {
    u"pink", u"purple", u"orange", u"blue",   u"green", u"yellow",
    u"red",  u"gray",   u"cyan",   u"indigo", u"mint",  u"secondary",
};

} // namespace

const std::array<FileCategory, 12>& allFileCategories() {
    static constexpr std::array<FileCategory, 12> all = {
        FileCategory::images,       FileCategory::videos, FileCategory::audio,
        FileCategory::documents,    FileCategory::code,   FileCategory::archives,
        FileCategory::applications, FileCategory::system, FileCategory::data,
        FileCategory::fonts,        FileCategory::design, FileCategory::other,
    };
    return all;
}

QString rawValue(FileCategory category) {
    return rawValueAt(categoryNames, category);
}

QString iconName(FileCategory category) {
    return rawValueAt(categoryIcons, category);
}

QString colorName(FileCategory category) {
    return rawValueAt(categoryColors, category);
}

template <> std::optional<FileCategory> fromRawValue<FileCategory>(QStringView raw) {
    return caseWithRawValue<FileCategory>(categoryNames, raw);
}

} // namespace tessarine

#include "model/FileCategory.h"

#include "model/RawValueTable.h"

namespace tessarine {

namespace {

const std::array<QString, 12> categoryNames = {
    QStringLiteral("Images"),       QStringLiteral("Videos"),      QStringLiteral("Audio"),
    QStringLiteral("Documents"),    QStringLiteral("Code"),        QStringLiteral("Archives"),
    QStringLiteral("Applications"), QStringLiteral("System"),      QStringLiteral("Data"),
    QStringLiteral("Fonts"),        QStringLiteral("3D & Design"), QStringLiteral("Other"),
};

const std::array<QString, 12> categoryIcons = {
    QStringLiteral("photo.stack"),
    QStringLiteral("film.stack"),
    QStringLiteral("waveform"),
    QStringLiteral("doc.text"),
    QStringLiteral("chevron.left.forwardslash.chevron.right"),
    QStringLiteral("archivebox"),
    QStringLiteral("app.badge"),
    QStringLiteral("gearshape"),
    QStringLiteral("cylinder"),
    QStringLiteral("textformat"),
    QStringLiteral("cube"),
    QStringLiteral("questionmark.folder"),
};

const std::array<QString, 12> categoryColors = {
    QStringLiteral("pink"),   QStringLiteral("purple"), QStringLiteral("orange"),
    QStringLiteral("blue"),   QStringLiteral("green"),  QStringLiteral("yellow"),
    QStringLiteral("red"),    QStringLiteral("gray"),   QStringLiteral("cyan"),
    QStringLiteral("indigo"), QStringLiteral("mint"),   QStringLiteral("secondary"),
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

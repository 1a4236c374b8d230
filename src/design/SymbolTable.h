#pragma once

#include <QObject>
#include <QString>
#include <QStringList>
#include <QtQml/qqmlregistration.h>

namespace tessarine {

// The application names its symbols by their system symbol names ("folder.fill"); this table
// draws each with a glyph of the Material Icons font, so screens never hand-draw an icon.
class SymbolTable : public QObject {
    Q_OBJECT
    QML_NAMED_ELEMENT(Symbols)
    QML_SINGLETON
    Q_PROPERTY(QString fontFamily READ fontFamily CONSTANT)

public:
    explicit SymbolTable(QObject* parent = nullptr);

    // The glyph drawing the symbol; an unknown name gives a visible question-mark glyph so that a
    // missing entry shows up on screen instead of leaving a hole.
    Q_INVOKABLE QString glyph(const QString& symbolName) const;

    // The icon font's family.
    static QString fontFamily();
    static QStringList symbolNames();
    static char16_t codepoint(const QString& symbolName);
    static char16_t fallbackCodepoint();
};

} // namespace tessarine

#include "model/TerminalText.h"

#include "model/PathBytes.h"

#include <algorithm>

namespace tessarine {

QString escapeControlCharacters(const QString& text) {
    const auto isControl = [](QChar character) {
        return character.category() == QChar::Other_Control;
    };
    if (std::none_of(text.begin(), text.end(), isControl))
        return pathForDisplay(text);
    QString escaped;
    escaped.reserve(text.size() + 8);
    for (const QChar character : text) {
        if (!isControl(character))
            escaped.append(character);
        else if (character == u'\n')
            escaped.append(u"\\n");
        else if (character == u'\t')
            escaped.append(u"\\t");
        else if (character == u'\r')
            escaped.append(u"\\r");
        else
            escaped.append(
                QStringLiteral("\\x") +
                QString::number(character.unicode(), 16).toUpper().rightJustified(2, u'0'));
    }
    return pathForDisplay(escaped);
}

} // namespace tessarine

#include "HistoryTable.h"

#include "model/Format.h"
#include "model/TerminalText.h"

#include <QStringList>
#include <QUuid>

#include <array>

namespace tessarine::cli {

namespace {

constexpr int columnCount = 5;
using Row = std::array<QString, columnCount>;
constexpr std::array<bool, columnCount> alignedRight{false, false, true, true, false};

Row rowOf(const ScanSummary& result) {
    return {format::absoluteDate(result.knownScanDate()), escapeControlCharacters(result.rootPath),
            format::byteCount(result.totalSize), format::count(result.fileCount),
            result.id.toString(QUuid::WithoutBraces).toUpper()};
}

QString line(const Row& row, const std::array<qsizetype, columnCount>& widths) {
    QStringList cells;
    for (int column = 0; column < columnCount; ++column) {
        // The last column is not padded, so that lines carry no trailing blanks.
        const qsizetype width = column == columnCount - 1 ? 0 : widths[column];
        cells.append(alignedRight[column] ? row[column].rightJustified(width)
                                          : row[column].leftJustified(width));
    }
    return cells.join(QStringLiteral("  ")) + u'\n';
}

} // namespace

QString historyTable(const QList<ScanSummary>& results) {
    QList<Row> rows{{QStringLiteral("Date"), QStringLiteral("Folder"), QStringLiteral("Size"),
                     QStringLiteral("Files"), QStringLiteral("ID")}};
    for (const ScanSummary& result : results)
        rows.append(rowOf(result));

    std::array<qsizetype, columnCount> widths{};
    for (const Row& row : rows) {
        for (int column = 0; column < columnCount; ++column)
            widths[column] = qMax(widths[column], row[column].size());
    }
    QString table;
    for (const Row& row : rows)
        table += line(row, widths);
    return table;
}

} // namespace tessarine::cli

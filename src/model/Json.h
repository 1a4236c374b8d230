#pragma once

#include "model/Records.h"
#include "model/ScanSummary.h"

#include <QByteArray>
#include <QByteArrayView>
#include <QDateTime>
#include <QString>
#include <QStringView>

#include <functional>
#include <optional>

// The one JSON coder of the application: the history files and the JSON export both go through
// it, so a result written anywhere reads back anywhere. Output is laid out as Foundation's
// pretty-printed, sorted-keys JSONEncoder writes it (two-space indent, " : ", members in byte order
// of their names, "/" escaped), dates are ISO 8601 in UTC to the second, 64-bit integers are
// exact, UUIDs are upper-case.
namespace tessarine::json {

QByteArray encode(const AnalysisResult& result);
// Likewise in pieces, as below: a result may carry a whole folder tree.
bool encode(const AnalysisResult& result, const std::function<bool(QByteArrayView)>& sink);
QByteArray encode(const FolderInfo& folder);
// The same text as encode(folder), handed to `sink` in pieces as it is made (a large tree's text
// is tens of megabytes). Stops passing pieces on once the sink returns false; returns false then.
bool encode(const FolderInfo& folder, const std::function<bool(QByteArrayView)>& sink);

// Fails as a whole, with a text naming the offending member in *error, on malformed JSON, a
// missing member, a wrong JSON type, an unknown enumeration value, a bad UUID or a bad date.
// "folderTree" may be missing or null.
std::optional<AnalysisResult> decodeResult(const QByteArray& bytes, QString* error = nullptr);
// The summary decodeResult's result would give, without decoding the result's lists: what is
// inside them is only checked when the whole result is decoded.
std::optional<ScanSummary> decodeSummary(const QByteArray& bytes, QString* error = nullptr);

// The most levels of folders below its root that a folder tree can have and still read back:
// Qt's parser gives up beyond 1024 nested containers, and each level takes two (a folder's object
// and its "childFolders" array) inside the result's own object. A deeper tree is written, but
// neither this reader nor most others (which stop at similar depths) can read it.
constexpr qint64 deepestReadableFolderLevel = 510;

// "2024-03-05T14:07:09Z": UTC, no fractional seconds (they are dropped).
QString formatDate(const QDateTime& date);
// Accepts the form formatDate writes, and the same with a "+01:00"-style offset in place of the Z;
// anything else (fractions, a missing zone, a space for the T) is nullopt.
std::optional<QDateTime> parseDate(QStringView text);

} // namespace tessarine::json

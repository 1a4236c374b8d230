#include "HostileRecords.h"

#include <cstdint>
#include <cstring>
#include <limits>

namespace tessarine::fuzz {

namespace {

constexpr int maximumTextLength = 64;
constexpr int maximumListLength = 8;
constexpr int maximumTreeDepth = 3;

class Drawer {
public:
    Drawer(FuzzedDataProvider& input, TextKind texts)
        : m_input(input)
        , m_texts(texts) {}

    qint64 number() { return m_input.ConsumeIntegral<qint64>(); }
    int listLength() { return m_input.ConsumeIntegralInRange(0, maximumListLength); }

    QString text() {
        if (m_texts == TextKind::decodable)
            return QString::fromStdString(m_input.ConsumeRandomLengthString(maximumTextLength));
        const std::vector<std::uint8_t> bytes = m_input.ConsumeBytes<std::uint8_t>(
            2 * m_input.ConsumeIntegralInRange<std::size_t>(0, maximumTextLength));
        QString units(qsizetype(bytes.size() / 2), Qt::Uninitialized);
        if (!units.isEmpty())
            std::memcpy(units.data(), bytes.data(), std::size_t(units.size()) * 2);
        return units;
    }

    QUuid id() {
        const auto bytes = m_input.ConsumeBytes<char>(16);
        return bytes.size() == 16 ? QUuid::fromRfc4122(QByteArrayView(bytes.data(), 16)) : QUuid();
    }

    QDateTime date() {
        switch (m_input.ConsumeIntegralInRange(0, 3)) {
        case 0:
            return QDateTime();
        case 1:
            return distantPast();
        default:
            return QDateTime::fromMSecsSinceEpoch(number(), Qt::UTC);
        }
    }

    double duration() {
        switch (m_input.ConsumeIntegralInRange(0, 3)) {
        case 0:
            return std::numeric_limits<double>::quiet_NaN();
        case 1:
            return std::numeric_limits<double>::infinity();
        default:
            return m_input.ConsumeFloatingPoint<double>();
        }
    }

    template <typename Enumeration> Enumeration oneOf(std::size_t count) {
        return Enumeration(m_input.ConsumeIntegralInRange<std::size_t>(0, count - 1));
    }

    FileInfo file() {
        FileInfo file;
        file.id = id();
        file.path = text();
        file.name = text();
        file.size = number();
        file.fileExtension = text();
        file.category = oneOf<FileCategory>(allFileCategories().size());
        file.depth = number();
        file.modificationDate = date();
        file.isDirectory = m_input.ConsumeBool();
        return file;
    }

    FolderInfo folder(int depthLeft) {
        FolderInfo folder;
        folder.id = id();
        folder.path = text();
        folder.name = text();
        folder.totalSize = number();
        folder.fileCount = number();
        folder.depth = number();
        folder.color = folderColorAt(number());
        for (int child = depthLeft > 0 ? listLength() : 0; child > 0; --child)
            folder.childFolders.push_back(this->folder(depthLeft - 1));
        return folder;
    }

    AnalysisResult result() {
        AnalysisResult result;
        result.id = id();
        result.scanDate = date();
        result.rootPath = text();
        result.rootName = text();
        result.totalSize = number();
        result.fileCount = number();
        result.folderCount = number();
        result.maxDepth = number();
        result.scanDuration = duration();
        for (int n = listLength(); n > 0; --n) {
            CategoryStats stats;
            stats.id = id();
            stats.category = oneOf<FileCategory>(allFileCategories().size());
            stats.fileCount = number();
            stats.totalSize = number();
            for (int ext = listLength(); ext > 0; --ext)
                stats.extensions.insert(text());
            result.categoryBreakdown.append(stats);
        }
        for (int n = listLength(); n > 0; --n)
            result.largestFiles.append(file());
        for (int n = listLength(); n > 0; --n)
            result.depthDistribution[number()] = DepthStats{number(), number(), number()};
        for (int n = listLength(); n > 0; --n) {
            ExtensionStats stats;
            stats.id = id();
            stats.ext = text();
            stats.category = oneOf<FileCategory>(allFileCategories().size());
            stats.fileCount = number();
            stats.totalSize = number();
            result.extensionStats.insert(stats.ext, stats);
        }
        for (int n = listLength(); n > 0; --n) {
            PatternInsight insight;
            insight.id = id();
            insight.type = oneOf<InsightType>(allInsightTypes().size());
            insight.title = text();
            insight.description = text();
            insight.affectedSize = number();
            insight.affectedCount = number();
            for (int path = listLength(); path > 0; --path)
                insight.paths.append(text());
            result.insights.append(insight);
        }
        if (m_input.ConsumeBool())
            result.folderTree = folder(maximumTreeDepth);
        return result;
    }

private:
    FuzzedDataProvider& m_input;
    const TextKind m_texts;
};

} // namespace

AnalysisResult hostileResult(FuzzedDataProvider& input, TextKind texts) {
    return Drawer(input, texts).result();
}

} // namespace tessarine::fuzz

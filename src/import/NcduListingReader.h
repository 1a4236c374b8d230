#pragma once

#include "import/ByteJsonReader.h"
#include "scanner/DirectoryListing.h"
#include "scanner/HardLinks.h"
#include "scanner/ListingAnalysis.h"

#include <QDateTime>
#include <QString>

#include <optional>
#include <string>
#include <unordered_set>
#include <vector>

namespace tessarine {

// What an ncdu export says beyond its tree.
struct NcduExportFacts {
    QString program;                     // "ncdu 1.18", from the export's own metadata
    std::optional<QDateTime> exportDate; // its timestamp, when it has one
    bool hasModificationTimes = false;   // written in ncdu's extended mode (-e)
    bool hasFileTypes = false;           // likewise: without it links and devices look alike
};

// Reads an ncdu JSON export (major version 1, any minor version) under the rules a walk of the
// same folder follows: hidden items and the contents of packages are left out, symbolic links
// keep only their own size, and a file with several names counts at its first name in listing
// order. Names keep their bytes. Throws ByteJsonFailure.
//
// The export lists each folder's entries in the order ncdu read them, a sub-folder's contents
// where the sub-folder is met: the order in which the analysis visits a listing. So every item is
// folded into the analysis as it is read, which is also what makes the first name of a file the
// first one met, and the listing keeps only what a folder tree's walk keeps
// (ListingDetail::summedFiles, with link sizes): folders, packages and unreadable items, each
// folder's files summed. A listing with every file and its name would be several times the size
// of the tree made from it.
class NcduListingReader {
public:
    NcduListingReader(QByteArrayView text, ListingAnalysis& analysis)
        : m_reader(text)
        , m_analysis(analysis) {}

    DirectoryListing read();
    const NcduExportFacts& facts() const { return m_facts; }

private:
    // One item's info block, only the members a scan can use.
    struct Info {
        std::string name;
        qint64 asize = 0;
        std::optional<qint64> device;
        std::optional<qint64> inode;
        std::optional<qint64> mode;
        std::optional<qint64> mtime;
        bool hardLinked = false;
        bool readError = false;
        bool excluded = false;
        bool notRegular = false;
    };
    // A folder being read, with the entries it keeps so far.
    struct Level {
        ListedDirectory* folder = nullptr;
        qint64 device = 0;
        qsizetype parentPathLength = 0; // of m_path before this folder's name
        quint32 position = 0;           // visible entries met so far, summed ones included
        qint64 summedCount = 0;
        qint64 summedSize = 0;
        std::vector<ListedEntry> entries;
    };

    void readHeader();
    void readInfo(Info& info);
    void checkName(const Info& info) const;
    // After a folder's info block: the folder's contents, up to its closing bracket.
    void readFolders(const Info& rootInfo);
    void addFile(Level& level, const Info& info);
    // The entry of a file, special file or link, with no size when an earlier name of it counts.
    ListedEntry sizedEntry(const Level& level, const Info& info);
    // Makes the next level the folder being read.
    void enterFolder(ListedDirectory* folder, qint64 device);
    // Opens a sub-folder's level; false when the folder is left out with its contents.
    bool openFolder(const Info& info);
    void closeFolder();
    void skipRestOfFolder();

    ByteJsonReader m_reader;
    ListingAnalysis& m_analysis;
    NcduExportFacts m_facts;
    ListingArena m_arena;
    std::vector<Level> m_levels; // reused from folder to folder, one per depth
    std::size_t m_depth = 0;     // levels in use
    QByteArray m_path;           // of the folder being read, in the export's bytes
    // Device and inode of every file with several names counted so far.
    std::unordered_set<FileIdentity, FileIdentity::Hash> m_countedFiles;
    qint64 m_items = 0;
    qint64 m_folders = 0;
};

} // namespace tessarine

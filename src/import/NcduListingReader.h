#pragma once

#include "import/ByteJsonReader.h"
#include "scanner/DirectoryListing.h"
#include "scanner/HardLinks.h"

#include <QDateTime>
#include <QString>

#include <optional>
#include <string>
#include <vector>

namespace tessarine {

// What an ncdu export says beyond its tree.
struct NcduExportFacts {
    QString program;                     // "ncdu 1.18", from the export's own metadata
    std::optional<QDateTime> exportDate; // its timestamp, when it has one
    bool hasModificationTimes = false;   // written in ncdu's extended mode (-e)
    bool hasFileTypes = false;           // likewise: without it links and devices look alike
};

// Reads an ncdu JSON export (major version 1, any minor version) into the listing a walk of the
// same folder would have made, under the same rules: hidden items and the contents of packages
// are left out, symbolic links keep only their own size, and a file with several names counts at
// its first name in listing order. The export's order is the order ncdu read each folder in, as
// the walker reads it. Names keep their bytes. Throws ByteJsonFailure.
class NcduListingReader {
public:
    explicit NcduListingReader(QByteArrayView text)
        : m_reader(text) {}

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
    // A folder being read, with the entries met so far.
    struct Level {
        ListedDirectory* folder = nullptr;
        qint64 device = 0;
        std::vector<ListedEntry> entries;
        std::vector<LinkedName> links;
    };

    void readHeader();
    void readInfo(Info& info);
    void checkName(const Info& info) const;
    // After a folder's info block: the folder's contents, up to its closing bracket.
    void readFolders(const Info& rootInfo);
    void addFile(Level& level, const Info& info);
    // Opens a sub-folder's level; false when the folder is left out with its contents.
    bool openFolder(const Info& info);
    void closeFolder();
    void skipRestOfFolder();

    ByteJsonReader m_reader;
    NcduExportFacts m_facts;
    ListingArena m_arena;
    std::vector<Level> m_levels; // reused from folder to folder, one per depth
    std::size_t m_depth = 0;     // levels in use
    HardLinkClaims m_links{false};
    qint64 m_items = 0;
    qint64 m_folders = 0;
};

} // namespace tessarine

#pragma once

#include <QExplicitlySharedDataPointer>
#include <QString>

namespace tessarine {

// The path of a folder in a folder tree, kept as its parent's path and its own name. The folders
// of a tree share their ancestors' parts instead of each holding its whole path, so the paths of
// a tree take memory in proportion to its folders rather than to folders times depth: the full
// paths of a chain 100,000 folders deep would take some twenty gigabytes. Copies share their
// parts; toString() spells a path out by walking up to its first part, so it costs the path's
// length, as reading a stored path would.
//
// Parts are immutable once made and released with atomic counts, so paths made on several threads
// may share ancestors.
class FolderPath {
public:
    // The empty path.
    FolderPath();
    // A path that stands on its own: a tree's root, or a folder whose path says nothing of its
    // parent's (as a tree read from a file may).
    explicit FolderPath(const QString& path);
    // `parent` followed by "/" and `name`; no second "/" after a parent ending in one ("/" itself).
    FolderPath(const FolderPath& parent, const QString& name);

    // Out of line, where a part is a complete type.
    FolderPath(const FolderPath& other);
    FolderPath(FolderPath&& other) noexcept;
    FolderPath& operator=(const FolderPath& other);
    FolderPath& operator=(FolderPath&& other) noexcept;
    ~FolderPath();

    QString toString() const;

    // The name the path was made with, or all of it for a path standing on its own.
    QString lastPart() const;
    // Whether the path was made from this very `parent` and a name (not merely spelled alike).
    bool extends(const FolderPath& parent) const;
    // Whether a "/" stands between the parent's part and the name: false below a parent ending
    // in one, and for a path standing on its own.
    bool separatesLastPart() const;

    // Equal when spelled alike, however they were made.
    friend bool operator==(const FolderPath& a, const FolderPath& b);

private:
    struct Part;
    QExplicitlySharedDataPointer<Part> m_part;
};

} // namespace tessarine

#include "model/FolderPath.h"

#include <algorithm>

namespace tessarine {

struct FolderPath::Part : QSharedData {
    Part(QExplicitlySharedDataPointer<Part> parent, const QString& text, bool separated)
        : separated(separated)
        , parent(std::move(parent))
        , text(text) {}
    Part(const Part&) = delete;
    Part& operator=(const Part&) = delete;
    ~Part();

    const bool separated; // a "/" stands between the parent's text and this one
    QExplicitlySharedDataPointer<Part> parent;
    const QString text;
};

// Letting go of the parent as a member would let go of its parent in turn, one call deeper for
// each level whose last reference this was: a chain 100,000 folders deep would overflow the stack.
// The levels are let go of in a loop instead, each with its own parent already taken from it.
FolderPath::Part::~Part() {
    Part* above = parent.take();
    while (above && !above->ref.deref()) {
        Part* next = above->parent.take();
        delete above;
        above = next;
    }
}

FolderPath::FolderPath(const QString& path)
    : m_part(new Part({}, path, false)) {}

FolderPath::FolderPath(const FolderPath& parent, const QString& name)
    : m_part(
          new Part(parent.m_part, name, !(parent.m_part && parent.m_part->text.endsWith(u'/')))) {}

FolderPath::FolderPath() = default;
FolderPath::FolderPath(const FolderPath& other) = default;
FolderPath::FolderPath(FolderPath&& other) noexcept = default;
FolderPath& FolderPath::operator=(const FolderPath& other) = default;
FolderPath& FolderPath::operator=(FolderPath&& other) noexcept = default;
FolderPath::~FolderPath() = default;

QString FolderPath::toString() const {
    qsizetype length = 0;
    for (const Part* part = m_part.data(); part; part = part->parent.data())
        length += part->text.size() + (part->separated ? 1 : 0);
    QString path(length, Qt::Uninitialized);
    QChar* end = path.data() + length;
    for (const Part* part = m_part.data(); part; part = part->parent.data()) {
        end -= part->text.size();
        std::copy(part->text.cbegin(), part->text.cend(), end);
        if (part->separated)
            *--end = u'/';
    }
    return path;
}

QString FolderPath::lastPart() const {
    return m_part ? m_part->text : QString();
}

bool FolderPath::extends(const FolderPath& parent) const {
    // Below the empty path only a name is separated from nothing; a path on its own is not.
    return m_part && m_part->parent == parent.m_part && (m_part->parent || m_part->separated);
}

bool FolderPath::separatesLastPart() const {
    return m_part && m_part->separated;
}

bool operator==(const FolderPath& a, const FolderPath& b) {
    return a.m_part == b.m_part || a.toString() == b.toString();
}

} // namespace tessarine

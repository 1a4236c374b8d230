#include "model/Json.h"

#include <QByteArrayList>
#include <QString>

#include <algorithm>
#include <array>
#include <string_view>

namespace tessarine::json {

namespace {

// The result's members that hold lists, the bulk of a stored result (its folder tree alone may be
// tens of megabytes); a summary needs none of them. They are passed over without being decoded
// and stand in the summary's document as empty values.
constexpr std::array<std::pair<std::string_view, std::string_view>, 6> listMembers{{
    {"categoryBreakdown", "[]"},
    {"depthDistribution", "{}"},
    {"extensionStats", "{}"},
    {"folderTree", "null"},
    {"insights", "[]"},
    {"largestFiles", "[]"},
}};

bool isSpace(char byte) {
    return byte == ' ' || byte == '\n' || byte == '\r' || byte == '\t';
}

// Where a number or a literal ends.
bool endsScalar(char byte) {
    return isSpace(byte) || byte == ',' || byte == ':' || byte == ']' || byte == '}';
}

// Walks the top level of one JSON object and hands over each member's name and value as they
// stand in the text. Values are skipped by their brackets and strings only: whatever is inside
// them is checked when the whole result is decoded, on opening.
class MemberWalk {
public:
    explicit MemberWalk(const QByteArray& text)
        : m_at(text.cbegin())
        , m_begin(text.cbegin())
        , m_end(text.cend()) {}

    // Calls take(name, value) per member; nothing on success, else what is wrong and where.
    template <typename Take> std::optional<QString> walk(Take take) {
        skipSpace();
        if (!consume('{'))
            return failure("not an object");
        skipSpace();
        if (consume('}'))
            return finish();
        for (;;) {
            skipSpace();
            const char* nameStart = m_at;
            if (!skipString())
                return failure("a member name is not a string");
            const std::string_view name(nameStart + 1, std::size_t(m_at - nameStart - 2));
            skipSpace();
            if (!consume(':'))
                return failure("a member name is not followed by a colon");
            skipSpace();
            const char* valueStart = m_at;
            if (!skipValue())
                return failure("a value is cut short or unbalanced");
            take(name, std::string_view(valueStart, std::size_t(m_at - valueStart)));
            skipSpace();
            if (consume('}'))
                return finish();
            if (!consume(','))
                return failure("members are not separated by commas");
        }
    }

private:
    std::optional<QString> finish() {
        skipSpace();
        if (m_at != m_end)
            return failure("text follows the object");
        return std::nullopt;
    }

    QString failure(const char* problem) const {
        return QStringLiteral("offset %1: %2").arg(m_at - m_begin).arg(QLatin1String(problem));
    }

    void skipSpace() {
        while (m_at != m_end && isSpace(*m_at))
            ++m_at;
    }

    bool consume(char byte) {
        if (m_at == m_end || *m_at != byte)
            return false;
        ++m_at;
        return true;
    }

    // From the opening quote to past the closing one.
    bool skipString() {
        if (!consume('"'))
            return false;
        while (m_at != m_end) {
            const char byte = *m_at++;
            if (byte == '"')
                return true;
            if (byte == '\\' && m_at != m_end)
                ++m_at;
        }
        return false;
    }

    // Without recursion: a folder tree nests as deep as the folders on disk.
    bool skipValue() {
        std::string open;
        do {
            skipSpace();
            if (m_at == m_end)
                return false;
            const char byte = *m_at;
            if (byte == '"') {
                if (!skipString())
                    return false;
            } else if (byte == '{' || byte == '[') {
                open.push_back(byte == '{' ? '}' : ']');
                ++m_at;
            } else if (byte == '}' || byte == ']') {
                if (open.empty() || open.back() != byte)
                    return false;
                open.pop_back();
                ++m_at;
            } else if ((byte == ',' || byte == ':') && !open.empty()) {
                ++m_at;
            } else {
                const char* start = m_at;
                while (m_at != m_end && !endsScalar(*m_at))
                    ++m_at;
                if (m_at == start)
                    return false;
            }
        } while (!open.empty());
        return true;
    }

    const char* m_at;
    const char* m_begin;
    const char* m_end;
};

} // namespace

std::optional<ScanSummary> decodeSummary(const QByteArray& bytes, QString* error) {
    // The result's members with its lists left empty, decoded as a whole result is: the summary
    // holds exactly what decoding the whole file would give it.
    QByteArrayList members;
    const auto failure = MemberWalk(bytes).walk([&](std::string_view name, std::string_view value) {
        const auto list = std::find_if(listMembers.begin(), listMembers.end(),
                                       [&](const auto& member) { return member.first == name; });
        if (list != listMembers.end())
            value = list->second;
        QByteArray member;
        member.reserve(qsizetype(name.size() + value.size() + 3));
        member.append('"').append(name.data(), qsizetype(name.size())).append("\":");
        members.append(member.append(value.data(), qsizetype(value.size())));
    });
    if (failure) {
        if (error)
            *error = *failure;
        return std::nullopt;
    }
    const auto result = decodeResult('{' + members.join(',') + '}', error);
    if (!result)
        return std::nullopt;
    return ScanSummary::of(*result);
}

} // namespace tessarine::json

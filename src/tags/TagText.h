#pragma once

#include <QHash>
#include <QList>
#include <QSet>
#include <QString>
#include <QStringList>
#include <QStringView>

#include <vector>

// The rules of tag text. A tag is case-sensitive text; a list keeps the order in which its tags were read or
// added.

// Reads sidecar text: commas and line ends separate alike, empty parts are skipped, pieces are trimmed. A
// piece of white space alone becomes an empty tag.
[[nodiscard]] QStringList tagsFromText(const QString& text);

// Gives equal tags of many files the same string, as far as the latest tag of each slot reaches: the strings
// of a directory of thousands of files shrink to a few, at a fixed cost of memory.
class TagPool {
public:
    [[nodiscard]] const QString& shared(QStringView tag);

private:
    static constexpr size_t slotCount = size_t{1} << 15; // above the different tags of a usual directory

    std::vector<QString> _slots = std::vector<QString>(slotCount);
};

// As above, with the tags shared by the pool.
[[nodiscard]] QStringList tagsFromText(const QString& text, TagPool& pool);

// Writes sidecar text: each tag trimmed, joined by one comma, no line end.
[[nodiscard]] QString tagListToString(const QStringList& tags);

// The text that a save of all tags writes. Duplicates are removed before trimming, unless they are kept.
[[nodiscard]] QString savedTagText(const QStringList& tags, bool keepDuplicates);

// The tags that a user typed, one a line or separated by commas; nothing is trimmed.
[[nodiscard]] QStringList tagsFromEntry(const QString& text);

// The tags in an answer of a model; an empty separator leaves the answer whole.
[[nodiscard]] QStringList tagsFromAnswer(const QString& answer, const QString& separator);

// Replaces src by dst inside the tags, in place and case-sensitively.
void replaceInTags(QStringList& tags, const QString& src, const QString& dst);

// Splits the tags that hold src, regardless of case, at src with its case. The pieces are appended to the
// list, those of the last tag first; a tag that matches only in another case is moved there whole.
void splitTags(QStringList& tags, const QString& src);

// A step of one tag within the order of its file.
enum class TagMove { Up, Down, First, Last };

// The row of a tag after a move in a list of `count` tags.
[[nodiscard]] qsizetype movedTagRow(qsizetype count, qsizetype row, TagMove move);

// Removes every occurrence of the given tags.
void removeTags(QStringList& tags, const QStringList& removed);

// Finds the lists that hold any of the wanted tags, regardless of case. Of many wanted tags, each different
// tag of the lists is compared once.
class TagMatcher {
public:
    explicit TagMatcher(const QStringList& wanted);

    [[nodiscard]] bool matchesAny(const QStringList& tags);

private:
    QStringList _wanted;
    QSet<QString> _folded;
    QHash<QString, bool> _known; // tags that were compared
};

// All lists one after the other, in the hash's order.
[[nodiscard]] QStringList flattenedTags(const QHash<QString, QStringList>& tagsByFile);

struct TagCount {
    QString tag;
    qsizetype count = 0;

    bool operator==(const TagCount&) const = default;
};

// The unique tags in the order of their first occurrence, with the number of exactly equal strings.
[[nodiscard]] QList<TagCount> countedTags(const QHash<QString, QStringList>& tagsByFile);
[[nodiscard]] QHash<QString, qsizetype> tagCounts(const QStringList& tags);

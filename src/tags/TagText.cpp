#include "tags/TagText.h"

#include "catalogue/FileNaming.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

// Up to so many wanted tags, comparing them all is faster than a look-up.
constexpr qsizetype fewTags = 8;

template <typename MakeTag>
QStringList tagsOf(const QString& text, const MakeTag& makeTag) {
    QStringList tags;
    for (const QStringView line : qTokenize(text, u'\n', Qt::SkipEmptyParts)) {
        for (const QStringView piece : qTokenize(line, u',', Qt::SkipEmptyParts))
            tags.append(makeTag(piece.trimmed()));
    }
    return tags;
}

} // namespace

const QString& TagPool::shared(QStringView tag) {
    QString& slot = _slots[qHash(tag) % slotCount];
    if (slot != tag)
        slot = tag.toString();
    return slot;
}

QStringList tagsFromText(const QString& text) {
    return tagsOf(text, [](QStringView tag) { return tag.toString(); });
}

QStringList tagsFromText(const QString& text, TagPool& pool) {
    return tagsOf(text, [&pool](QStringView tag) -> const QString& { return pool.shared(tag); });
}

QString tagListToString(const QStringList& tags) {
    QString text;
    for (const QString& tag : tags) {
        text += QStringView(tag).trimmed();
        text += u',';
    }
    // Without any tag there is no comma, and chop() does nothing.
    text.chop(1);
    return text;
}

QString savedTagText(const QStringList& tags, bool keepDuplicates) {
    QStringList saved = tags;
    if (!keepDuplicates)
        // Compared before trimming, so tags that differ in outer blanks are both written.
        saved.removeDuplicates();
    return tagListToString(saved);
}

QStringList tagsFromEntry(const QString& text) {
    // A line without a comma is one piece, so both kinds of lines split alike.
    QStringList tags;
    for (const QStringView line : qTokenize(text, u'\n', Qt::SkipEmptyParts)) {
        for (const QStringView piece : qTokenize(line, u',', Qt::SkipEmptyParts))
            tags.append(piece.toString());
    }
    return tags;
}

QStringList tagsFromAnswer(const QString& answer, const QString& separator) {
    if (separator.isEmpty())
        return answer.isEmpty() ? QStringList() : QStringList(answer);
    return answer.split(separator, Qt::SkipEmptyParts);
}

void replaceInTags(QStringList& tags, const QString& src, const QString& dst) {
    for (QString& tag : tags) {
        if (tag.contains(src))
            tag.replace(src, dst);
    }
}

void splitTags(QStringList& tags, const QString& src) {
    const auto holdsSource = [&](const QString& tag) { return tag.contains(src, Qt::CaseInsensitive); };
    if (std::ranges::none_of(tags, holdsSource))
        return;
    QStringList kept;
    QStringList pieces;
    // From the last tag on, whose pieces come first.
    for (auto tag = tags.crbegin(); tag != tags.crend(); ++tag) {
        if (holdsSource(*tag))
            pieces.append(tag->split(src, Qt::SkipEmptyParts));
        else
            kept.append(*tag);
    }
    std::ranges::reverse(kept);
    tags = kept + pieces;
}

qsizetype movedTagRow(qsizetype count, qsizetype row, TagMove move) {
    switch (move) {
    case TagMove::Up:
        return qMax(qsizetype(0), row - 1);
    case TagMove::Down:
        return qMin(count - 1, row + 1);
    case TagMove::First:
        return 0;
    case TagMove::Last:
        return count - 1;
    }
    return row;
}

void removeTags(QStringList& tags, const QStringList& removed) {
    const QSet<QString> unwanted(removed.cbegin(), removed.cend());
    tags.removeIf([&](const QString& tag) { return unwanted.contains(tag); });
}

TagMatcher::TagMatcher(const QStringList& wanted) : _wanted(wanted) {
    for (const QString& tag : wanted)
        _folded.insert(foldedCase(tag));
}

bool TagMatcher::matchesAny(const QStringList& tags) {
    if (_wanted.size() <= fewTags) {
        return std::ranges::any_of(
            _wanted, [&](const QString& tag) { return tags.contains(tag, Qt::CaseInsensitive); });
    }
    return std::ranges::any_of(tags, [this](const QString& tag) {
        const auto known = _known.constFind(tag);
        return known != _known.cend() ? *known : *_known.insert(tag, _folded.contains(foldedCase(tag)));
    });
}

QStringList flattenedTags(const QHash<QString, QStringList>& tagsByFile) {
    qsizetype total = 0;
    for (const QStringList& tags : tagsByFile)
        total += tags.size();
    QStringList all;
    all.reserve(total);
    for (const QStringList& tags : tagsByFile)
        all.append(tags);
    return all;
}

QList<TagCount> countedTags(const QHash<QString, QStringList>& tagsByFile) {
    QList<TagCount> counted;
    QHash<QString, qsizetype> indexes;
    for (const QStringList& tags : tagsByFile) {
        for (const QString& tag : tags) {
            const auto index = indexes.tryEmplace(tag, counted.size());
            if (index.inserted)
                counted.append({tag, 1});
            else
                ++counted[*index.iterator].count;
        }
    }
    return counted;
}

QHash<QString, qsizetype> tagCounts(const QStringList& tags) {
    QHash<QString, qsizetype> counts;
    for (const QString& tag : tags)
        ++counts[tag];
    return counts;
}

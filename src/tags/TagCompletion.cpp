#include "tags/TagCompletion.h"

#include "catalogue/MediaQuery.h"

#include <QStringMatcher>

#include <algorithm>
#include <tuple>

namespace {

constexpr qsizetype maxOffered = 12;

struct Match {
    QStringView tag;
    qsizetype count = 0;
    bool isInside = false; // the tag does not begin with the word

    bool operator<(const Match& other) const {
        return std::tie(isInside, other.count, tag) < std::tie(other.isInside, count, other.tag);
    }
};

} // namespace

QList<TagCount> matchingTags(const QList<TagCount>& known, const QString& word) {
    const QStringMatcher matcher(word, Qt::CaseInsensitive);
    QList<Match> matches;
    // The views point into the known tags, which outlive this call.
    QHash<QStringView, qsizetype> indexes;
    for (const TagCount& counted : known) {
        const QStringView tag = QStringView(counted.tag).trimmed();
        const qsizetype at = tag.isEmpty() ? -1 : matcher.indexIn(tag);
        if (at < 0 || tag.contains(u',') || tag.contains(u'\n'))
            continue;
        const auto index = indexes.tryEmplace(tag, matches.size());
        if (index.inserted)
            matches.append({tag, counted.count, at > 0});
        else
            matches[*index.iterator].count += counted.count;
    }
    const auto end = matches.begin() + qMin(matches.size(), maxOffered);
    // Only the offered ones are sorted: one letter matches thousands of tags.
    std::partial_sort(matches.begin(), end, matches.end());
    QList<TagCount> offered;
    for (auto match = matches.begin(); match != end; ++match)
        offered.append({match->tag.toString(), match->count});
    return offered;
}

CompletionOffer tagCompletions(const QList<TagCount>& known, const QString& line, qsizetype cursor) {
    const QStringView rest = QStringView(line).sliced(cursor).trimmed();
    // Inside of a tag nothing is offered, as a completion would split that tag.
    if (!rest.isEmpty() && rest.front() != u',')
        return {};
    const QStringView typed = QStringView(line).first(cursor);
    const QStringView piece = typed.sliced(typed.lastIndexOf(u',') + 1);
    const QString word = piece.trimmed().toString();
    if (word.isEmpty())
        return {};
    // Blanks behind the comma stay, so the replaced text begins with the word.
    CompletionOffer offer{cursor - piece.size() + piece.indexOf(word.front())};
    const auto matches = matchingTags(known, word);
    for (const TagCount& match : matches)
        offer.rows.append({match.tag, QString::number(match.count)});
    return offer;
}

QStringList tagsToAdd(const QList<TagCount>& known, const QString& typed, const QString& chosen) {
    QStringList tags = tagsFromText(typed);
    tags.removeAll(QString());
    const auto isTyped = [&](const TagCount& counted) {
        return QStringView(counted.tag).trimmed() == tags.last();
    };
    if (!tags.isEmpty() && !chosen.isNull() && std::ranges::none_of(known, isTyped))
        tags.last() = chosen;
    return tags;
}

CompletionOffer queryCompletions(const QList<TagCount>& known, const QString& line, qsizetype cursor) {
    if (cursor < line.size())
        return {};
    const MediaQuery::Typed typed = MediaQuery::typedAtEnd(line);
    CompletionOffer offer{typed.start};
    if (typed.kind == MediaQuery::Typed::Tag) {
        const auto matches = matchingTags(known, typed.text);
        for (const TagCount& match : matches)
            offer.rows.append({MediaQuery::quoted(match.tag), QString::number(match.count)});
    } else if (typed.kind == MediaQuery::Typed::Word) {
        const auto words = MediaQuery::words();
        for (const QueryWord& word : words) {
            if (word.text.startsWith(typed.text, Qt::CaseInsensitive))
                offer.rows.append({word.text, word.help});
        }
    }
    return offer;
}

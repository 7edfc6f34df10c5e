#include "catalogue/MediaQuery.h"

#include "catalogue/FileNaming.h"
#include "catalogue/MediaFilter.h"

#include <QSet>

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

namespace {

constexpr double ratioTolerance = 0.01;

// A quoted bar is an ordinary word.
bool isBar(const QString& text, bool wasQuoted) {
    return !wasQuoted && text == "|"_L1;
}

bool compares(double value, char comparison, double number) {
    switch (comparison) {
    case '<':
        return value < number;
    case '>':
        return value > number;
    default:
        return value == number;
    }
}

bool hasDuplicates(const QStringList& tags) {
    QSet<QStringView> seen;
    return std::ranges::any_of(tags, [&](const QString& tag) {
        const qsizetype before = seen.size();
        // A save writes tags trimmed, so those that differ in outer blanks become the same text.
        seen.insert(QStringView(tag).trimmed());
        return seen.size() == before;
    });
}

// "3:2" as 1.5; 0 for anything that is no ratio.
double ratioOf(const QString& text) {
    const QStringList sides = text.split(u':');
    if (sides.size() != 2)
        return 0;
    const double width = sides[0].toDouble();
    const double height = sides[1].toDouble();
    return width > 0 && height > 0 ? width / height : 0;
}

bool takesTag(const QString& word) {
    return word.compare(":tag"_L1, Qt::CaseInsensitive) == 0 ||
           word.compare(":-tag"_L1, Qt::CaseInsensitive) == 0;
}

} // namespace

// A bar, or a run of characters between blanks and bars, which may contain quoted parts.
struct MediaQuery::Word {
    QString text;
    qsizetype start = 0;
    bool isQuoted = false;
    bool isEnded = true; // false for a last word that further characters would extend
};

QList<QueryWord> MediaQuery::words() {
    return {
        {u":missingTxt"_s, tr("no sidecar on the disk, or an empty one; alone in the line")},
        {u":tag "_s, tr("files with this tag: :tag sky, :tag \"blue sky\"")},
        {u":-tag "_s, tr("files without this tag")},
        {u":tags="_s, tr("number of tags: :tags=0")},
        {u":tags<"_s, tr("fewer tags than: :tags<5")},
        {u":tags>"_s, tr("more tags than: :tags>20")},
        {u":w>"_s, tr("width in pixels, also with < and =: :w>1024")},
        {u":h<"_s, tr("height in pixels, also with > and =: :h<512")},
        {u":ratio "_s, tr("width to height, within one percent: :ratio 3:2")},
        {u":video"_s, tr("clips")},
        {u":image"_s, tr("pictures")},
        {u":unsaved"_s, tr("files with tags that are not saved")},
        {u":dup"_s, tr("files that have a tag twice")},
    };
}

bool MediaQuery::isQuery(const QString& text) {
    return text.startsWith(u':') && !beginsMissingTxtFilter(text);
}

QString MediaQuery::quoted(const QString& value) {
    const bool isPlain = std::ranges::none_of(
        value, [](QChar character) { return character.isSpace() || character == u'|' || character == u'"'; });
    return isPlain ? value : u'"' + QString(value).replace(u'"', "\"\""_L1) + u'"';
}

QList<MediaQuery::Word> MediaQuery::split(const QString& text) {
    QList<Word> words;
    Word word;
    bool isInWord = false;
    bool isInQuotes = false;
    const auto endWord = [&] {
        if (isInWord)
            words.append(word);
        isInWord = false;
    };
    for (qsizetype at = 0; at < text.size(); ++at) {
        const QChar character = text[at];
        if (!isInQuotes && (character.isSpace() || character == u'|')) {
            endWord();
            if (character == u'|')
                words.append({u"|"_s, at});
            continue;
        }
        if (!isInWord) {
            word = {{}, at};
            isInWord = true;
        }
        if (character != u'"') {
            word.text += character;
        } else if (isInQuotes && at + 1 < text.size() && text[at + 1] == u'"') {
            word.text += character;
            ++at;
        } else {
            isInQuotes = !isInQuotes;
            word.isQuoted = true;
        }
    }
    if (isInWord) {
        word.isEnded = word.isQuoted && !isInQuotes;
        words.append(word);
    }
    return words;
}

MediaQuery::Typed MediaQuery::typedAtEnd(const QString& text) {
    if (!text.startsWith(u':'))
        return {};
    const QList<Word> words = split(text);
    const Word& last = words.last();
    const auto isTagWord = [](const Word& word) { return !word.isQuoted && takesTag(word.text); };
    // A blank ends a word unless a quote is still open, in which it belongs to the value.
    if (last.isEnded || text.back() == u'|' || (text.back().isSpace() && !last.isQuoted)) {
        // The blank behind a tag word begins an empty value, for which all tags are offered.
        const bool isAfterBlank = text.back().isSpace() && isTagWord(last);
        return isAfterBlank ? Typed{Typed::Tag, text.size()} : Typed{};
    }
    if (words.size() > 1 && isTagWord(words[words.size() - 2]))
        return {Typed::Tag, last.start, last.text};
    return last.text.startsWith(u':') ? Typed{Typed::Word, last.start, last.text} : Typed{};
}

MediaQuery::MediaQuery(const QString& text, const QStringList& differentTags) {
    parse(split(text));
    // Each tag text is folded and compared here once, so that a row needs only look-ups.
    for (const QString& tag : _wanted.isEmpty() ? QStringList() : differentTags) {
        if (const auto number = _wanted.constFind(foldedCase(tag.trimmed())); number != _wanted.cend())
            _wantedTags.insert(tag, *number);
    }
}

void MediaQuery::parse(const QList<Word>& words) {
    Conditions conditions;
    const auto endAlternative = [&] {
        if (!conditions.isEmpty() && !_alternatives.contains(conditions))
            _alternatives.append(conditions);
        conditions.clear();
    };
    for (auto word = words.begin(); word != words.end(); ++word) {
        if (isBar(word->text, word->isQuoted)) {
            if (conditions.isEmpty()) {
                _wrongWord = word->text;
                return;
            }
            endAlternative();
            continue;
        }
        const QString text = word->text.toLower();
        Condition condition{};
        const auto value = word + 1;
        const bool hasValue = value != words.end() && !isBar(value->text, value->isQuoted);
        if (takesTag(text) && !word->isQuoted && hasValue) {
            const QString tag = foldedCase(value->text.trimmed());
            condition = {Subject::Tag, text[1] == u'-', '=',
                         double(*_wanted.tryEmplace(tag, int(_wanted.size())).iterator)};
            ++word;
        } else if (text == ":ratio"_L1 && hasValue) {
            condition = {Subject::Ratio, false, '=', ratioOf(value->text)};
            ++word;
            if (condition.number <= 0) {
                _wrongWord = word->text;
                return;
            }
        } else if (word->isQuoted || !parseSimple(text, condition)) {
            _wrongWord = word->text;
            return;
        }
        if (!conditions.contains(condition))
            conditions.append(condition);
    }
    // The last word is a bar then, whose right side is missing.
    if (conditions.isEmpty() && !words.isEmpty())
        _wrongWord = words.last().text;
    endAlternative();
}

bool MediaQuery::parseSimple(const QString& word, Condition& condition) const {
    static const QHash<QString, Subject> flags{{u":video"_s, Subject::Video},
                                               {u":image"_s, Subject::Image},
                                               {u":unsaved"_s, Subject::Unsaved},
                                               {u":dup"_s, Subject::Duplicate}};
    static const QHash<QString, Subject> numbers{
        {u":tags"_s, Subject::TagCount}, {u":w"_s, Subject::Width}, {u":h"_s, Subject::Height}};
    if (const auto flag = flags.constFind(word); flag != flags.cend()) {
        condition = {*flag};
        return true;
    }
    const auto comparison = std::ranges::find_if(
        word, [](QChar character) { return character == u'=' || character == u'<' || character == u'>'; });
    if (comparison == word.end())
        return false;
    const qsizetype at = comparison - word.begin();
    const auto subject = numbers.constFind(word.first(at));
    bool isNumber = false;
    const int number = QStringView(word).sliced(at + 1).toInt(&isNumber);
    if (subject == numbers.cend() || !isNumber)
        return false;
    condition = {*subject, false, comparison->toLatin1(), double(number)};
    return true;
}

MediaFactFlags MediaQuery::asked() const {
    MediaFactFlags asked;
    for (const Conditions& conditions : _alternatives) {
        for (const Condition& condition : conditions)
            asked |= factOf(condition.subject);
    }
    return asked;
}

MediaFact MediaQuery::factOf(Subject subject) {
    switch (subject) {
    case Subject::Width:
    case Subject::Height:
    case Subject::Ratio:
        return MediaFact::Resolution;
    case Subject::Video:
    case Subject::Image:
        return MediaFact::Kind;
    case Subject::Unsaved:
        return MediaFact::Unsaved;
    case Subject::Tag:
    case Subject::TagCount:
    case Subject::Duplicate:
        break;
    }
    return MediaFact::Tags;
}

QList<int> MediaQuery::wantedTags(const QStringList& tags) const {
    QList<int> wanted;
    if (_wantedTags.isEmpty())
        return wanted;
    for (const QString& tag : tags) {
        if (const auto number = _wantedTags.constFind(tag); number != _wantedTags.cend())
            wanted.append(*number);
    }
    return wanted;
}

bool MediaQuery::matches(const MediaFacts& facts) const {
    const QList<int> wanted = wantedTags(facts.tags);
    return std::ranges::any_of(_alternatives, [&](const Conditions& conditions) {
        return std::ranges::all_of(conditions, [&](const Condition& condition) {
            return holds(condition, facts, wanted) != condition.isNegated;
        });
    });
}

bool MediaQuery::holds(const Condition& condition, const MediaFacts& facts,
                       const QList<int>& wantedTags) const {
    const QSize& size = facts.resolution;
    switch (condition.subject) {
    case Subject::Tag:
        return wantedTags.contains(int(condition.number));
    case Subject::TagCount:
        return compares(double(facts.tags.size()), condition.comparison, condition.number);
    case Subject::Width:
        // An unknown size, stored as -1, fulfils no comparison, not even ":w<10".
        return size.isValid() && compares(size.width(), condition.comparison, condition.number);
    case Subject::Height:
        return size.isValid() && compares(size.height(), condition.comparison, condition.number);
    case Subject::Ratio:
        return !size.isEmpty() && std::abs(double(size.width()) / size.height() - condition.number) <=
                                      ratioTolerance * condition.number;
    case Subject::Video:
    case Subject::Image:
        return facts.isVideo == (condition.subject == Subject::Video);
    case Subject::Unsaved:
        return facts.isUnsaved;
    case Subject::Duplicate:
        return hasDuplicates(facts.tags);
    }
    return false;
}

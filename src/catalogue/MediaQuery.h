#pragma once

#include <QCoreApplication>
#include <QFlags>
#include <QHash>
#include <QList>
#include <QSize>
#include <QString>
#include <QStringList>

#include <optional>

// A part of MediaFacts.
enum class MediaFact { Resolution = 1, Kind = 2, Unsaved = 4, Tags = 8 };
Q_DECLARE_FLAGS(MediaFactFlags, MediaFact)

// What a query looks at in one file; see MediaQuery::asked().
struct MediaFacts {
    QSize resolution; // invalid where it is unknown
    bool isVideo = false;
    bool isUnsaved = false;
    QStringList tags = {};
};

// A word of the query language.
struct QueryWord {
    QString text; // as it is typed, up to where its value begins
    QString help; // one line
};

// A filter text of words such as ":tag sky :w>1024 | :video". Blanks join conditions that must all hold, a
// bar separates alternatives. A value with blanks is enclosed in quotes, inside which a quote is doubled.
class MediaQuery {
    Q_DECLARE_TR_FUNCTIONS(MediaQuery)

public:
    // All different tags of the files that will be matched: each is compared once, however many have it.
    MediaQuery(const QString& text, const QStringList& differentTags);

    // Whether a filter text is a query, valid or not. The filter of missing sidecars is none, also while it
    // is typed.
    [[nodiscard]] static bool isQuery(const QString& text);
    [[nodiscard]] static QList<QueryWord> words();
    // The value in the form in which it is typed after a word.
    [[nodiscard]] static QString quoted(const QString& value);

    // What is being typed at the end of a text.
    struct Typed {
        enum Kind { Nothing, Word, Tag };
        Kind kind = Nothing;
        qsizetype start = 0;
        QString text = {};
    };
    [[nodiscard]] static Typed typedAtEnd(const QString& text);

    [[nodiscard]] bool isValid() const { return !_wrongWord; }
    // The first word that is not part of the language, which may be an empty one; null in a valid query.
    [[nodiscard]] QString wrongWord() const { return _wrongWord.value_or(QString()); }
    // The facts that the conditions depend on; only these are worth finding out for each of thousands of
    // files.
    [[nodiscard]] MediaFactFlags asked() const;
    // Tags are compared regardless of case and of outer blanks. Only for a valid query.
    [[nodiscard]] bool matches(const MediaFacts& facts) const;

private:
    enum class Subject { Tag, TagCount, Width, Height, Ratio, Video, Image, Unsaved, Duplicate };
    struct Condition {
        Subject subject;
        bool isNegated = false;
        char comparison = '='; // or '<' or '>'
        double number = 0;     // the number compared with, the ratio, or the number of the tag

        bool operator==(const Condition&) const = default;
    };
    using Conditions = QList<Condition>; // all of which must hold
    struct Word;

    [[nodiscard]] static MediaFact factOf(Subject subject);
    [[nodiscard]] static QList<Word> split(const QString& text);
    void parse(const QList<Word>& words);
    [[nodiscard]] bool parseSimple(const QString& word, Condition& condition) const;
    [[nodiscard]] bool holds(const Condition& condition, const MediaFacts& facts,
                             const QList<int>& wantedTags) const;
    [[nodiscard]] QList<int> wantedTags(const QStringList& tags) const;

    QList<Conditions> _alternatives;
    std::optional<QString> _wrongWord;
    QHash<QString, int> _wanted;     // numbers of the tags that conditions name, case folded
    QHash<QString, int> _wantedTags; // the same numbers by the tags of files
};

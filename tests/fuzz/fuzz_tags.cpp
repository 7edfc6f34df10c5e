#include "Require.h"
#include "tags/TagText.h"

#include <QByteArray>
#include <QStringView>

#include <cstddef>
#include <cstdint>

namespace {

// Saving replaces the bytes of a sidecar only where they are not valid UTF-8; a byte order mark is always
// removed.
QString decoded(const QByteArray& bytes) {
    const QString text = QString::fromUtf8(bytes);
    const QByteArray back = text.toUtf8();
    const bool keepsBytes = back == bytes || "\xEF\xBB\xBF" + back == bytes;
    require(QUtf8StringView(bytes).isValidUtf8() == keepsBytes);
    return text;
}

void requireTagsOfText(const QStringList& tags) {
    for (const QString& tag : tags)
        require(tag == tag.trimmed() && !tag.contains(u',') && !tag.contains(u'\n'));
}

// All but empty tags can be read back from the written form, and a second save changes nothing.
void requireRoundTrip(QStringList tags) {
    const QString saved = savedTagText(tags, false);
    tags.removeAll(QString());
    require(tagsFromText(tagListToString(tags)) == tags);
    tags.removeDuplicates();
    require(tagsFromText(saved) == tags);
    require(savedTagText(tagsFromText(saved), false) == tagListToString(tags));
}

void requireSplit(QStringList tags, const QString& separator) {
    const qsizetype others = tags.size() - tags.filter(separator, Qt::CaseInsensitive).size();
    splitTags(tags, separator);
    require(tags.filter(separator, Qt::CaseSensitive).isEmpty() && tags.size() >= others);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t count) {
    const QString text = decoded({reinterpret_cast<const char*>(bytes), static_cast<qsizetype>(count)});
    const QStringList tags = tagsFromText(text);
    requireTagsOfText(tags);
    requireRoundTrip(tags);
    const QStringList typed = tagsFromEntry(text);
    require(!typed.contains(QString()) && typed.size() == tags.size());
    if (!typed.isEmpty()) {
        requireSplit(tags, typed.first());
        QStringList kept = tags;
        removeTags(kept, {tags.first()});
        require(!kept.contains(tags.first()) && kept.size() == tags.size() - tags.count(tags.first()));
    }
    return 0;
}

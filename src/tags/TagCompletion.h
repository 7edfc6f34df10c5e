#pragma once

#include "tags/CompletionPopup.h"
#include "tags/TagText.h"

// The rules of completing tags.

// At most twelve tags that contain the word regardless of case: first those that begin with it, then the more
// frequent, then by their text. Tags that differ in outer blanks alone are one; tags with a comma or a line
// end are left out, since typed text cannot hold them. An empty word is in every tag.
[[nodiscard]] QList<TagCount> matchingTags(const QList<TagCount>& known, const QString& word);

// Completions of the tag that is typed at the cursor of a line: after the last comma, blanks trimmed. None
// before its first character or inside of it.
[[nodiscard]] CompletionOffer tagCompletions(const QList<TagCount>& known, const QString& line,
                                             qsizetype cursor);

// Completions in the filter line: the words of a query, and tags after the words that expect one.
[[nodiscard]] CompletionOffer queryCompletions(const QList<TagCount>& known, const QString& line,
                                               qsizetype cursor);

// The tags to add for a text typed into one line. Its last tag is kept if exactly that tag is used already,
// else the chosen completion replaces it; a null one leaves it as a new tag.
[[nodiscard]] QStringList tagsToAdd(const QList<TagCount>& known, const QString& typed,
                                    const QString& chosen);

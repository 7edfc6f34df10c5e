#pragma once

#include <QStringList>

// The text files of a directory, by name, to which no media file answers. The name up to its first dot is
// what counts, regardless of case: "a.b.txt" belongs to "a.png". Takes the names of all entries and the
// lower-case suffixes of media.
[[nodiscard]] QStringList strayTxtFiles(const QStringList& txtNames, const QStringList& allNames,
                                        const QStringList& mediaSuffixes);

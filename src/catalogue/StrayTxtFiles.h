#pragma once

#include <QStringList>

// The names of the text files of a directory that belong to no media file in it. Names are compared up to
// their first dot, regardless of case: "a.b.txt" belongs to "a.png". `allNames` are all entries of the
// directory, `mediaSuffixes` are in lower case.
[[nodiscard]] QStringList strayTxtFiles(const QStringList& txtNames, const QStringList& allNames,
                                        const QStringList& mediaSuffixes);

#include "catalogue/StrayTxtFiles.h"

#include "catalogue/FileNaming.h"

#include <QFileInfo>
#include <QSet>

QStringList strayTxtFiles(const QStringList& txtNames, const QStringList& allNames,
                          const QStringList& mediaSuffixes) {
    QSet<QString> mediaBaseNames;
    const QSet<QString> suffixes(mediaSuffixes.cbegin(), mediaSuffixes.cend());
    for (const QString& name : allNames) {
        const QFileInfo info(name);
        if (suffixes.contains(info.suffix().toLower()))
            mediaBaseNames.insert(foldedCase(info.baseName()));
    }
    QStringList stray;
    for (const QString& name : txtNames) {
        if (!mediaBaseNames.contains(foldedCase(QFileInfo(name).baseName())))
            stray.append(name);
    }
    return stray;
}

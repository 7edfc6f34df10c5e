#include "app/services/Translations.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QLocale>

#include <algorithm>

using namespace Qt::StringLiterals;

void Translations::install(const QStringList& languages) {
    const auto loads = [this](const QString& language) {
        return _program.load(":/i18n/Tessarine_"_L1 + QLocale(language).name());
    };
    if (std::ranges::none_of(languages, loads))
        return;
    QCoreApplication::installTranslator(&_program);
    if (_qt.load("qtbase_"_L1 + _program.language(), QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        QCoreApplication::installTranslator(&_qt);
}

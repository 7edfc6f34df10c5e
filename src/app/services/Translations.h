#pragma once

#include <QStringList>
#include <QTranslator>

// The texts of the program and those of Qt in the user's language, for as long as this object lives.
class Translations {
public:
    // Installs the first of the languages, in the form of QLocale::uiLanguages(), that the program has. Texts
    // without a translation stay English, those of Qt also where its installation has no such language.
    void install(const QStringList& languages);

private:
    QTranslator _program;
    QTranslator _qt;
};

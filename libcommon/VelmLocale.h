#ifndef VELMLOCALE_H
#define VELMLOCALE_H

#include <QList>
#include <QString>

// Chooses the UI language from the system locale. A language is named by a
// three-letter code whose catalogue is the resource ":/" + code + ".qm".
class VelmLocale {
public:
    VelmLocale() = delete;

    // The language of the system locale, or English when its catalogue is
    // not among the resources. Never empty.
    static QString getDefaultLanguage();

    // Whether the catalogue of lang is among the resources; lang is used as
    // given, so "ENU" is not "enu".
    static bool isLanguageInstalled(QString const& lang);

    static QList<QString> getSupportedLanguages();
    static QString getStrLanguageFallSafe();

    // The code with the given language ID (0 to 19), or an empty string.
    static QString getLanguageAbbrByID(int id);

    // The code for a locale name such as "pt_BR", ignoring case and without
    // looking at which catalogues are installed.
    static QString languageForLocaleName(const QString& localeName);
};

#endif  // VELMLOCALE_H

#pragma once

#include <QCoreApplication>
#include <QLocale>
#include <QTranslator>

#include <cstdio>
#include <memory>

// VELTO_SCREENSHOT_LANGUAGE=de renders the pictures in that language, from the build's translations, with
// "-de" added to their names. Empty: English, names unchanged.
inline QString useScreenshotLanguage()
{
    const QString language = qEnvironmentVariable("VELTO_SCREENSHOT_LANGUAGE");
    if (language.isEmpty())
        return {};
    static QTranslator translator;
    if (!translator.load(QStringLiteral(VELTO_TRANSLATIONS_BUILT "/velto_") + language + QStringLiteral(".qm"))) {
        std::fprintf(stderr, "no translations for %s\n", qPrintable(language));
        std::exit(1);
    }
    QCoreApplication::installTranslator(&translator);
    QLocale::setDefault(QLocale(language));
    return QLatin1Char('-') + language;
}

#pragma once

#include <QCoreApplication>
#include <QTranslator>

// Velto's English plural forms ("1 minute", "2 minutes"), which the application installs under every language,
// from the catalogue the build compiles (VELTO_ENGLISH_QM, set by velto_use_english_plural_forms()). Without
// them a text with plural forms reads as its source, the plural, even for one.
class EnglishPluralForms {
public:
    EnglishPluralForms() = default;
    EnglishPluralForms(const EnglishPluralForms&) = delete;
    EnglishPluralForms& operator=(const EnglishPluralForms&) = delete;
    ~EnglishPluralForms() { QCoreApplication::removeTranslator(&m_translator); }

    [[nodiscard]] bool install()
    {
        return m_translator.load(QStringLiteral(VELTO_ENGLISH_QM)) &&
               QCoreApplication::installTranslator(&m_translator);
    }

private:
    QTranslator m_translator;
};

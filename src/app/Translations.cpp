#include "Translations.h"

#include <QCoreApplication>
#include <QLocale>
#include <QTranslator>

using namespace Qt::Literals::StringLiterals;

namespace velto {

void installTranslations(QCoreApplication& application)
{
    // Installed first, so asked last: the English plural forms ("1 minute", "2 minutes") under every language.
    auto* english = new QTranslator(&application);
    if (english->load(u":/velto/i18n/velto_en.qm"_s))
        QCoreApplication::installTranslator(english);
    auto* translator = new QTranslator(&application);
    if (translator->load(QLocale::system(), u"velto"_s, u"_"_s, u":/velto/i18n"_s) && translator->language() != u"en"_s)
        QCoreApplication::installTranslator(translator);
    else
        delete translator;
}

} // namespace velto

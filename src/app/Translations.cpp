#include "Translations.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

using namespace Qt::Literals::StringLiterals;

namespace velto {
namespace {

int englishScopes = 0;

// Asked before every other translator; answers only inside a ScopedEnglishTexts, with English.
class EnglishOnRequest final : public QTranslator {
public:
    explicit EnglishOnRequest(QTranslator* english, QObject* parent)
        : QTranslator(parent)
        , m_english(english)
    {}

    [[nodiscard]] bool isEmpty() const override { return false; }

    [[nodiscard]] QString translate(const char* context, const char* sourceText, const char* disambiguation,
                                    int n) const override
    {
        if (englishScopes == 0)
            return {};
        QString text = m_english ? m_english->translate(context, sourceText, disambiguation, n) : QString();
        return text.isEmpty() ? QString::fromUtf8(sourceText) : text;
    }

private:
    QTranslator* m_english;
};

} // namespace

void installTranslations(QCoreApplication& application)
{
    // Installed first, so asked last: the English plural forms ("1 minute", "2 minutes") under every language.
    auto* english = new QTranslator(&application);
    if (english->load(u":/velto/i18n/velto_en.qm"_s))
        QCoreApplication::installTranslator(english);
    // Qt's own texts (the OK of a message box), where the system has them.
    auto* qt = new QTranslator(&application);
    if (qt->load(QLocale::system(), u"qtbase"_s, u"_"_s, QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        QCoreApplication::installTranslator(qt);
    else
        delete qt;
    auto* translator = new QTranslator(&application);
    if (translator->load(QLocale::system(), u"velto"_s, u"_"_s, u":/velto/i18n"_s) && translator->language() != u"en"_s)
        QCoreApplication::installTranslator(translator);
    else
        delete translator;
    QCoreApplication::installTranslator(new EnglishOnRequest(english, &application));
}

ScopedEnglishTexts::ScopedEnglishTexts()
{
    ++englishScopes;
}

ScopedEnglishTexts::~ScopedEnglishTexts()
{
    --englishScopes;
}

} // namespace velto

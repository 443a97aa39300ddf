#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QTest>
#include <QXmlStreamReader>

using namespace Qt::Literals::StringLiterals;

// Every translation file complete and faithful to its sources' placeholders: a translation that drops or adds
// a %1 or a %n shows the wrong number, or none, to the user.
class TestTranslations : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void everyTextIsTranslatedWithItsPlaceholders_data()
    {
        QTest::addColumn<QString>("path");
        const QDir folder(QStringLiteral(VELTO_TRANSLATIONS_DIR));
        const QStringList files = folder.entryList({u"velto_*.ts"_s}, QDir::Files, QDir::Name);
        QVERIFY(files.size() >= 13);
        for (const QString& file : files)
            QTest::newRow(qPrintable(file)) << folder.filePath(file);
    }

    void everyTextIsTranslatedWithItsPlaceholders()
    {
        QFETCH(QString, path);
        QFile file(path);
        QVERIFY(file.open(QIODevice::ReadOnly));
        QXmlStreamReader xml(&file);
        const bool pluralsOnly = path.endsWith(u"velto_en.ts"_s);
        QString context;
        QString source;
        bool numerus = false;
        QStringList forms;
        QString problems;
        int messages = 0;
        while (!xml.atEnd()) {
            xml.readNext();
            if (!xml.isStartElement())
                continue;
            const auto name = xml.name();
            if (name == u"name"_s) {
                context = xml.readElementText();
            } else if (name == u"message"_s) {
                numerus = xml.attributes().value(u"numerus"_s) == u"yes"_s;
                ++messages;
            } else if (name == u"source"_s) {
                source = xml.readElementText();
            } else if (name == u"translation"_s) {
                const auto type = xml.attributes().value(u"type"_s);
                if (!type.isEmpty())
                    problems += u"%1 \"%2\": %3\n"_s.arg(context, source, type.toString());
                forms.clear();
                if (numerus) {
                    while (xml.readNextStartElement())
                        forms << xml.readElementText();
                } else {
                    forms << xml.readElementText();
                }
                // The last form is the general one: it cannot do without the number.
                if (numerus && source.contains(u"%n"_s) && !forms.value(forms.size() - 1).contains(u"%n"_s))
                    problems += u"%1 \"%2\": the general plural form lacks %n\n"_s.arg(context, source);
                for (const QString& form : forms) {
                    if (form.isEmpty())
                        problems += u"%1 \"%2\": empty\n"_s.arg(context, source);
                    // A plural form may spell its number out ("one minute") instead of showing %n.
                    else if (placeholders(form, numerus) != placeholders(source, numerus))
                        problems += u"%1 \"%2\": \"%3\" has %4, not %5\n"_s.arg(
                            context, source, form, placeholders(form, false), placeholders(source, false));
                }
            }
        }
        QVERIFY2(!xml.hasError(), qPrintable(xml.errorString()));
        QVERIFY2(pluralsOnly || messages > 0, "no texts at all");
        QVERIFY2(problems.isEmpty(), qPrintable(problems));
    }

private:
    // The placeholders a text uses, sorted: %1 to %99, %n, and their %L forms; %n left out when asked.
    static QString placeholders(const QString& text, bool withoutCount)
    {
        static const QRegularExpression pattern(u"%L?(\\d{1,2}|n)"_s);
        QStringList found;
        for (const QRegularExpressionMatch& match : pattern.globalMatch(text)) {
            if (!(withoutCount && match.captured(1) == u"n"_s))
                found << match.captured(0).remove(u'L');
        }
        found.sort();
        found.removeDuplicates();
        return found.join(u',');
    }
};

QTEST_GUILESS_MAIN(TestTranslations)
#include "tst_translations.moc"

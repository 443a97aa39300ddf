#include "settings/SettingsFileStore.h"

#include <QBuffer>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>

using namespace velto;
using namespace Qt::Literals::StringLiterals;

class TestSettingsFileStore : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        // A folder of its own per case, so no case reads another's file.
        m_dir = std::make_unique<QTemporaryDir>();
        QVERIFY(m_dir->isValid());
    }
    void valuesKeepTheirKindAcrossARestart();
    void handEditedAndDamagedLines();
    void binaryJunkReadsAsNothingUseful();
    void unwritableFileKeepsValuesAndSaysWhyOncePerReason();
    void defaultPathFollowsXdgConfigHome();

private:
    QString path(const QString& name = u"velto.ini"_s) const { return m_dir->filePath(name); }
    void writeFile(const QByteArray& contents) const
    {
        QFile file(path());
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(contents);
    }

    std::unique_ptr<QTemporaryDir> m_dir;
};

void TestSettingsFileStore::valuesKeepTheirKindAcrossARestart()
{
    const QByteArray record = R"({"isEnabled":true,"activeDays":[1,2],"note":"a=b # c"})";
    {
        SettingsFileStore store(path());
        store.write(u"isEnabled"_s, false);
        store.write(u"flagAsText"_s, u"true"_s);
        store.write(u"breakPresetSelection"_s, u"deepFocus"_s);
        store.write(u"schedule"_s, record);
        store.write(u"pretty"_s, QByteArray("{\n  \"a\": 1\n}"));
        store.write(u"dailyBreakCountDate"_s, QVariantList{1, 2026, 11, 22});
        store.write(u"text"_s, u"quote \" backslash \\ newline \n end"_s);
        store.write(u"gone"_s, true);
        store.remove(u"gone"_s);
        QCOMPARE(store.read(u"gone"_s), QVariant());
    }
    const QByteArray text = [this] {
        QFile file(path());
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }();
    QVERIFY2(text.contains("isEnabled=false\n"), text.constData());
    QVERIFY2(text.contains(QByteArray("schedule=" + record + "\n")), text.constData());

    QVERIFY2(text.contains("pretty={\"a\":1}\n"), text.constData());

    QBuffer buffer;
    buffer.setData(text);
    QVERIFY(buffer.open(QIODevice::ReadOnly));
    QVariantMap map;
    QVERIFY(SettingsFileStore::readTypedIni(buffer, map));
    QCOMPARE(map.value(u"isEnabled"_s), QVariant(false));
    QCOMPARE(map.value(u"flagAsText"_s).typeId(), QMetaType::QString);
    QCOMPARE(map.value(u"breakPresetSelection"_s), QVariant(u"deepFocus"_s));
    QCOMPARE(map.value(u"schedule"_s), QVariant(record));
    QCOMPARE(map.value(u"dailyBreakCountDate"_s).toList(), (QVariantList{1.0, 2026.0, 11.0, 22.0}));
    QCOMPARE(map.value(u"text"_s).toString(), u"quote \" backslash \\ newline \n end"_s);
    QVERIFY(!map.contains(u"gone"_s));
}

void TestSettingsFileStore::handEditedAndDamagedLines()
{
    writeFile("; a comment\n"
              "# another\n"
              "[General]\n"
              "isEnabled = yes\n"
              "showTimerInMenuBar=\"false\"\n"
              "launchAtLogin=false\n"
              "breakConfiguration={\"workInterval\":12\n"
              "no equals sign here\n"
              "=orphan value\n"
              "nothing=null\n"
              "breakAppearance={\"customMessages\":[\"Caf\xe9 time\",\"Look away\"],\"overlayOpacity\":0.8}\n"
              "[Other]\n"
              "key=1\n");
    const SettingsFileStore store(path());
    QCOMPARE(store.read(u"isEnabled"_s), QVariant(u"yes"_s));
    QCOMPARE(store.read(u"showTimerInMenuBar"_s), QVariant(u"false"_s));
    QCOMPARE(store.read(u"launchAtLogin"_s), QVariant(false));
    // A truncated record is no record: it reads as text, which the settings ignore.
    QCOMPARE(store.read(u"breakConfiguration"_s).typeId(), QMetaType::QString);
    QCOMPARE(store.read(u"nothing"_s), QVariant());
    // A byte that is no UTF-8 costs one character, not the record.
    const QVariant record = store.read(u"breakAppearance"_s);
    QCOMPARE(record.typeId(), QMetaType::QByteArray);
    const QJsonObject appearance = QJsonDocument::fromJson(record.toByteArray()).object();
    QCOMPARE(appearance.value(u"customMessages"_s).toArray(), (QJsonArray{u"Caf\uFFFD time"_s, u"Look away"_s}));
    QCOMPARE(appearance.value(u"overlayOpacity"_s).toDouble(), 0.8);
    QCOMPARE(store.read(u"Other/key"_s).toInt(), 1);
}

void TestSettingsFileStore::binaryJunkReadsAsNothingUseful()
{
    QByteArray junk;
    for (int i = 0; i < 4096; ++i)
        junk.append(static_cast<char>((i * 7919) % 256));
    writeFile(junk);
    SettingsFileStore store(path());
    QCOMPARE(store.read(u"isEnabled"_s).typeId() == QMetaType::Bool, false);
    store.write(u"isEnabled"_s, true);
    QVERIFY(store.sync());
    QCOMPARE(SettingsFileStore(path()).read(u"isEnabled"_s), QVariant(true));
}

void TestSettingsFileStore::unwritableFileKeepsValuesAndSaysWhyOncePerReason()
{
    // A folder where the file should be cannot be read or written, and a file where the folder should be
    // cannot be created, whoever runs the test (also root, whom permissions do not stop).
    QVERIFY(QDir(m_dir->path()).mkpath(u"folder.ini"_s));
    writeFile("isEnabled=false\n");
    QTest::failOnWarning(QRegularExpression(u".*"_s));
    for (const QString& bad : {path(u"folder.ini"_s), path(u"velto.ini/inside.ini"_s)}) {
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(u"^velto: settings cannot be saved to "_s +
                                                              QRegularExpression::escape(bad) + u": .+"_s));
        SettingsFileStore store(bad);
        QCOMPARE(store.read(u"isEnabled"_s), QVariant());
        // Each save tries again; the reason is told once.
        for (int save = 0; save < 2; ++save) {
            store.write(u"isEnabled"_s, false);
            store.write(u"schedule"_s, QByteArray("{}"));
            QVERIFY(!store.sync());
        }
        QCOMPARE(store.read(u"isEnabled"_s), QVariant(false));
        QCOMPARE(store.read(u"schedule"_s), QVariant(QByteArray("{}")));
    }
    QVERIFY(QFileInfo(path(u"folder.ini"_s)).isDir());
}

void TestSettingsFileStore::defaultPathFollowsXdgConfigHome()
{
    const QByteArray saved = qgetenv("XDG_CONFIG_HOME");
    qputenv("XDG_CONFIG_HOME", m_dir->path().toUtf8());
    QCOMPARE(SettingsFileStore::defaultFilePath(), m_dir->path() + u"/velto/velto.ini"_s);
    qputenv("XDG_CONFIG_HOME", saved);
}

QTEST_GUILESS_MAIN(TestSettingsFileStore)
#include "tst_settingsfilestore.moc"

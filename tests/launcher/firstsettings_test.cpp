// The first settings of a user: the folders in which the dialogs start.

#include "firstsettings.h"

#include <QDir>
#include <QFile>
#include <QSettings>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

void write(const QString &name, const QByteArray &content)
{
    QFile file(name);
    QVERIFY(file.open(QIODevice::WriteOnly) && file.write(content) == content.size());
}

} // namespace

class FirstSettingsTest : public QObject
{
    Q_OBJECT

private slots:
    void theyNameTheUsersFolders_data();
    void theyNameTheUsersFolders();
    void settingsAreKept();
    void withoutAHomeThereAreNone();
};

void FirstSettingsTest::theyNameTheUsersFolders_data()
{
    QTest::addColumn<QByteArray>("configured");
    QTest::addColumn<QStringList>("folders");
    QTest::addColumn<QString>("input");
    QTest::addColumn<QString>("output");
    const QStringList usual = {u"Pictures"_s, u"Documents"_s};
    QTest::newRow("the usual folders")
        << QByteArray() << usual << u"/Pictures"_s << u"/Documents"_s;
    QTest::newRow("no such folders") << QByteArray() << QStringList() << u""_s << u""_s;
    QTest::newRow("folders of another language")
        << QByteArray("# made by hand\nXDG_PICTURES_DIR=\"$HOME/Bilder & \xc3\x84hnliches\"\n"
                      "XDG_DOCUMENTS_DIR=\"$HOME/a \\\"b\\\" \\\\c, d;e\"\n")
        << usual + QStringList{u"Bilder & \u00c4hnliches"_s, u"a \"b\" \\c, d;e"_s}
        << u"/Bilder & \u00c4hnliches"_s << u"/a \"b\" \\c, d;e"_s;
    QTest::newRow("a configured folder that is gone")
        << QByteArray("XDG_PICTURES_DIR=\"$HOME/gone\"\n") << usual << u""_s << u"/Documents"_s;
    QTest::newRow("nonsense") << QByteArray("XDG_PICTURES_DIR=\nXDG_DOCUMENTS_DIR=\"here\"\n")
                              << usual << u"/Pictures"_s << u"/Documents"_s;
}

void FirstSettingsTest::theyNameTheUsersFolders()
{
    QFETCH(QByteArray, configured);
    QFETCH(QStringList, folders);
    QFETCH(QString, input);
    QFETCH(QString, output);
    const QTemporaryDir home;
    for (const QString &folder : folders + QStringList(u".config"_s))
        QVERIFY(QDir(home.path()).mkpath(folder));
    write(home.filePath(u".config/user-dirs.dirs"_s), configured);
    qputenv("HOME", home.path().toUtf8());
    qunsetenv("XDG_CONFIG_HOME");
    const QString file = home.filePath(u"setting.ini"_s);
    writeFirstSettings(file.toStdString());
    const QSettings settings(file, QSettings::IniFormat);
    QCOMPARE(settings.value(u"dir/input"_s).toString(), home.path() + input);
    QCOMPARE(settings.value(u"dir/output"_s).toString(), home.path() + output);
}

void FirstSettingsTest::settingsAreKept()
{
    const QTemporaryDir home;
    qputenv("HOME", home.path().toUtf8());
    const QString name = home.filePath(u"setting.ini"_s);
    write(name, "[dir]\n");
    writeFirstSettings(name.toStdString());
    QFile file(name);
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(file.readAll(), QByteArray("[dir]\n"));
}

void FirstSettingsTest::withoutAHomeThereAreNone()
{
    const QTemporaryDir folder;
    qunsetenv("HOME");
    writeFirstSettings(folder.filePath(u"setting.ini"_s).toStdString());
    QVERIFY(!QFile::exists(folder.filePath(u"setting.ini"_s)));
}

QTEST_GUILESS_MAIN(FirstSettingsTest)
#include "firstsettings_test.moc"

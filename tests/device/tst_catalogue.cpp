// The embedded catalogues and the language setting that chooses between them.
#include "../common/test_support.h"
#include "config_model/app_settings.h"
#include "translations/catalogue.h"

#include "zrk/zrk_host_api.h"

#include <QFile>
#include <QSettings>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QXmlStreamReader>
#include <QtTest>

namespace {

QStringList idsOf(const QString& language)
{
    QFile file(QStringLiteral(ZRK_SOURCE_DIR "/translations/zrk_%1.ts").arg(language));
    if (!file.open(QIODevice::ReadOnly))
        return {};
    QStringList ids;
    QXmlStreamReader xml(&file);
    while (!xml.atEnd()) {
        if (xml.readNext() == QXmlStreamReader::StartElement && xml.name() == QLatin1String("message"))
            ids << xml.attributes().value(QLatin1String("id")).toString();
    }
    return xml.hasError() ? QStringList() : ids;
}

} // namespace

class tst_Catalogue : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QVERIFY(zrktest::useOwnHome(home, "tst_catalogue")); }

    void cleanupTestCase() { zrk::removeCatalogue(); }

    void bothCataloguesHaveTheSameIds()
    {
        QStringList ru = idsOf(QStringLiteral("ru"));
        QStringList en = idsOf(QStringLiteral("en"));
        QVERIFY(!ru.isEmpty());
        QVERIFY2(!ru.contains(QString()), "a message without id");
        QCOMPARE(QSet<QString>(ru.begin(), ru.end()).size(), ru.size());
        ru.sort();
        en.sort();
        QCOMPARE(en, ru);
    }

    void everyIdResolves_data()
    {
        QTest::addColumn<QString>("language");
        QTest::newRow("ru") << QStringLiteral("ru");
        QTest::newRow("en") << QStringLiteral("en");
    }

    // An unknown id comes back as itself, and an empty translation as the source text or nothing:
    // both show up here.
    void everyIdResolves()
    {
        QFETCH(QString, language);
        QVERIFY(zrk::installCatalogue(language));
        QCOMPARE(zrk::installedCatalogueLanguage(), language);
        const QStringList ids = idsOf(language);
        QVERIFY(!ids.isEmpty());
        int cyrillic = 0;
        for (const QString& id : ids) {
            const QString text = qtTrId(id.toLatin1().constData());
            QVERIFY2(!text.isEmpty() && text != id, qPrintable(language + ": " + id));
            for (QChar c : text) {
                if (c.unicode() >= 0x0400 && c.unicode() <= 0x04FF) {
                    ++cyrillic;
                    break;
                }
            }
        }
        // Russian texts are Russian, English ones carry no Cyrillic.
        QCOMPARE(cyrillic, language == QLatin1String("ru") ? ids.size() : 0);
    }

    void languageSetting()
    {
        QCOMPARE(programLanguage(), QStringLiteral("ru"));
        setProgramLanguage(QStringLiteral("en"));
        QCOMPARE(programLanguage(), QStringLiteral("en"));
        QCOMPARE(
            QSettings().value(QStringLiteral(ZRK_SETTINGS_LANGUAGE_KEY)).toString(), QStringLiteral("en"));
        // Anything the plug-in has no catalogue for means the default.
        QSettings().setValue(QStringLiteral(ZRK_SETTINGS_LANGUAGE_KEY), QStringLiteral("de"));
        QCOMPARE(programLanguage(), QStringLiteral("ru"));
        setProgramLanguage(QStringLiteral("fr"));
        QCOMPARE(
            QSettings().value(QStringLiteral(ZRK_SETTINGS_LANGUAGE_KEY)).toString(), QStringLiteral("ru"));
        QVERIFY(QSettings().fileName().startsWith(home.path()));
        QVERIFY(appDataDirectory().startsWith(home.path()));
    }

private:
    QTemporaryDir home;
};

QTEST_MAIN(tst_Catalogue)
#include "tst_catalogue.moc"

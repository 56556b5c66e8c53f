// The reference host's loader, dispatcher and window, against the real plug-in and against
// libraries that are not plug-ins of the family.
#include "../common/test_support.h"
#include "host_catalogue.h"
#include "host_dispatcher.h"
#include "host_window.h"
#include "message_log.h"
#include "plugin_loader.h"

#include <QDir>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTranslator>
#include <QXmlStreamReader>
#include <QtTest>

#include <algorithm>

using zrktest::addr;

namespace {

QSet<QString> catalogueIds(const QString& fileName)
{
    QSet<QString> ids;
    QFile file(fileName);
    if (!file.open(QIODevice::ReadOnly))
        return ids;
    QXmlStreamReader xml(&file);
    while (!xml.atEnd()) {
        if (xml.readNext() == QXmlStreamReader::StartElement && xml.name() == QLatin1String("message"))
            ids.insert(xml.attributes().value(QLatin1String("id")).toString());
    }
    return ids;
}

// The ids the host's sources ask for: each must be in every catalogue.
QSet<QString> sourceIds()
{
    QSet<QString> ids;
    const QDir dir(QStringLiteral(ZRK_SOURCE_DIR "/host"));
    const QRegularExpression call(QStringLiteral("qtTrId\\(\"(\\w+)\"\\)"));
    for (const QString& name : dir.entryList({ QStringLiteral("*.cpp"), QStringLiteral("*.h") })) {
        QFile file(dir.filePath(name));
        if (!file.open(QIODevice::ReadOnly))
            continue;
        auto it = call.globalMatch(QString::fromUtf8(file.readAll()));
        while (it.hasNext())
            ids.insert(it.next().captured(1));
    }
    return ids;
}

} // namespace

class tst_Host : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        QVERIFY(zrktest::useOwnHome(home, "tst_host"));
        // The texts compared below are the Russian catalogue's, as zrk-host installs it by default.
        QVERIFY(zrkLoadHostCatalogue(hostTexts, QStringLiteral("ru")));
        QVERIFY(QCoreApplication::installTranslator(&hostTexts));
    }

    void notPlugins_data()
    {
        QTest::addColumn<QString>("file");
        QTest::addColumn<QString>("reason");
        QTest::newRow("missing file") << home.filePath("none.so") << QStringLiteral("не найден");
        QTest::newRow("not a library")
            << QStringLiteral(ZRK_SOURCE_DIR "/README.md") << QStringLiteral("не загружается как библиотека");
        QTest::newRow("two exports missing")
            << QStringLiteral(ZRK_FAKE_PARTIAL) << QStringLiteral("нет экспорта Initialize, ReceiveMessage.");
        QTest::newRow("says it is not one")
            << QStringLiteral(ZRK_FAKE_DENIES) << QStringLiteral("IsZrkLibraryV() вернула 0 вместо 1.");
        QTest::newRow("no handle") << QStringLiteral(ZRK_FAKE_NO_HANDLE)
                                   << QStringLiteral("не сообщила описатель");
    }

    void notPlugins()
    {
        QFETCH(QString, file);
        QFETCH(QString, reason);
        ZrkPluginLoader loader;
        QVERIFY(!loader.load(file));
        QVERIFY2(loader.errorString().contains(reason), qPrintable(loader.errorString()));
        QVERIFY(!loader.isLoaded());
        loader.send(2001, 0, 0); // nothing loaded, nothing happens
    }

    void describeWord_data()
    {
        static QString text = QStringLiteral("K-7140");
        static QByteArray bytes = QByteArray::fromHex("0102030405060708090a0b0c0d0e0f1011");
        QTest::addColumn<QByteArray>("type");
        QTest::addColumn<quint64>("word");
        QTest::addColumn<QString>("expected");
        QTest::newRow("string") << QByteArray("QString* model") << quint64(addr(text))
                                << QStringLiteral("«K-7140»");
        QTest::newRow("null string") << QByteArray("QString*") << quint64(0) << QStringLiteral("null");
        QTest::newRow("bytes, cut after 16")
            << QByteArray("QByteArray*") << quint64(addr(bytes))
            << QStringLiteral("17 байт: 01 02 03 04 05 06 07 08 09 0a 0b 0c 0d 0e 0f 10 …");
        QTest::newRow("by value") << QByteArray("int value") << quint64(42) << QStringLiteral("42");
        QTest::newRow("zero") << QByteArray("0") << quint64(0) << QStringLiteral("0");
        QTest::newRow("unexpected non-zero") << QByteArray("0") << quint64(255) << QStringLiteral("255");
        QTest::newRow("record") << QByteArray("szSDFile*") << quint64(0x1000)
                                << QStringLiteral("адрес 0x1000");
        QTest::newRow("unused") << QByteArray("-") << quint64(0) << QStringLiteral("0");
    }

    void describeWord()
    {
        QFETCH(QByteArray, type);
        QFETCH(quint64, word);
        QFETCH(QString, expected);
        QCOMPARE(
            ZrkHostDispatcher::describeWord(type.constData(), static_cast<unsigned long>(word)), expected);
    }

    void dispatcherWithPlugin()
    {
        ZrkPluginLoader loader;
        QVERIFY2(loader.load(QStringLiteral(ZRK_PLUGIN_FILE)), qPrintable(loader.errorString()));
        QCOMPARE(QByteArray(loader.info().displayName), QByteArray("Torvin K-7140"));
        {
            ZrkHostDispatcher dispatcher(loader);
            QSignalSpy logged(&dispatcher, &ZrkHostDispatcher::messageLogged);
            QSignalSpy results(&dispatcher, &ZrkHostDispatcher::resultLogged);
            loader.initialize(&ZrkHostDispatcher::callback);

            quint32 value = 0;
            dispatcher.send(ZRK_MSG_PROTOCOL_NUMBER_QUERY, addr(value), 0, QString(), QString(),
                [&] { return QString::number(value); });
            QCOMPARE(value, 196u);
            QCOMPARE(results.size(), 1);
            QCOMPARE(results[0][1].toString(), QStringLiteral("196"));

            // The plug-in answers 2101 with 2370 from inside the call: both are logged, in order.
            logged.clear();
            szConfigFile file {};
            file.mode = 1;
            dispatcher.send(ZRK_MSG_OPEN_CONFIGURATION, addr(file), 0);
            QCOMPARE(logged.size(), 2);
            const auto first = logged[0][0].value<ZrkLoggedMessage>();
            const auto second = logged[1][0].value<ZrkLoggedMessage>();
            QCOMPARE(first.id, 2101);
            QCOMPARE(first.name, QStringLiteral("OPEN_CONFIGURATION"));
            QCOMPARE(second.id, 2370);
            QCOMPARE(second.name, QStringLiteral("CONFIG_WINDOW_OPENED"));
            QVERIFY(second.direction == ZrkMessageDirection::PluginToHost);
            QVERIFY(second.sequence > first.sequence);

            // 2135 is answered with an empty record; a foreign handle is logged and not answered.
            QString module = QStringLiteral("ce");
            szLibraryFunctions functions { "x", "y", "z", &value, nullptr };
            int other = 0;
            ZrkHostDispatcher::callback(
                &other, ZRK_MSG_LOOKUP_MODULE_FUNCTIONS, addr(module), addr(functions));
            QCOMPARE(functions.moduleName, QStringLiteral("x"));
            ZrkHostDispatcher::callback(
                loader.handle(), ZRK_MSG_LOOKUP_MODULE_FUNCTIONS, addr(module), addr(functions));
            QVERIFY(functions.moduleName.isEmpty() && functions.moduleFile.isEmpty()
                && functions.moduleVersion.isEmpty());
            QVERIFY(!functions.handle && !functions.receiveMessage);
        }
        // Without a dispatcher the callback answers nothing and does not crash.
        QCOMPARE(ZrkHostDispatcher::callback(loader.handle(), 2007, 0, 0), 0ul);
        loader.unload();
        QVERIFY(!loader.isLoaded());
    }

    void windowLoadsAndAsks()
    {
        ZrkPluginLoader loader;
        ZrkHostDispatcher dispatcher(loader);
        ZrkHostWindow window(loader, dispatcher);
        QVERIFY(window.loadPlugin(QStringLiteral(ZRK_PLUGIN_FILE)));
        ZrkMessageLog* log = window.messageLog();
        QCOMPARE(log->rowCount(), 8);
        QStringList answers;
        for (int r = 0; r < log->rowCount(); ++r)
            answers << log->cell(r, ZrkMessageLog::Id) + "=" + log->cell(r, ZrkMessageLog::Result);
        QCOMPARE(answers,
            (QStringList {
                "2001=1", "2002=1", "2003=196", "2010=1", "2272=2", "2399=1", "2006=«012»", "2356=пусто" }));
        window.setTerminal(QStringLiteral("K-7140"), QStringLiteral("1"), QStringLiteral("2"), 0);
        window.connectTerminal();
        window.disconnectTerminal();
        QCOMPARE(log->cell(log->rowCount() - 2, ZrkMessageLog::Name), QStringLiteral("DEVICE_CONNECTED"));
        QCOMPARE(log->cell(log->rowCount() - 1, ZrkMessageLog::Name), QStringLiteral("DEVICE_DISCONNECTED"));
        // Loading something else first unloads the plug-in.
        QVERIFY(!window.loadPlugin(QStringLiteral(ZRK_FAKE_PARTIAL)));
        QVERIFY(!loader.isLoaded());
    }

    void hostCatalogue_data()
    {
        QTest::addColumn<QString>("language");
        QTest::addColumn<bool>("cyrillic");
        QTest::newRow("ru") << QStringLiteral("ru") << true;
        QTest::newRow("en") << QStringLiteral("en") << false;
    }

    void hostCatalogue()
    {
        QFETCH(QString, language);
        QFETCH(bool, cyrillic);
        const QSet<QString> used = sourceIds();
        QVERIFY(used.size() > 50);
        const QSet<QString> ids
            = catalogueIds(QStringLiteral(ZRK_SOURCE_DIR "/translations/zrk-host_%1.ts").arg(language));
        // Same ids as the sources, hence as the other catalogue; only the host's own prefix.
        const QStringList unused = QSet<QString>(ids).subtract(used).values();
        const QStringList missing = QSet<QString>(used).subtract(ids).values();
        QVERIFY2(unused.isEmpty(), qPrintable(QLatin1String("not in the sources: ") + unused.join(' ')));
        QVERIFY2(missing.isEmpty(), qPrintable(QLatin1String("not in the catalogue: ") + missing.join(' ')));
        QTranslator translator;
        QVERIFY(zrkLoadHostCatalogue(translator, language));
        for (const QString& id : ids) {
            QVERIFY2(id.startsWith(QLatin1String("host_")), qPrintable(id));
            // What qtTrId finds; a message missing from the embedded catalogue comes back empty.
            const QString text = translator.translate(nullptr, id.toUtf8().constData());
            QVERIFY2(!text.isEmpty() && text != id, qPrintable(id));
            const bool hasLetters
                = std::any_of(text.begin(), text.end(), [](QChar c) { return c.isLetter(); });
            const bool hasCyrillic = std::any_of(
                text.begin(), text.end(), [](QChar c) { return c.script() == QChar::Script_Cyrillic; });
            QVERIFY2(hasCyrillic == (cyrillic && hasLetters), qPrintable(id + QLatin1String(": ") + text));
        }
    }

private:
    QTemporaryDir home;
    QTranslator hostTexts;
};

QTEST_MAIN(tst_Host)
#include "tst_host.moc"

// The open configuration: read defaults pinned by a file kept in the tests, edits undone byte for
// byte, the unsaved mark, a failed load that changes nothing, the review of a write, the saved
// telemetry titles, and the dated copies read from terminals.
#include "config_files.h"
#include "config_model/config_session.h"
#include "config_model/xml_tag.h"
#include "translations/catalogue.h"

#include <QtTest>

namespace {

const QString kTerminalFile = QStringLiteral(ZRK_SOURCE_DIR "/host/data/terminal_config.xml");

QStringList keysOf(const QVector<zrk::ConfigDifference>& differences)
{
    QStringList keys;
    for (const zrk::ConfigDifference& d : differences)
        keys << d.node + QLatin1Char('|') + d.key + QLatin1Char('|') + d.left + QLatin1Char('|') + d.right;
    return keys;
}

} // namespace

class tst_ConfigSession : public QObject
{
    Q_OBJECT

private slots:
    void readDefaultsPinnedByGoldenFile_data();
    void readDefaultsPinnedByGoldenFile();
    void undoReturnsTheDocumentByteForByte_data();
    void undoReturnsTheDocumentByteForByte();
    void valueSetBackByHandIsNotAnEdit();
    void failedLoadChangesNothing_data();
    void failedLoadChangesNothing();
    void snapshotsRestoreDocumentAndMark();
    void reviewListsExactlyTheChangedKeys();
    void nodesByPath_data();
    void nodesByPath();
    void eachKeyDeclaredOncePerNode();
    void integersInWrittenForm_data();
    void integersInWrittenForm();
    void branchValuesAreWhatReadingGives_data();
    void branchValuesAreWhatReadingGives();
    void differencesWalkBothTrees_data();
    void differencesWalkBothTrees();
    void telemetryTitles();
    void readCopiesNewestFirst();
};

// What reading yields for a missing key, and what "new" sets, each against a file written once by
// hand from the tables, not from the declarations.
void tst_ConfigSession::readDefaultsPinnedByGoldenFile_data()
{
    QTest::addColumn<QByteArray>("input"); // empty: a new configuration
    QTest::addColumn<QString>("golden");
    QTest::newRow("empty root read") << QByteArray(
        "<?xml version=\"1.0\" encoding=\"windows-1251\"?>\n<DEVICE/>\n")
                                     << "empty_device_read.xml";
    QTest::newRow("new configuration") << QByteArray() << "new_config.xml";
    // Odd values of every kind: text after or instead of digits, out of range, a comma decimal,
    // flags too short and too long, a value only as a child element, nodes given twice, an
    // over-long number and name, markup, kept branches and root keys.
    QTest::newRow("odd values normalised")
        << zrktest::readFile(zrktest::dataFile("normalise_odd_in.xml")) << "normalise_odd_out.xml";
}

void tst_ConfigSession::readDefaultsPinnedByGoldenFile()
{
    QFETCH(QByteArray, input);
    QFETCH(QString, golden);
    zrk::ConfigSession session;
    if (input.isEmpty())
        session.newDocument();
    else
        QVERIFY(session.loadBytes(input, zrk::ConfigSource::File, QString()));
    QCOMPARE(session.render(), zrktest::readFile(zrktest::dataFile(qPrintable(golden))));
}

void tst_ConfigSession::undoReturnsTheDocumentByteForByte_data()
{
    QTest::addColumn<QString>("node");
    QTest::addColumn<QString>("key");
    QTest::addColumn<QString>("value");
    const auto row = [](const char* name, const char* node, const char* key, const QString& value) {
        QTest::newRow(name) << node << key << value;
    };
    row("page integer", "TRACK/POINTS", "maxSpeed", "120");
    row("page flags", "TRACK/POINTS", "moveTimerSens", "1010");
    row("page decimal", "TRACK/COORDFLT", "maxHDOP", "1.5");
    row("record mask", "PROTOCOL/ORBA", "mask", QString(255, QLatin1Char('1')));
    row("user parameter name", "USERPARAM/PARAM2", "name3", "Давление");
    row("kept attribute", "PHONES/PHONE2", "number", "+79990000000");
    row("kept root key", "", "imei", "000000000000000");
    row("markup in a value", "PHONES/PHONE1", "number", "<&\">");
}

void tst_ConfigSession::undoReturnsTheDocumentByteForByte()
{
    QFETCH(QString, node);
    QFETCH(QString, key);
    QFETCH(QString, value);
    zrk::ConfigSession session;
    QVERIFY(session.loadFile(kTerminalFile, zrk::ConfigSource::File));
    session.markSaved();
    const QByteArray before = session.render();
    QSignalSpy changed(&session, &zrk::ConfigSession::valueChanged);
    zrk::ConfigSession::Edit edit;
    QVERIFY(session.setValue(node, key, value, &edit));
    QCOMPARE(changed.size(), 1);
    QCOMPARE(session.value(node, key), value);
    QVERIFY(session.isModified());
    const QByteArray after = session.render();
    QVERIFY(after != before);
    session.undoEdit(edit);
    QCOMPARE(session.render(), before);
    QVERIFY(!session.isModified());
    session.redoEdit(edit);
    QCOMPARE(session.render(), after);
    QVERIFY(session.isModified());
    // The same text again is no edit; a key that is not there is not made up.
    QVERIFY(!session.setValue(node, key, value));
    QVERIFY(!session.setValue(node, key + QStringLiteral("X"), value));
}

void tst_ConfigSession::valueSetBackByHandIsNotAnEdit()
{
    zrk::ConfigSession session;
    QVERIFY(session.loadFile(kTerminalFile, zrk::ConfigSource::File));
    session.markSaved();
    QSignalSpy mark(&session, &zrk::ConfigSession::modifiedChanged);
    const QString old = session.value("TRACK/POINTS", "dist");
    QVERIFY(session.setValue("TRACK/POINTS", "dist", "250"));
    QVERIFY(session.setValue("TRACK/POINTS", "dist", "260"));
    QVERIFY(session.setValue("TRACK/POINTS", "dist", old));
    QVERIFY(!session.isModified());
    QCOMPARE(mark.size(), 2); // on, then off again
}

void tst_ConfigSession::failedLoadChangesNothing_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::newRow("not well-formed") << QByteArray("<DEVICE><TRACK></DEVICE>");
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("another root") << QByteArray("<AINF ver=\"3\"/>");
}

void tst_ConfigSession::failedLoadChangesNothing()
{
    QFETCH(QByteArray, text);
    zrk::ConfigSession session;
    QVERIFY(session.loadFile(kTerminalFile, zrk::ConfigSource::File));
    session.markSaved();
    QVERIFY(session.setValue("TRACK/POINTS", "dist", "250"));
    const QByteArray editing = session.render();
    const quint64 revision = session.revision();
    QSignalSpy replaced(&session, &zrk::ConfigSession::documentReplaced);
    QString error;
    QVERIFY(!session.loadBytes(text, zrk::ConfigSource::Terminal, QString(), &error));
    QVERIFY(!error.isEmpty());
    QVERIFY(!session.loadFile(QStringLiteral("/no/such/file.xml"), zrk::ConfigSource::File, &error));
    QCOMPARE(session.render(), editing);
    QCOMPARE(session.revision(), revision);
    QVERIFY(session.isModified());
    QCOMPARE(session.source(), zrk::ConfigSource::File);
    QCOMPARE(session.filePath(), kTerminalFile);
    QCOMPARE(replaced.size(), 0);
}

void tst_ConfigSession::snapshotsRestoreDocumentAndMark()
{
    zrk::ConfigSession session;
    session.newDocument();
    session.markSaved();
    const auto fresh = session.snapshot();
    const QByteArray freshText = session.render();
    QVERIFY(session.loadFile(kTerminalFile, zrk::ConfigSource::File));
    session.markSaved();
    const auto loaded = session.snapshot();
    const QByteArray loadedText = session.render();
    // An edit after a snapshot leaves the snapshot as it was taken.
    QVERIFY(session.setValue("TRACK/POINTS", "dist", "250"));
    session.restore(*fresh);
    QCOMPARE(session.render(), freshText);
    QVERIFY(!session.isModified()); // the mark as it was then: nothing changed since "new"
    QCOMPARE(session.source(), zrk::ConfigSource::New);
    session.restore(*loaded);
    QCOMPARE(session.render(), loadedText);
    QVERIFY(!session.isModified());
    QCOMPARE(session.keptBranchNames(),
        QStringList({ "TRANSFER", "CAN", "INPUTS", "OUTPUTS", "TEMPSENS", "PHONES", "SYSTEM", "GUARD" }));
    // Defaults keep the kept branches, before the user parameters.
    session.resetToDefaults();
    QCOMPARE(zrk::topNodeNames(session.root()).last(), QStringLiteral("USERPARAM"));
    QCOMPARE(session.keptBranchNames().size(), 8);
    QCOMPARE(session.value("TRACK/POINTS", "dist"), QStringLiteral("500"));
}

void tst_ConfigSession::reviewListsExactlyTheChangedKeys()
{
    zrk::ConfigSession session;
    QVERIFY(session.loadFile(kTerminalFile, zrk::ConfigSource::Terminal));
    // What the terminal holds, as this configuration saves it.
    session.setLastRead(session.render(), QStringLiteral("861234567890123"));
    QVERIFY(session.pendingWrite(QStringLiteral("861234567890123")).isEmpty());
    QVERIFY(session.setValue("TRACK/POINTS", "dist", "250"));
    QVERIFY(session.setValue("PHONES/PHONE2", "number", "+79990000000"));
    const auto pending = session.pendingWrite(QStringLiteral("861234567890123"));
    QCOMPARE(keysOf(pending),
        QStringList({ "TRACK/POINTS|dist|300|250", "PHONES/PHONE2|number|+79007654321|+79990000000" }));
    for (const zrk::ConfigDifference& d : pending) {
        if (d.key == QLatin1String("dist"))
            QVERIFY(!d.label.isEmpty());
    }
    // Another terminal was never read: the write is reviewed against a new configuration.
    const auto againstDefaults = session.pendingWrite(QStringLiteral("other"));
    QVERIFY(keysOf(againstDefaults).contains(QStringLiteral("TRACK/POINTS|dist|500|250")));
    QVERIFY(!session.hasLastReadFrom(QStringLiteral("other")));
}

// A node path: names separated by "/", empty steps skipped, "NAME[n]" the n-th of that name.
void tst_ConfigSession::nodesByPath_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("found"); // the node's "id" key; "-" for none, "root" for the root
    const auto row = [](const char* name, const char* path, const char* found) {
        QTest::newRow(name) << QString(path) << QString(found);
    };
    row("root", "", "root");
    row("child", "A", "a");
    row("grandchild", "A/B", "b");
    row("empty steps", "/A//B/", "b");
    row("first of a name", "Z", "z1");
    row("numbered", "Z[2]", "z2");
    row("past the last", "Z[3]", "-");
    row("number zero", "Z[0]", "-");
    row("too large a number", "Z[99999999999]", "-");
    row("not a number", "Z[x]", "-");
    row("missing step", "A/X/B", "-");
}

void tst_ConfigSession::nodesByPath()
{
    QFETCH(QString, path);
    QFETCH(QString, found);
    const QByteArray text
        = "<DEVICE id=\"root\"><A id=\"a\"><B id=\"b\"/></A><Z id=\"z1\"/><Z id=\"z2\"/></DEVICE>";
    const auto doc = zrktest::parsed(text);
    QVERIFY(doc);
    const CXmlTagV2* node = zrk::nodeAt(doc->root(), path);
    QCOMPARE(node ? zrk::keyValue(node, QStringLiteral("id")) : QStringLiteral("-"), found);
}

// An integer is written as "%d" of its value, clamped to its range; the text read is kept when it
// is that already.
void tst_ConfigSession::integersInWrittenForm_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("min");
    QTest::addColumn<int>("max");
    QTest::addColumn<bool>("zeroMeansOff");
    QTest::addColumn<QString>("written");
    const int lo = std::numeric_limits<int>::min();
    const int hi = std::numeric_limits<int>::max();
    QTest::newRow("plain") << "42" << lo << hi << false << "42";
    QTest::newRow("leading zeros") << "007" << lo << hi << false << "7";
    QTest::newRow("minus zero") << "-0" << lo << hi << false << "0";
    QTest::newRow("plus sign") << "+5" << lo << hi << false << "5";
    QTest::newRow("not a number") << "12abc" << lo << hi << false << "0";
    QTest::newRow("empty") << "" << lo << hi << false << "0";
    QTest::newRow("smallest") << "-2147483648" << lo << hi << false << "-2147483648";
    QTest::newRow("largest") << "2147483647" << lo << hi << false << "2147483647";
    QTest::newRow("below range") << "-7" << 1 << 10 << false << "1";
    QTest::newRow("above range") << "99" << -10 << -5 << false << "-5";
    QTest::newRow("zero switches off") << "0" << 5 << 10 << true << "0";
    QTest::newRow("zero clamped") << "0" << 5 << 10 << false << "5";
}

void tst_ConfigSession::integersInWrittenForm()
{
    QFETCH(QString, text);
    QFETCH(int, min);
    QFETCH(int, max);
    QFETCH(bool, zeroMeansOff);
    QFETCH(QString, written);
    zrk::cfg::KeyDecl d;
    d.type = zrk::cfg::KeyType::Integer;
    d.min = min;
    d.max = max;
    d.zeroMeansOff = zeroMeansOff;
    QCOMPARE(zrk::cfg::normalizedValue(d, text), written);
}

// Reading a branch matches each attribute with one declared row: no row may name the same record
// node and key as another.
void tst_ConfigSession::eachKeyDeclaredOncePerNode()
{
    QVector<zrk::cfg::BranchDecl> branches = zrk::cfg::declaredBranches();
    branches << zrk::cfg::userParamBranch();
    for (const zrk::cfg::BranchDecl& b : branches) {
        QSet<QString> seen;
        for (const zrk::cfg::KeyDecl& d : b.keys) {
            const QString id = b.top + QLatin1Char('/') + d.group + QLatin1Char('/') + d.key;
            QVERIFY2(!seen.contains(id), qPrintable(id));
            seen.insert(id);
        }
    }
}

// What the pages are shown of the open document is what reading its branches gives.
void tst_ConfigSession::branchValuesAreWhatReadingGives_data()
{
    QTest::addColumn<QString>("file");
    QTest::newRow("terminal") << kTerminalFile;
    QTest::newRow("odd values") << QStringLiteral(ZRK_TEST_DATA_DIR "/normalise_odd_in.xml");
}

void tst_ConfigSession::branchValuesAreWhatReadingGives()
{
    QFETCH(QString, file);
    zrk::ConfigSession session;
    QVERIFY(session.loadFile(file, zrk::ConfigSource::File));
    QVERIFY(session.setValue("TRACK/POINTS", "dist", "250"));
    QVector<zrk::cfg::BranchDecl> branches = zrk::cfg::declaredBranches();
    branches << zrk::cfg::userParamBranch();
    for (const zrk::cfg::BranchDecl& b : branches)
        QCOMPARE(session.branchValues(b), zrk::cfg::readBranch(session.root(), b));
}

// Every case of the walk: keys sorted by name across both sides, the last entry of a name and a
// text element as keys, repeated nodes by number, nodes on one side only, root keys, and the labels
// of declared keys (numbered rows with their number).
void tst_ConfigSession::differencesWalkBothTrees_data()
{
    QTest::addColumn<QByteArray>("left");
    QTest::addColumn<QByteArray>("right");
    QTest::addColumn<QStringList>("expected"); // node|key|label|left|right|in left, in right

    QTest::newRow("same") << QByteArray("<DEVICE a=\"1\"><X k=\"v\"><Y/></X></DEVICE>")
                          << QByteArray("<DEVICE a=\"1\"><X k=\"v\"><Y/></X></DEVICE>") << QStringList();
    QTest::newRow("keys sorted, each side missing")
        << QByteArray("<DEVICE><X b=\"1\" a=\"2\" c=\"3\"/></DEVICE>")
        << QByteArray("<DEVICE><X d=\"4\" c=\"3\" a=\"9\"/></DEVICE>")
        << QStringList({ "X|a||2|9|11", "X|b||1||10", "X|d|||4|01" });
    QTest::newRow("text element is a key, the last entry of a name counts")
        << QByteArray("<DEVICE><X k=\"1\"><k>2</k><t>x</t><n a=\"1\">y</n></X></DEVICE>")
        << QByteArray("<DEVICE><X k=\"2\" t=\"y\"><n a=\"2\">z</n></X></DEVICE>")
        << QStringList({ "X|t||x|y|11", "X/n|a||1|2|11" });
    QTest::newRow("repeated nodes by number")
        << QByteArray("<DEVICE><Z a=\"1\"/><Z a=\"2\"/><Q/><Z a=\"3\"/></DEVICE>")
        << QByteArray("<DEVICE><Z a=\"1\"/><Q x=\"1\"/><Z a=\"5\"/><Z a=\"3\"/><Z a=\"4\"/></DEVICE>")
        << QStringList({ "|Q||||10", "Z[2]|a||2|5|11", "Q|x|||1|01", "Z[4]|a|||4|01" });
    QTest::newRow("nodes on one side only, nested")
        << QByteArray("<DEVICE><A><B><C k=\"1\"/></B></A></DEVICE>")
        << QByteArray("<DEVICE><A><B/><B><C k=\"2\"/></B></A><N m=\"1\"><O p=\"2\"/></N></DEVICE>")
        << QStringList({ "A|B||||01", "A/B/C|k||1|2|11", "N|m|||1|01", "N/O|p|||2|01" });
    QTest::newRow("root keys") << QByteArray("<DEVICE imei=\"1\" model=\"K\"/>")
                               << QByteArray("<DEVICE imei=\"2\" serial=\"3\"/>")
                               << QStringList({ "|imei||1|2|11", "|model||K||10", "|serial|||3|01" });
    QTest::newRow("labels of declared keys")
        << QByteArray("<DEVICE><TRACK page=\"TRACK\"><POINTS dist=\"300\" odd=\"1\"/></TRACK>"
                      "<LOCATOR><BLIST bm7=\"a\" bm12=\"b\"/></LOCATOR>"
                      "<USERPARAM><PARAM2 name3=\"p\" type=\"1\"/></USERPARAM><POINTS dist=\"1\"/></DEVICE>")
        << QByteArray("<DEVICE><TRACK page=\"X\"><POINTS dist=\"250\" odd=\"2\"/></TRACK>"
                      "<LOCATOR><BLIST bm7=\"b\" bm12=\"c\"/></LOCATOR>"
                      "<USERPARAM><PARAM2 name3=\"q\" type=\"2\"/></USERPARAM><POINTS dist=\"2\"/></DEVICE>")
        << QStringList({ "TRACK|page||TRACK|X|11", "TRACK/POINTS|dist|Расстояние, м|300|250|11",
               "TRACK/POINTS|odd||1|2|11", "LOCATOR/BLIST|bm12|Чёрный список, строка 12|b|c|11",
               "LOCATOR/BLIST|bm7|Чёрный список, строка 7|a|b|11",
               "USERPARAM/PARAM2|name3|Название пользовательского параметра 3|p|q|11",
               "USERPARAM/PARAM2|type|Типы пользовательских параметров (0 — без знака, 1 — со знаком, 2 — "
               "hex, 3 — float)|1|2|11",
               "POINTS|dist|Расстояние, м|1|2|11" });
}

void tst_ConfigSession::differencesWalkBothTrees()
{
    QFETCH(QByteArray, left);
    QFETCH(QByteArray, right);
    QFETCH(QStringList, expected);
    QVERIFY(zrk::installCatalogue(QStringLiteral("ru")));
    const auto a = zrktest::parsed(left), b = zrktest::parsed(right);
    QVERIFY(a && b);
    QStringList found;
    for (const zrk::ConfigDifference& d : zrk::diffConfigs(a->root(), b->root())) {
        found << QStringList({ d.node, d.key, d.label, d.left, d.right,
                                 QString::number(d.inLeft) + QString::number(d.inRight) })
                     .join(QLatin1Char('|'));
    }
    QCOMPARE(found, expected);
}

void tst_ConfigSession::telemetryTitles()
{
    zrk::ConfigSession session;
    zrk::DeviceTitles titles;
    QStringList types { "untouched" };
    QVERIFY(!session.telemetryTitles(&titles, &types));
    QCOMPARE(types, QStringList { "untouched" });
    QVERIFY(session.loadFile(kTerminalFile, zrk::ConfigSource::Terminal));
    QVERIFY(session.setValue("USERPARAM/PARAM4", "type", "301000000000000"));
    QVERIFY(session.telemetryTitles(&titles, &types));
    QCOMPARE(titles.inputs.size(), zrk::DeviceTitles::kInputs);
    QCOMPARE(titles.outputs.size(), zrk::DeviceTitles::kOutputs);
    QCOMPARE(titles.temperatures.size(), zrk::DeviceTitles::kTemperatures);
    QVERIFY(!titles.inputs.first().isEmpty());
    QCOMPARE(types.size(), 4);
    QCOMPARE(types[2], QStringLiteral("301000000000000"));
    QCOMPARE(types[0], QString(16, QLatin1Char('0')));
}

void tst_ConfigSession::readCopiesNewestFirst()
{
    QTemporaryDir dir;
    const QDateTime t(QDate(2026, 3, 1), QTime(10, 20, 30));
    const QStringList names { zrk::readCopyName(t), zrk::readCopyName(t.addSecs(-3600)),
        zrk::readCopyName(t, 2), zrk::readCopyName(t.addDays(1)),
        QStringLiteral("zrk_K7140_read_garbage.xml"),
        QStringLiteral("zrk_K7140_read_2026-13-01_00-00-00.xml"), QStringLiteral("other.xml") };
    for (const QString& name : names) {
        QFile f(dir.filePath(name));
        QVERIFY(f.open(QIODevice::WriteOnly));
    }
    QStringList listed;
    for (const zrk::ReadCopy& c : zrk::listReadCopies(dir.path()))
        listed << QFileInfo(c.path).fileName();
    QCOMPARE(listed, QStringList({ names[3], names[2], names[0], names[1] }));
    QCOMPARE(names[0], QStringLiteral("zrk_K7140_read_2026-03-01_10-20-30.xml"));
}

QTEST_GUILESS_MAIN(tst_ConfigSession)
#include "tst_config_session.moc"

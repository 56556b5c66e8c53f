// zrk-tool config fieldset and the mask checks of config lint, run as the built program.
#include "../common/tool_run.h"
#include "config_model/orba_fieldset.h"
#include "config_model/xml_workdata.h"

#include <QTemporaryDir>
#include <QtTest>

using namespace zrk::fieldset;

class tst_ToolFieldSet : public QObject
{
    Q_OBJECT

private slots:
    void fieldSetAndLint_data();
    void fieldSetAndLint();

private:
    QTemporaryDir dir;
};

void tst_ToolFieldSet::fieldSetAndLint_data()
{
    QTest::addColumn<bool>("stored"); // whether the file has the branch at all
    QTest::addColumn<QString>("format");
    QTest::addColumn<QString>("mask");
    QTest::addColumn<QString>("fieldSetLine"); // a line `config fieldset` prints
    QTest::addColumn<int>("fieldSetCode");
    QTest::addColumn<QString>("lintText"); // what `config lint` reports; empty: nothing
    const QString all(kMaskLength, QLatin1Char('1'));
    QTest::newRow("default, ORBA 1") << true << "10" << defaultMask(true) << "record 51 bytes of 512" << 0
                                     << "";
    QTest::newRow("default, ORBA 3") << true << "30" << defaultMask(true) << "206 Моточасы без нагрузки (4)"
                                     << 0 << "";
    QTest::newRow("no branch") << false << ""
                               << ""
                               << "generation 10 (no field set stored: defaults)" << 0 << "";
    QTest::newRow("short") << true << "30"
                           << "111"
                           << "record 10 bytes of 512" << 0 << "255 characters (found 3)";
    QTest::newRow("long") << true << "10" << all + "1"
                          << "record 146 bytes of 512" << 0 << "255 characters (found 256)";
    QTest::newRow("letter") << true << "10" << QStringLiteral("11x") + QString(252, QLatin1Char('0'))
                            << "record 6 bytes of 512" << 0 << "only 0 and 1 (position 2 is not)";
    QTest::newRow("no time") << true << "10" << QStringLiteral("110") + QString(252, QLatin1Char('0'))
                             << "record 6 bytes of 512" << 0 << "111 first";
    QTest::newRow("over the limit") << true << "30" << all << "10 Широта (4)" << 1
                                    << "a record of at most 512 bytes";
}

void tst_ToolFieldSet::fieldSetAndLint()
{
    QFETCH(bool, stored);
    QFETCH(QString, format);
    QFETCH(QString, mask);
    QFETCH(QString, fieldSetLine);
    QFETCH(int, fieldSetCode);
    QFETCH(QString, lintText);
    const QString path = dir.filePath(QStringLiteral("%1.xml").arg(QTest::currentDataTag()));
    {
        CXMLWorkData root(path, QStringLiteral("DEVICE"));
        QVERIFY(root.serializer());
        if (stored)
            writeFieldSet(&root, { format, mask });
        root.writeString("model", "K-7140");
        root.writeParameters();
        coreSzNode node {};
        root.fillNodeData(node);
        zrk_StopSZ(node.serializer, true);
    }
    const zrktest::ToolRun set = zrktest::runZrkTool({ "config", "fieldset", path });
    QCOMPARE(set.code, fieldSetCode);
    const QStringList lines = QString::fromUtf8(set.out).split(QLatin1Char('\n'));
    QVERIFY2(lines.contains(fieldSetLine), set.out.constData());
    QVERIFY(lines.first().startsWith(QLatin1String("generation ")));

    const zrktest::ToolRun lint = zrktest::runZrkTool({ "config", "lint", path });
    QCOMPARE(lint.code, lintText.isEmpty() ? 0 : 1);
    QVERIFY2(QString::fromUtf8(lint.out).contains(lintText), lint.out.constData());
}

QTEST_GUILESS_MAIN(tst_ToolFieldSet)
#include "tst_tool_fieldset.moc"

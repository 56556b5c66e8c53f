// The field-set page's position table against the tabs' spans as the terminal documents them:
// every mask position belongs to exactly one tab, and the tabs' sizes add up to the record's.
#include "config_model/orba_fieldset.h"
#include "config_model/orba_fieldset_tabs.h"

#include <QtTest>

#include <algorithm>

using namespace zrk::fieldset;

namespace {

QVector<int> spans(std::initializer_list<QPair<int, int>> ranges)
{
    QVector<int> out;
    for (const auto& r : ranges)
        for (int p = r.first; p <= r.second; ++p)
            out << p;
    return out;
}

} // namespace

class tst_OrbaFieldsetTabs : public QObject
{
    Q_OBJECT
private slots:
    void tabsOwnTheirSpans_data()
    {
        QTest::addColumn<int>("tab");
        QTest::addColumn<QVector<int>>("positions");
        QTest::newRow("main") << int(
            TabMain) << spans({ { 0, 6 }, { 18, 36 }, { 44, 51 }, { 122, 137 }, { 199, 199 }, { 204, 205 } });
        QTest::newRow("navigation") << int(TabNavi) << spans({ { 7, 17 }, { 69, 76 } });
        QTest::newRow("serial") << int(TabRS) << spans({ { 37, 43 }, { 77, 92 }, { 146, 161 } });
        QTest::newRow("CAN") << int(TabCAN) << spans({ { 52, 68 }, { 200, 203 } });
        QTest::newRow("tachograph") << int(TabTaho) << spans({ { 97, 102 } });
        QTest::newRow("more") << int(
            TabMore) << spans({ { 93, 96 }, { 103, 104 }, { 109, 121 }, { 141, 141 }, { 162, 169 } });
        QTest::newRow("accelerometer")
            << int(TabAccel) << spans({ { 105, 108 }, { 138, 140 }, { 142, 145 } });
        QTest::newRow("flow meter") << int(TabFFS) << spans({ { 170, 180 } });
        QTest::newRow("refrigerator") << int(TabRefr) << spans({ { 181, 198 } });
        QTest::newRow("user") << int(TabUser) << spans({ { 206, 254 } });
    }
    void tabsOwnTheirSpans()
    {
        QFETCH(int, tab);
        QFETCH(QVector<int>, positions);
        QVector<int> listed = tabPositions(TabId(tab));
        std::sort(listed.begin(), listed.end());
        QCOMPARE(listed, positions);
        for (int pos : positions)
            QCOMPARE(int(tabOfPosition(pos)), tab);
    }

    void everyPositionHasOneTab()
    {
        int listed = 0;
        for (const TabDecl& tab : tabTable())
            listed += tabPositions(tab.id).size();
        QCOMPARE(listed, kMaskLength);
        for (int pos = 0; pos < kMaskLength; ++pos)
            QVERIFY2(tabOfPosition(pos) != TabCount, qPrintable(QString::number(pos)));
        QCOMPARE(int(tabOfPosition(-1)), int(TabCount));
        QCOMPARE(int(tabOfPosition(kMaskLength)), int(TabCount));
    }

    void tabSizesAddUpToTheRecord_data()
    {
        QTest::addColumn<QString>("mask");
        QTest::addColumn<int>("generation");
        QTest::newRow("every field, ORBA 3") << QString(kMaskLength, QLatin1Char('1')) << 2;
        QTest::newRow("every field, ORBA 1") << QString(kMaskLength, QLatin1Char('1')) << 0;
        QTest::newRow("defaults, ORBA 2") << defaultMask(true) << 1;
        QTest::newRow("short mask") << QStringLiteral("1110001") << 2;
    }
    void tabSizesAddUpToTheRecord()
    {
        QFETCH(QString, mask);
        QFETCH(int, generation);
        int sum = 0;
        for (const TabDecl& tab : tabTable())
            sum += tabRecordSize(tab.id, mask, generation);
        QCOMPARE(sum, maskRecordSize(mask, generation));
    }

    void tyreCount_data()
    {
        QTest::addColumn<int>("index");
        QTest::addColumn<QString>("text");
        QTest::newRow("none") << 0 << "0000";
        QTest::newRow("two") << 2 << "1100";
        QTest::newRow("all") << 4 << "1111";
        QTest::newRow("past the end") << 9 << "1111";
    }
    void tyreCount()
    {
        QFETCH(int, index);
        QFETCH(QString, text);
        QCOMPARE(tiresText(index), text);
        QCOMPARE(tiresIndex(text), qMin(index, kTiresCount));
        QCOMPARE(tiresIndex(QStringLiteral("1010")), 1); // a gap ends the count
    }
};

QTEST_APPLESS_MAIN(tst_OrbaFieldsetTabs)
#include "tst_orba_fieldset_tabs.moc"

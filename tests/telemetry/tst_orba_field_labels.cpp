// Field display names: the range edges, and that no two fields share a name in either language
// (a repeated name would make two CSV columns or two check boxes indistinguishable).
#include "telemetry/orba_field_labels.h"
#include "translations/catalogue.h"

#include <QSet>
#include <QtTest>

class tst_OrbaFieldLabels : public QObject
{
    Q_OBJECT

private slots:
    void cleanupTestCase() { zrk::removeCatalogue(); }
    void outOfRange_data();
    void outOfRange();
    void distinctNames_data();
    void distinctNames();
};

void tst_OrbaFieldLabels::outOfRange_data()
{
    QTest::addColumn<int>("no");
    QTest::addColumn<bool>("named");
    QTest::newRow("below") << 0 << false;
    QTest::newRow("negative") << -1 << false;
    QTest::newRow("first") << 1 << true;
    QTest::newRow("last") << 255 << true;
    QTest::newRow("above") << 256 << false;
}

void tst_OrbaFieldLabels::outOfRange()
{
    QFETCH(int, no);
    QFETCH(bool, named);
    QVERIFY(zrk::installCatalogue(QStringLiteral("ru")));
    QCOMPARE(!orba::fieldLabel(no).isEmpty(), named);
    QCOMPARE(orba::fieldLabelId(no) != nullptr, named);
}

void tst_OrbaFieldLabels::distinctNames_data()
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<QString>("first");
    QTest::newRow("ru") << QStringLiteral("ru") << QStringLiteral("Номер записи");
    QTest::newRow("en") << QStringLiteral("en") << QStringLiteral("Record number");
}

void tst_OrbaFieldLabels::distinctNames()
{
    QFETCH(QString, language);
    QFETCH(QString, first);
    QVERIFY(zrk::installCatalogue(language));
    QCOMPARE(orba::fieldLabel(1), first);
    QSet<QString> seen;
    for (int no = 1; no <= 255; ++no) {
        const QString label = orba::fieldLabel(no);
        QVERIFY2(!label.startsWith(QLatin1String("orbf_")), qPrintable(label));
        QVERIFY2(!seen.contains(label), qPrintable(QString::number(no) + ": " + label));
        seen.insert(label);
    }
}

QTEST_MAIN(tst_OrbaFieldLabels)
#include "tst_orba_field_labels.moc"

// Field display names: the range edges, and that no two fields share a name in either language
// (a repeated name would make two CSV columns or two check boxes indistinguishable); the same for
// the sub-values under one field and for the extended record's head.
#include "telemetry/orba_field_labels.h"
#include "telemetry/orba_record.h"
#include "translations/catalogue.h"

#include <algorithm>

#include <QHash>
#include <QSet>
#include <QtTest>

class tst_OrbaFieldLabels : public QObject
{
    Q_OBJECT

private slots:
    void cleanupTestCase() { zrk::removeCatalogue(); }

    void outOfRange_data()
    {
        QTest::addColumn<int>("no");
        QTest::addColumn<bool>("named");
        QTest::newRow("below") << 0 << false;
        QTest::newRow("negative") << -1 << false;
        QTest::newRow("first") << 1 << true;
        QTest::newRow("last") << 255 << true;
        QTest::newRow("above") << 256 << false;
    }

    void outOfRange()
    {
        QFETCH(int, no);
        QFETCH(bool, named);
        QVERIFY(zrk::installCatalogue(QStringLiteral("ru")));
        QCOMPARE(!orba::fieldLabel(no).isEmpty(), named);
        QCOMPARE(orba::fieldLabelId(no) != nullptr, named);
    }

    void distinctNames_data()
    {
        QTest::addColumn<QString>("language");
        QTest::addColumn<QString>("first");
        QTest::newRow("ru") << QStringLiteral("ru") << QStringLiteral("Номер записи");
        QTest::newRow("en") << QStringLiteral("en") << QStringLiteral("Record number");
    }

    void distinctNames()
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

    void subValueNames_data() { distinctNames_data(); }

    void subValueNames()
    {
        QFETCH(QString, language);
        QVERIFY(zrk::installCatalogue(language));
        QVERIFY(orba::subValueLabel(-1).isEmpty() && orba::subValueLabel(orba::kSubCount).isEmpty());
        QVERIFY(orba::extFieldLabel(-1).isEmpty() && orba::extFieldLabel(orba::kExtCount).isEmpty());
        QHash<int, QSet<QString>> underField;
        for (int id = 0; id < orba::kSubCount; ++id) {
            const QString label = orba::subValueLabel(id);
            const QString where = QString::number(id) + ": " + QLatin1String(orba::kSubValues[id].name);
            QVERIFY2(!label.isEmpty() && !label.contains(QLatin1String("orbs_"))
                    && !label.contains(QLatin1Char('%')),
                qPrintable(where + " -> " + label));
            // A Russian name without a Russian letter is the identifier left untranslated.
            QVERIFY2(language != QLatin1String("ru")
                    || std::any_of(label.begin(), label.end(),
                        [](QChar c) { return c.script() == QChar::Script_Cyrillic; }),
                qPrintable(where + " -> " + label));
            QSet<QString>& seen = underField[orba::kSubValues[id].field];
            QVERIFY2(!seen.contains(label), qPrintable(where + " repeats " + label));
            seen.insert(label);
        }
        QSet<QString> head;
        for (int id = 0; id < orba::kExtCount; ++id) {
            const QString label = orba::extFieldLabel(id);
            QVERIFY2(!label.isEmpty() && !label.startsWith(QLatin1String("orb")) && !head.contains(label),
                qPrintable(QString::number(id) + ": " + label));
            head.insert(label);
        }
        QCOMPARE(orba::subValueLabel(orba::S_StateO9),
            language == QLatin1String("ru") ? QStringLiteral("Выход 9") : QStringLiteral("Output 9"));
        QCOMPARE(orba::subValueLabel(orba::S_TiresPres30).contains(QLatin1String("30")), true);
    }
};

QTEST_MAIN(tst_OrbaFieldLabels)
#include "tst_orba_field_labels.moc"

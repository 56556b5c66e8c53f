// The page and table viewers of a saved telemetry file, offscreen.
#include "map/zrk_widget_map.h"
#include "orba_records.h"
#include "telemetry/zrk_form_tmi_ext.h"
#include "telemetry/zrk_form_tmi_orba3.h"
#include "telemetry/zrk_widget_tmi_file.h"
#include "translations/catalogue.h"

#include <QPushButton>
#include <QSpinBox>
#include <QTableWidget>
#include <QTemporaryDir>
#include <QtTest>

#include <ctime>

using namespace orbatest;

namespace {

QString dataFile(const char* name)
{
    return QStringLiteral(ZRK_TEST_DATA_DIR "/") + QLatin1String(name);
}

// Record i: code 5 on even records and 7 on odd ones, time 1700000000 + 10 i; speed only on
// every third record.
QByteArray numbered(int i)
{
    RecordBuilder b;
    b.setNumber(orba::F_NumPage, quint64(i)).setNumber(orba::F_Code, i % 2 ? 7 : 5);
    b.setNumber(orba::F_Time, 1700000000 + 10 * quint64(i));
    if (i % 3 == 0) {
        const float speed = float(i % 50);
        quint32 bits;
        std::memcpy(&bits, &speed, 4);
        b.setNumber(orba::F_Speed, bits);
    }
    return b.record(3);
}

QString cell(const QAbstractItemModel* m, int row, int column)
{
    return m->index(row, column).data().toString();
}

} // namespace

class tst_TmiViewers : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase()
    {
        qputenv("TZ", "UTC0");
        tzset();
        zrk::installCatalogue(QStringLiteral("ru"));
        QVERIFY(m_dir.isValid());
        QVector<zrk::tmi::Record> records;
        for (int i = 0; i < kMany; ++i)
            records.append({ numbered(i), QDateTime(), false });
        m_many = m_dir.filePath(QStringLiteral("many.tmi"));
        QString error;
        QVERIFY(zrk::tmi::write(m_many, {}, records, &error));
    }

    void pageSteps()
    {
        ZRK_Widget_Tmi_Page page;
        page.setFileTmi(dataFile("golden.tmi"));
        QCOMPARE(page.recordCount(), 4);
        auto* next = page.findChild<QPushButton*>(QStringLiteral("Next"));
        auto* prev = page.findChild<QPushButton*>(QStringLiteral("Prev"));
        auto* values = page.findChild<QTableWidget*>(QStringLiteral("Values"));
        QCOMPARE(page.currentIndex(), 0);
        QVERIFY(!prev->isEnabled() && next->isEnabled());
        auto* form = page.findChild<ZRK_Form_TMI_Orba3*>();
        QVERIFY(form && form->isVisibleTo(&page) && !values->isVisibleTo(&page));
        QCOMPARE(form->shownText(orba::F_NumPage), QStringLiteral("1"));
        QTest::mouseClick(page.findChild<QPushButton*>(QStringLiteral("Last")), Qt::LeftButton);
        QCOMPARE(page.currentIndex(), 3);
        QVERIFY(prev->isEnabled() && !next->isEnabled());
        QVERIFY(!form->isVisibleTo(&page) && values->isVisibleTo(&page));
        QCOMPARE(values->rowCount(), 1); // an unknown record: its bytes
        QCOMPARE(values->item(0, 1)->text(), QStringLiteral("b0 28 ff"));
        page.showRecord(2); // the extended record in its own form
        QVERIFY(page.findChild<ZRK_Form_TMI_Ext*>()->isVisibleTo(&page) && !form->isVisibleTo(&page));
        page.findChild<QSpinBox*>(QStringLiteral("Number"))->setValue(2);
        QTest::mouseClick(page.findChild<QPushButton*>(QStringLiteral("GoNumber")), Qt::LeftButton);
        QCOMPARE(page.currentIndex(), 1);
        QCOMPARE(form->shownText(orba::F_NumPage), QStringLiteral("2"));
        page.showRecord(99);
        QCOMPARE(page.currentIndex(), 3);
    }

    void pageByTime_data()
    {
        QTest::addColumn<qint64>("moment");
        QTest::addColumn<int>("index"); // -1: not found, stays where it was
        QTest::newRow("before all") << qint64(0) << 0;
        QTest::newRow("exactly the second") << qint64(1700000010) << 1;
        QTest::newRow("between") << qint64(1700000011) << 2;
        QTest::newRow("after all") << qint64(1800000000) << -1;
    }

    void pageByTime()
    {
        QFETCH(qint64, moment);
        QFETCH(int, index);
        ZRK_Widget_Tmi_Page page;
        page.setFileTmi(m_many);
        page.showRecord(5);
        QCOMPARE(page.showRecordAtTime(QDateTime::fromSecsSinceEpoch(moment)), index >= 0);
        QCOMPARE(page.currentIndex(), index >= 0 ? index : 5);
    }

    // A damaged file: the user is told what is wrong; saying no leaves the viewer as it was,
    // saying yes shows the records read before the fault.
    void damagedFile_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<bool>("answer");
        QTest::addColumn<int>("good");
        QTest::addColumn<int>("records");
        const QByteArray golden = [] {
            QFile f(dataFile("golden.tmi"));
            return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
        }();
        const QByteArray cut = golden.left(golden.indexOf("</RECORD>") + 40);
        QTest::newRow("cut, keep") << cut << true << 1 << 1;
        QTest::newRow("cut, refuse") << cut << false << 1 << 4;
        QTest::newRow("foreign") << QByteArray("<html></html>") << true << 0 << 4;
    }

    void damagedFile()
    {
        QFETCH(QByteArray, text);
        QFETCH(bool, answer);
        QFETCH(int, good);
        QFETCH(int, records);
        const QString path = m_dir.filePath(QStringLiteral("damaged.tmi"));
        QFile f(path);
        QVERIFY(f.open(QIODevice::WriteOnly) && f.write(text) == text.size());
        f.close();
        for (ZRK_Widget_Tmi_File* w : std::initializer_list<ZRK_Widget_Tmi_File*> {
                 new ZRK_Widget_Tmi_Page, new ZRK_Widget_Tmi_Table }) {
            QScopedPointer<ZRK_Widget_Tmi_File> owner(w);
            QStringList asked;
            w->askShowGoodRecords = [&](const QString& message, int n) {
                asked << message;
                return n == good && answer;
            };
            w->setFileTmi(dataFile("golden.tmi"));
            QVERIFY(asked.isEmpty());
            w->setFileTmi(path);
            QCOMPARE(asked.size(), 1);
            QVERIFY(asked[0].contains(path));
            const auto* page = qobject_cast<ZRK_Widget_Tmi_Page*>(w);
            const auto* table = qobject_cast<ZRK_Widget_Tmi_Table*>(w);
            QCOMPARE(page ? page->recordCount() : table->model()->rowCount(), records);
            QCOMPARE(w->fileName(), records == 4 ? dataFile("golden.tmi") : path);
        }
    }

    void tableFilter_data()
    {
        QTest::addColumn<QString>("codes");
        QTest::addColumn<qint64>("from"); // -1: no time range
        QTest::addColumn<qint64>("to");
        QTest::addColumn<int>("rows");
        QTest::addColumn<QString>("why");
        QTest::newRow("all") << QString() << qint64(-1) << qint64(-1) << kMany << QString();
        QTest::newRow("code 7") << QStringLiteral(" 7 ") << qint64(-1) << qint64(-1) << kMany / 2
                                << QString();
        QTest::newRow("both codes") << QStringLiteral("5,7;9") << qint64(-1) << qint64(-1) << kMany
                                    << QString();
        QTest::newRow("time bounds included")
            << QString() << qint64(1700000010) << qint64(1700000050) << 5 << QString();
        QTest::newRow("code and time")
            << QStringLiteral("5") << qint64(1700000010) << qint64(1700000050) << 2 << QString();
        QTest::newRow("not a code") << QStringLiteral("5 x") << qint64(-1) << qint64(-1) << kMany
                                    << QStringLiteral("«x» — не код события");
        QTest::newRow("code too big")
            << QStringLiteral("65536") << qint64(-1) << qint64(-1) << kMany << QStringLiteral("«65536»");
        QTest::newRow("range reversed")
            << QString() << qint64(2) << qint64(1) << kMany << QStringLiteral("Начало интервала позже");
    }

    void tableFilter()
    {
        QFETCH(QString, codes);
        QFETCH(qint64, from);
        QFETCH(qint64, to);
        QFETCH(int, rows);
        QFETCH(QString, why);
        ZRK_Widget_Tmi_Table table;
        table.setFileTmi(m_many);
        QString reason;
        QCOMPARE(table.applyFilter(codes, from >= 0, QDateTime::fromSecsSinceEpoch(from),
                     QDateTime::fromSecsSinceEpoch(to), &reason),
            why.isEmpty());
        QVERIFY(reason.contains(why));
        QCOMPARE(table.model()->rowCount(), rows);
    }

    // "On the map" takes the positions of the rows shown, in their order, and skips rows without one.
    void tableTrackOfShownRows()
    {
        QVector<zrk::tmi::Record> records;
        for (int i = 0; i < 6; ++i) {
            RecordBuilder b;
            b.setNumber(orba::F_NumPage, quint64(i)).setNumber(orba::F_Code, i % 2 ? 7 : 5);
            if (i != 3)
                b.setNumber(orba::F_Latitude, 33000000 + i).setNumber(orba::F_Longitude, 22200000);
            records.append({ b.record(3), QDateTime(), false });
        }
        const QString path = m_dir.filePath(QStringLiteral("track.tmi"));
        QString error;
        QVERIFY(zrk::tmi::write(path, {}, records, &error));
        ZRK_Widget_Tmi_Table table;
        table.setFileTmi(path);
        QCOMPARE(table.shownTrack().size(), 5);
        QVERIFY(table.applyFilter(QStringLiteral("7"), false, {}, {}, &error));
        const QVector<ZrkMapTrackPoint> track = table.shownTrack();
        QCOMPARE(track.size(), 2); // rows 1 and 5; row 3 has no position
        QCOMPARE(track[1].lat, (33000000 + 5) / 600000.0);
        QCOMPARE(track[1].lon, 22200000 / 600000.0);
    }

    void tableSortColumnsExport()
    {
        ZRK_Widget_Tmi_Table table;
        table.setFileTmi(m_many);
        zrk::tmi::TmiRecordModel* m = table.model();
        QCOMPARE(m->columns(), (QVector<int> { orba::F_NumPage, orba::F_Code, orba::F_Time, orba::F_Speed }));
        const int speed = 4;
        m->sort(speed, Qt::DescendingOrder);
        QCOMPARE(cell(m, 0, speed), QStringLiteral("49.00"));
        QCOMPARE(cell(m, kMany / 3 - 1, speed), QStringLiteral("0.00"));
        QCOMPARE(cell(m, kMany / 3, speed), QString()); // records without a speed come last
        m->sort(0, Qt::DescendingOrder);
        QCOMPARE(cell(m, 0, 0), QString::number(kMany));
        table.setFieldShown(orba::F_Code, false);
        QCOMPARE(m->columnCount(), 4);
        QCOMPARE(cell(m, 0, 2), QStringLiteral("14.11.2023 23:03:10")); // Time, now the second field column

        QString error;
        QVERIFY(table.applyFilter(QStringLiteral("7"), false, {}, {}, &error));
        const QString csv = m_dir.filePath(QStringLiteral("shown.csv"));
        QVERIFY(table.exportShown(csv, false, &error));
        QFile f(csv);
        QVERIFY(f.open(QIODevice::ReadOnly));
        const QList<QByteArray> lines = f.readAll().split('\n');
        QCOMPARE(lines.size(), kMany / 2 + 2);
        // Shown order: descending record numbers, odd ones only.
        QVERIFY(lines[1].contains(QByteArray(",") + QByteArray::number(kMany - 1) + ",7,"));
        QVERIFY(!table.exportShown(m_dir.filePath(QStringLiteral("no/such/dir.kml")), true, &error));
        QVERIFY(error.contains(QLatin1String("no/such/dir.kml")));
    }

private:
    static constexpr int kMany = 300;
    QTemporaryDir m_dir;
    QString m_many;
};

QTEST_MAIN(tst_TmiViewers)
#include "tst_tmi_viewers.moc"

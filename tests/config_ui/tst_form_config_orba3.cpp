// The record field-set page with this model's profile: masks through the boxes, the size limit,
// the generations, the boxes the model shows, the stored branches and bad stored masks.
#include "../config_model/config_files.h"
#include "config_model/config_keys.h"
#include "config_model/orba_fieldset.h"
#include "config_model/xml_workdata.h"
#include "config_ui/zrk_form_config_orba3.h"
#include "config_ui/zrk_form_config_track.h"
#include "translations/catalogue.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QRandomGenerator>
#include <QSignalSpy>
#include <QTabWidget>
#include <QTemporaryDir>
#include <QtTest>

using namespace zrk::fieldset;
using zrktest::closeFile;
using zrktest::readFile;

namespace {

using Page = ZRK_Form_Config_Orba3;

// What the page must give back for a stored mask on this model: the three leading fields and the
// two always-recorded states ticked, the tyre group as its count of leading sensors.
QString expectedBack(const QString& stored)
{
    QString mask = sanitizedMask(stored);
    for (int pos : { 0, 1, 2, 122, 123 })
        mask[pos] = QLatin1Char('1');
    int tyres = 0;
    while (tyres < 4 && mask.at(93 + tyres) == QLatin1Char('1'))
        ++tyres;
    for (int i = 0; i < 4; ++i)
        mask[93 + i] = QLatin1Char(i < tyres ? '1' : '0');
    return mask;
}

QString ones(const QVector<int>& positions)
{
    QString mask(kMaskLength, QLatin1Char('0'));
    for (int pos : positions)
        mask[pos] = QLatin1Char('1');
    return mask;
}

// A mask of exactly `bytes` of record under ORBA 3, from the always-ticked fields upwards; the
// tyre group is left out so that the page keeps it as given.
QString maskOfSize(int bytes)
{
    QString mask = ones({ 0, 1, 2, 122, 123 });
    int size = maskRecordSize(mask);
    for (int width = 48; width >= 1 && size<bytes; width = width> 1 ? width / 2 : 0) {
        for (int pos = 3; pos < kMaskLength && size < bytes; ++pos) {
            if ((pos < 93 || pos > 96) && mask.at(pos) == QLatin1Char('0') && positionWidth(pos) <= width
                && size + positionWidth(pos) <= bytes) {
                mask[pos] = QLatin1Char('1');
                size += positionWidth(pos);
            }
        }
    }
    return mask;
}

} // namespace

class tst_FormConfigOrba3 : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QVERIFY(zrk::installCatalogue(QStringLiteral("ru"))); }
    void cleanupTestCase() { zrk::removeCatalogue(); }
    void everyPositionOwnedOnce();
    void maskRoundTrip_data();
    void maskRoundTrip();
    void sizeLimit();
    void generations_data();
    void generations();
    void profileShownBoxes_data();
    void profileShownBoxes();
    void newConfigurationBranch();
    void badStoredMask_data();
    void badStoredMask();
    void userParameters();
    void filterAndTabs();

private:
    QTemporaryDir dir;
};

void tst_FormConfigOrba3::everyPositionOwnedOnce()
{
    Page page;
    QMap<int, int> owners;
    for (auto* tab : page.tabs()) {
        for (int pos : tab->positions())
            ++owners[pos];
    }
    for (int pos = 0; pos < kMaskLength; ++pos) {
        const bool tyres = pos >= 93 && pos <= 96; // the tyre combo box, not boxes
        QVERIFY2(owners.value(pos) == (tyres ? 0 : 1), qPrintable(QString::number(pos)));
    }
    QCOMPARE(page.tabs().size(), 10);
    QCOMPARE(page.tabs().first(), page.tabMain());
    QCOMPARE(page.tabs().last(), page.tabUser());
}

void tst_FormConfigOrba3::maskRoundTrip_data()
{
    QTest::addColumn<QString>("stored");
    QTest::newRow("all off") << QString(kMaskLength, QLatin1Char('0'));
    QTest::newRow("all on") << QString(kMaskLength, QLatin1Char('1'));
    QTest::newRow("default") << defaultMask(true);
    QTest::newRow("tyres with a gap") << ones({ 0, 1, 2, 93, 95, 96 });
    QTest::newRow("span edges") << ones({ 68, 69, 121, 122, 254 });
    QRandomGenerator random(20261122);
    for (int i = 0; i < 8; ++i) {
        QString mask;
        for (int pos = 0; pos < kMaskLength; ++pos)
            mask += QLatin1Char(random.bounded(2) ? '1' : '0');
        QTest::newRow(qPrintable(QStringLiteral("random %1").arg(i))) << mask;
    }
}

void tst_FormConfigOrba3::maskRoundTrip()
{
    QFETCH(QString, stored);
    Page page;
    page.setTypeDFProtocol(QStringLiteral("30"));
    page.setStrFormat(stored);
    const QString back = page.getStrFormat();
    QCOMPARE(back, expectedBack(stored));
    QCOMPARE(page.getProtocol_CurSize(), maskRecordSize(back));
    page.setStrFormat(back);
    QCOMPARE(page.getStrFormat(), back);
}

void tst_FormConfigOrba3::sizeLimit()
{
    Page page;
    page.setTypeDFProtocol(QStringLiteral("30"));
    QSignalSpy spy(&page, &ZRK_Form_Config_Set_Orba3::notify_Excess_Size);
    const QString at512 = maskOfSize(512);
    const QString at513 = maskOfSize(513);
    QCOMPARE(maskRecordSize(at512), 512);
    QCOMPARE(maskRecordSize(at513), 513);

    page.setStrFormat(at512);
    QCOMPARE(page.getProtocol_CurSize(), 512);
    QCOMPARE(page.sizeLabel()->text(), QStringLiteral("512"));
    QVERIFY(page.warningLabel()->isHidden());
    QVERIFY(page.tabUser()->isEnabled());
    QCOMPARE(spy.count(), 0);

    page.setStrFormat(at513);
    QCOMPARE(page.getProtocol_CurSize(), 513);
    QVERIFY(!page.warningLabel()->isHidden());
    QVERIFY(page.warningLabel()->text().contains(QStringLiteral("513")));
    QVERIFY(page.sizeLabel()->styleSheet().contains(QStringLiteral("color")));
    QVERIFY(!page.tabUser()->isEnabled());
    QCOMPARE(spy.count(), 1);
    QCOMPARE(spy.at(0).at(0).toBool(), true);

    // Still over: no second notice. Then one byte off by hand brings it back to 512.
    page.setStrFormat(QString(kMaskLength, QLatin1Char('1')));
    page.setStrFormat(at513);
    QCOMPARE(spy.count(), 1);
    QCheckBox* oneByte = page.tabMain()->box(6); // GSM level, 1 byte
    QVERIFY(oneByte->isChecked() && oneByte->isEnabled());
    oneByte->click();
    QCOMPARE(page.getProtocol_CurSize(), 512);
    QCOMPARE(page.getProtocol_CurSize(), maskRecordSize(page.getStrFormat()));
    QCOMPARE(spy.count(), 2);
    QCOMPARE(spy.at(1).at(0).toBool(), false);
    QVERIFY(page.warningLabel()->isHidden());
    QVERIFY(page.sizeLabel()->styleSheet().isEmpty());
    QVERIFY(page.tabUser()->isEnabled());
    oneByte->click();
    QCOMPARE(spy.count(), 3);
}

void tst_FormConfigOrba3::generations_data()
{
    QTest::addColumn<QString>("format");
    QTest::addColumn<QString>("stored");
    QTest::addColumn<int>("index");
    const auto row = [](const char* format, const char* stored, int index) {
        QTest::newRow(*format ? format : "empty") << QString(format) << QString(stored) << index;
    };
    row("10", "10", 0);
    row("20", "20", 1);
    row("30", "30", 2);
    row("40", "20", 1); // unknown
    row("", "20", 1);
}

void tst_FormConfigOrba3::generations()
{
    QFETCH(QString, format);
    QFETCH(QString, stored);
    QFETCH(int, index);
    Page page;
    page.setStrFormat(QString(kMaskLength, QLatin1Char('1')));
    page.setTypeDFProtocol(format);
    QCOMPARE(page.getTypeDFProtocol(), stored);
    QCOMPARE(page.flashFormat()->currentIndex(), index);
    // One box of each span, on different tabs, and the tyre combo of the second span.
    QVERIFY(page.tabNavi()->box(7)->isEnabled());
    QCOMPARE(page.tabNavi()->box(69)->isEnabled(), index >= 1);
    QCOMPARE(page.tabMore()->tiresBox()->isEnabled(), index >= 1);
    QCOMPARE(page.tabFFS()->box(170)->isEnabled(), index >= 2);
    QCOMPARE(page.tabUser()->box(254)->isEnabled(), index >= 2 && !page.isExcessSize());
    // Only the chosen generation's fields make the record; the mask keeps all of them.
    QCOMPARE(page.getProtocol_CurSize(), maskRecordSize(page.getStrFormat(), index));
    QCOMPARE(page.getStrFormat().count(QLatin1Char('1')), kMaskLength);
    // Choosing by hand does the same as the stored text.
    page.flashFormat()->setCurrentIndex((index + 1) % 3);
    QCOMPARE(page.tabFFS()->box(170)->isEnabled(), (index + 1) % 3 == 2);
}

void tst_FormConfigOrba3::profileShownBoxes_data()
{
    QTest::addColumn<int>("tab");
    QTest::addColumn<QVector<int>>("positions");
    QTest::addColumn<int>("shown");
    QTest::newRow("analogue inputs 6 of 8") << 0 << QVector<int> { 20, 21, 22, 23, 24, 25, 26, 27 } << 6;
    QTest::newRow("pulse counters 6 of 8") << 0 << QVector<int> { 32, 33, 126, 127, 128, 129, 130, 131 } << 6;
    QTest::newRow("frequency 6 of 8") << 0 << QVector<int> { 34, 35, 132, 133, 134, 135, 136, 137 } << 6;
    QTest::newRow("8 outputs: one byte") << 0 << QVector<int> { 30, 31 } << 1;
    QTest::newRow("16 input states: two bytes") << 0 << QVector<int> { 28, 29, 125 } << 2;
    QTest::newRow("temperature 8") << 0 << QVector<int> { 44, 45, 46, 47, 48, 49, 50, 51 } << 8;
    QTest::newRow("states and modules") << 0 << QVector<int> { 3, 4, 5, 6, 122, 123, 124 } << 7;
    QTest::newRow("receiver without precise coordinates")
        << 1 << QVector<int> { 69, 70, 71, 72, 73, 74, 75 } << 6;
    QTest::newRow("mobile cells") << 1 << QVector<int> { 76 } << 1;
    QTest::newRow("no RS-232") << 2 << QVector<int> { 43 } << 0;
    QTest::newRow("RS-485 sensors 16") << 2 << QVector<int> { 37, 42, 77, 82, 83, 92, 146, 161 } << 8;
    QTest::newRow("CAN systems") << 3 << QVector<int> { 200, 201, 202, 203 } << 4;
    QTest::newRow("passengers") << 8 << QVector<int> { 109, 110, 111, 112, 113, 114, 115, 116 } << 8;
    QTest::newRow("precise temperature 4") << 8 << QVector<int> { 162, 163, 164, 165 } << 4;
    QTest::newRow("humidity 4") << 8 << QVector<int> { 166, 167, 168, 169 } << 4;
    QTest::newRow("camera, announcer, axes") << 8 << QVector<int> { 117, 118, 119, 120, 121, 141 } << 6;
}

void tst_FormConfigOrba3::profileShownBoxes()
{
    QFETCH(int, tab);
    QFETCH(QVector<int>, positions);
    QFETCH(int, shown);
    Page page;
    page.show();
    QCOMPARE(page.tabs().at(tab)->shownCount(positions), shown);
    int inSight = 0;
    for (int pos : positions)
        inSight += page.tabs().at(tab)->box(pos)->isVisibleTo(page.tabs().at(tab)) ? 1 : 0;
    QCOMPARE(inSight, shown);
}

// The window's "new" and saving, by the pages at reset (the field-set page moved away first): the
// header, the pages in write order, the user parameters last, byte for byte the new configuration.
void tst_FormConfigOrba3::newConfigurationBranch()
{
    const QString path = dir.filePath(QStringLiteral("new.xml"));
    Page page;
    ZRK_Form_Config_Track track;
    page.setStrFormat(QString(kMaskLength, QLatin1Char('1')));
    page.setTypeDFProtocol(QStringLiteral("30"));
    page.setDefaultParam();
    track.setDefaultParam();
    QVERIFY(!page.tabMore()->tiresBox()->isEnabled());
    {
        CXMLWorkData root(path, QStringLiteral("DEVICE"));
        QVERIFY(root.serializer());
        root.clearNode();
        zrk::cfg::writeConfigHeader(&root, QStringLiteral("K-7140"), QStringLiteral("ZIRKOMATIC"));
        page.writeFormParam(&root);
        track.writeFormParam(&root);
        page.writeUserParam(&root);
        root.writeParameters();
        closeFile(root, true);
    }
    QCOMPARE(
        readFile(path), readFile(QStringLiteral(ZRK_SOURCE_DIR "/tests/config_model/data/new_config.xml")));

    // Read back into a page set otherwise: "format" and "mask" are what was written.
    Page other;
    other.setTypeDFProtocol(QStringLiteral("30"));
    other.setStrFormat(QString(kMaskLength, QLatin1Char('1')));
    CXMLWorkData root(path, QStringLiteral("DEVICE"));
    other.readFormParam(&root);
    closeFile(root, false);
    QCOMPARE(other.getTypeDFProtocol(), QStringLiteral("10"));
    QCOMPARE(other.getStrFormat(), page.getStrFormat());
    other.readFormParam(nullptr);
    other.writeFormParam(nullptr);
}

void tst_FormConfigOrba3::badStoredMask_data()
{
    QTest::addColumn<QString>("stored");
    QTest::addColumn<QString>("taken"); // the stored mask as the page takes it, before its own rules
    const QString zeros(kMaskLength, QLatin1Char('0'));
    QTest::newRow("short") << "1111111111" << QStringLiteral("1111111111") + zeros.left(245);
    QTest::newRow("empty") << "" << zeros;
    QTest::newRow("long") << QString(300, QLatin1Char('1')) << QString(kMaskLength, QLatin1Char('1'));
    QTest::newRow("letter") << "11111x11111" << QStringLiteral("11111") + zeros.left(250);
    QTest::newRow("space first") << " 1111" << zeros;
}

void tst_FormConfigOrba3::badStoredMask()
{
    QFETCH(QString, stored);
    QFETCH(QString, taken);
    const QString path = dir.filePath(QStringLiteral("bad.xml"));
    {
        CXMLWorkData root(path, QStringLiteral("DEVICE"));
        writeFieldSet(&root, { QStringLiteral("30"), stored });
        root.writeParameters();
        closeFile(root, true);
    }
    Page page;
    CXMLWorkData root(path, QStringLiteral("DEVICE"));
    page.readFormParam(&root);
    const QString back = page.getStrFormat();
    QCOMPARE(back, expectedBack(taken));
    page.writeFormParam(&root);
    const FieldSetChoice saved = readFieldSet(&root);
    closeFile(root, false);
    QVERIFY(checkMask(saved.mask).isEmpty() || maskRecordSize(saved.mask) > kSizeLimit);
    QCOMPARE(saved.mask.size(), kMaskLength);
    QVERIFY(saved.mask.startsWith(QLatin1String("111")));
}

void tst_FormConfigOrba3::userParameters()
{
    const QString path = dir.filePath(QStringLiteral("user.xml"));
    Page page;
    page.tabUser()->nameEdit(206)->setText(QStringLiteral("Уровень"));
    page.tabUser()->typeBox(206)->setCurrentIndex(UserSigned);
    page.tabUser()->nameEdit(254)->setText(QStringLiteral("Счётчик"));
    page.tabUser()->typeBox(254)->setCurrentIndex(UserFloat);
    {
        CXMLWorkData root(path, QStringLiteral("DEVICE"));
        page.writeUserParam(&root);
        root.writeParameters();
        closeFile(root, true);
    }
    CXMLWorkData root(path, QStringLiteral("DEVICE"));
    const QStringList types = userParamTypes(&root);
    QCOMPARE(types,
        QStringList({ QStringLiteral("1000000000000000"), QString(15, QLatin1Char('0')),
            QString(15, QLatin1Char('0')), QStringLiteral("003") }));
    Page other;
    other.readUserParam(&root);
    QCOMPARE(other.tabUser()->nameEdit(254)->text(), QStringLiteral("Счётчик"));
    QCOMPARE(other.tabUser()->typeBox(254)->currentIndex(), int(UserFloat));
    QCOMPARE(other.tabUser()->typeBox(206)->currentIndex(), int(UserSigned));

    // A float on a 1-byte parameter, a letter and a short list all read as unsigned.
    UserParams odd = defaultUserParams();
    odd.types[0] = QStringLiteral("3x1");
    writeUserParams(&root, odd);
    QCOMPARE(userParamTypes(&root).first(), QStringLiteral("0010000000000000"));
    closeFile(root, false);
}

void tst_FormConfigOrba3::filterAndTabs()
{
    Page page;
    QCOMPARE(page.applyFilter(QStringLiteral("широта"), false), 1);
    QVERIFY(!page.tabWidget()->isTabEnabled(page.tabWidget()->indexOf(page.tabCAN())));
    QCOMPARE(page.applyFilter(QString(), true), defaultMask(true).count(QLatin1Char('1')));
    page.applyFilter(QString(), false);
    QVERIFY(page.tabWidget()->isTabEnabled(page.tabWidget()->indexOf(page.tabCAN())));

    page.openTab(207);
    QCOMPARE(page.tabWidget()->currentIndex(), 6);
    page.openTab(211);
    QCOMPARE(page.tabWidget()->currentIndex(), 6);
    page.openTabUser();
    QCOMPARE(page.tabWidget()->currentWidget(), page.tabUser());
    page.openTab(2);
    QCOMPARE(page.tabWidget()->currentIndex(), 0);
}

QTEST_MAIN(tst_FormConfigOrba3)
#include "tst_form_config_orba3.moc"

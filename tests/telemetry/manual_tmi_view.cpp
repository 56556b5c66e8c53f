// Shows the telemetry view with a few plausible records and writes what it looks like to PNG files
// (the main tab, the power tab with its lamps, the chart, the production form, the extended
// record), to check the window by eye: manual_tmi_view OUTDIR [en].
#include "orba_records.h"
#include "telemetry/zrk_widget_tmi_view.h"
#include "translations/catalogue.h"

#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QPushButton>
#include <QTabWidget>

#include <cstring>

namespace {

QByteArray record(quint32 number, quint32 time, float speed, int power, int temp)
{
    float run = 1234.5f + number;
    quint32 runBits, speedBits;
    std::memcpy(&runBits, &run, 4);
    std::memcpy(&speedBits, &speed, 4);
    return orbatest::RecordBuilder()
        .setNumber(orba::F_NumPage, number)
        .setNumber(orba::F_Code, 3)
        .setNumber(orba::F_Time, time)
        .setNumber(orba::F_State, 0x08)
        .setNumber(orba::F_Module1, 0x04)
        .setNumber(orba::F_GSM, 24)
        .setNumber(orba::F_StateNGauge, 1)
        .setNumber(orba::F_LastTime, time - 2)
        .setNumber(orba::F_Latitude, 33450000 + number * 37)
        .setNumber(orba::F_Longitude, 22560000 - number * 21)
        .setNumber(orba::F_Altitude, 1560)
        .setNumber(orba::F_Speed, speedBits)
        .setNumber(orba::F_Course, 270)
        .setNumber(orba::F_Run, runBits)
        .setNumber(orba::F_Power, quint64(power))
        .setNumber(orba::F_StateU_Ain1, 4210)
        .setNumber(orba::F_In1, 0x05)
        .setNumber(orba::F_Out1, 0x03)
        .setNumber(orba::F_Temp1, quint64(quint8(qint8(temp))))
        .setNumber(orba::F_Temp2, 0x80)
        .setNumber(orba::F_NaviInfo, 0x0000000000000709ULL)
        .setNumber(orba::F_NaviState, (16 << 2) | 2)
        .setNumber(orba::F_Tires1_2, 0x1B1A02811C01ULL)
        .setNumber(orba::F_HPrecisionTemp1, 437)
        .record(3);
}

} // namespace

int main(int argc, char** argv)
{
    QApplication app(argc, argv);
    const QString out = argc > 1 ? QString::fromLocal8Bit(argv[1]) : QStringLiteral(".");
    zrk::installCatalogue(argc > 2 ? QString::fromLocal8Bit(argv[2]) : QStringLiteral("ru"));
    QDir().mkpath(out);
    ZRK_Widget_Tmi_View view;
    view.resize(1400, 780);
    view.show();
    view.deviceConnect();
    const quint32 t0 = 1717236000;
    for (int i = 0; i < 12; ++i) {
        QByteArray buf = QByteArray(3, '\0') + record(1200 + i, t0 + 30 * i, 40.0f + 3 * i - (i % 3) * 5,
                                                  12600 - 40 * (i % 4), -5 + i);
        buf += QByteArray(qMax(0, 101 - buf.size()), '\0');
        view.setTmiCur(&buf);
    }
    auto* chartField = view.findChild<QComboBox*>(QStringLiteral("ChartField"));
    for (int no : { int(orba::F_Speed), int(orba::F_Power) }) {
        chartField->setCurrentIndex(chartField->findData(no));
        view.findChild<QPushButton*>(QStringLiteral("ChartAdd"))->click();
    }
    QByteArray old = QByteArray(13, '\0') + record(1100, t0 - 3600, 0.0f, 12400, 3);
    view.setTmiCurLeft(&old);
    QApplication::processEvents();
    view.grab().save(out + QStringLiteral("/tmi_view_main.png"));
    auto* tabs = view.findChild<QTabWidget*>(QStringLiteral("Tabs"));
    tabs->setCurrentIndex(2);
    QApplication::processEvents();
    view.grab().save(out + QStringLiteral("/tmi_view_power.png"));
    tabs->setCurrentIndex(5);
    view.findChild<QTabWidget*>(QStringLiteral("SideTabs"))->setCurrentIndex(1);
    QApplication::processEvents();
    view.grab().save(out + QStringLiteral("/tmi_view_tyres_commands.png"));
    QByteArray ext = QByteArray(2, '\0') + orbatest::extRecord(orbatest::item(2, 16, "DRIVER-0042\0\0\0\0\0"));
    view.setTmiCurExt(&ext);
    QApplication::processEvents();
    view.grab().save(out + QStringLiteral("/tmi_view_extended.png"));
    return 0;
}

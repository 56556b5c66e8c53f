#pragma once

#include "telemetry/orba_dispatch.h"
#include "telemetry/tmi_file.h"
#include "telemetry/tmi_requests.h"
#include "telemetry/tmi_time.h"
#include "zrk/zrk_host_api.h"

#include <QDateTime>
#include <QHash>
#include <QTimer>
#include <QWidget>

#include <functional>
#include <memory>

class QByteArray;
class OrbaPage;
class ZRK_Form_TMI_Orba3;
class ZRK_Tmi_Chart;
class ZRK_Tmi_Command_Panel;
class ZRK_Tmi_Record_Area;
namespace zrk::tmi {
class Session;
}
namespace Ui {
class ZRK_Designer_Widget_Tmi_View;
}

// The telemetry view: asks the host for records, decodes and shows them, and keeps them in the
// session that the list, the chart, the map track and saving read. One per plug-in, created on
// first need by the device object and never deleted while the library is loaded. The record and
// reply operations are virtual so that the device object's routing can be watched.
class ZRK_Widget_Tmi_View : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(bool deviceConnected READ isDeviceConnected)

public:
    using Origin = zrk::tmi::Origin;

    explicit ZRK_Widget_Tmi_View(QWidget* parent = nullptr);
    ~ZRK_Widget_Tmi_View() override;

    bool isDeviceConnected() const { return m_connected; }

    virtual void deviceConnect();
    virtual void deviceDisconnect();
    virtual void deviceDisconnectRCS();
    virtual void translateForm();
    virtual void showForm(const QString& text, const szConfigParam& configParam);
    virtual void closeForm();
    virtual bool isTestMode(QByteArray* data);

    virtual void setTmiCur(QByteArray* buf);
    virtual void setTmiCurNumber(QByteArray* buf);
    virtual void setTmiCurLeft(QByteArray* buf);
    virtual void setTmiCurRight(QByteArray* buf);
    virtual void setTmiCurExt(QByteArray* buf);
    virtual void setReceive_NMEA(QByteArray* data);
    virtual void setTmiCmndParamValue(QByteArray* data);
    virtual void setTmiCmnd(QByteArray* data);
    virtual void setReceiveFls_UserCommand(QByteArray* data);
    virtual void getParamFLSFirmwareSensor(QByteArray* data);
    virtual void setToucheMemory(quint64 code);
    virtual void setCurrentAnalogValue(szADValue_UN* value);
    virtual void receiveCurrentDispValue(quint32 value);
    virtual void setRFID(quint64 code, quint8 value);
    virtual void setReceiveTahoQuest(QByteArray* data);
    virtual void setReceiveTahoFile_Read(bool ok);
    virtual void setReceiveFlsDataFile_Quest(QByteArray* data);
    virtual void setReceiveFlsDataFile_Read(bool ok);

    // Shows a record (kind byte first) by its kind and version; an unknown one only when asked.
    // Returns whether a record page was shown.
    bool setTmiPage(const QByteArray& buf, bool showUnknown, Origin origin = Origin::Live);

    // ---- requests to the host (nothing is sent while lpGlobalDevice is null)
    void getTmiCur();
    void getTmiIndex(quint32 number);
    void getTmiTimeLeft(const QDateTime& moment);
    void getTmiTimeRight(const QDateTime& moment);
    void getTmiCur_Touch();
    void getTmiCur_RFID();

    // ---- user actions, reachable without clicking
    void requestCurrent();
    void requestPrev();
    void requestNext();
    void requestByTime();
    void setAutoRequest(int checkState);
    void autoRequestTick();
    // The commands tab: each button sends its row of the command table (run() sends one as its
    // button does; its questions and file choice can be answered by a test or a scripted host).
    ZRK_Tmi_Command_Panel* commandPanel() const { return m_commands; }

    // The time offset in seconds from the time-offset controls: the terminal clock's offset from UTC.
    int timeOffset() const;
    int autoPeriod() const;
    const QTimer& autoTimer() const { return m_Timer_Auto_TMI; }
    int autoCounter() const { return m_autoRequest.counter(); }
    int direction() const { return m_stepping.direction(); }
    // The record number the navigation label shows.
    quint32 shownNumber() const;
    // Text of the unknown-record page.
    QString unknownText() const;
    QWidget* currentPage() const;
    ZRK_Form_TMI_Orba3* formOrba3() const;
    zrk::tmi::Session* session() const { return m_session; }
    // The line that tells how fresh the shown record is, with the history mark.
    QString freshnessText() const;
    // Last lines of the log pane.
    QString logText() const;

    // Saves the session's records: .tmi/.xml as the telemetry file, .csv and .kml as exports;
    // the chosen filter of a save dialog (empty: none) decides the format. Whole or not at all;
    // error gets a Russian text naming the file.
    bool WriteTmiToFile(const QString& name, QString* error = nullptr);
    bool saveSessionAs(const QString& name, const QString& selectedFilter, QString* error = nullptr);
    // The head of a saved file: the device, the time offset, and the titles of inputs, outputs and
    // temperature sensors and the user-parameter types of the open configuration (or, when none is
    // open, those set here).
    zrk::tmi::Header fileHeader() const;
    void setFileTitles(const zrk::tmi::Header& titles) { m_titles = titles; }

protected:
    void changeEvent(QEvent* event) override;
    void showEvent(QShowEvent* event) override;

private slots:
    void slot_pressed_GetCurrent();
    void slot_pressed_GetPrev();
    void slot_pressed_GetNext();
    void slot_pressed_Show();
    void slot_stateChanged_GetAutoTmi(int state);
    void slot_valueChanged_Period(int value);
    void slot_timeout_m_Timer_Auto_TMI();
    void slot_activated_SessionList(const QModelIndex& index);
    void slot_toggled_HideAbsent(bool hide);
    void slot_pressed_SaveFile();
    void slot_pressed_ShowOnMap();

private:
    unsigned long send(int msg, unsigned long w = 0, unsigned long l = 0);
    void updateNavigation();
    void showRecord(const QByteArray& buf, orba::Form form, Origin origin);
    void showDecoded(const std::shared_ptr<const OrbaPage>& page, orba::Form form);
    void showRecordAt(int row);
    void updateFreshness();
    void updatePeriodLabel();
    void logLine(const QString& line);
    void logReply(int msg, const QByteArray* data);

    std::unique_ptr<Ui::ZRK_Designer_Widget_Tmi_View> ui;
    bool m_connected = false;
    bool m_splitterSized = false; // the columns get their shares of the width once, when first shown
    zrk::tmi::Stepping m_stepping;
    zrk::tmi::AutoRequest m_autoRequest;
    QTimer m_Timer_Auto_TMI;
    zrk::tmi::Session* m_session = nullptr;
    ZRK_Tmi_Chart* m_chart = nullptr;
    bool m_hasShownNumber = false;
    zrk::tmi::Freshness m_freshness; // of the shown record
    ZRK_Tmi_Command_Panel* m_commands = nullptr;
    ZRK_Tmi_Record_Area* m_record = nullptr;
    zrk::tmi::Header m_titles;
};

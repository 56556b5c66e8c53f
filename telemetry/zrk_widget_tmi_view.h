#pragma once

#include "telemetry/orba_dispatch.h"
#include "telemetry/tmi_file.h"
#include "zrk/zrk_host_api.h"

#include <QDateTime>
#include <QHash>
#include <QTimer>
#include <QWidget>

#include <memory>

class QByteArray;
class OrbaPage;
class ZRK_Form_TMI_Orba3;
class ZRK_Form_TMI_Ext;
class ZRK_Form_TMI_Production;
class ZRK_Tmi_Session;
class ZRK_Tmi_Chart;
class QPushButton;
namespace Ui {
class ZRK_Designer_Widget_Tmi_View;
}

// The telemetry view: asks the host for records, decodes and shows them. One per plug-in,
// created on first need by the device object and never deleted while the library is loaded.
// The record and reply operations are virtual so that the device object's routing can be watched.
struct ZrkMapTrackPoint;

class ZRK_Widget_Tmi_View : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(bool deviceConnected READ isDeviceConnected)

public:
    // Where a shown record came from: the freshness line marks stored history.
    enum class Origin
    {
        Live, // the current record (2301)
        ByNumber, // stored, looked up by number (2303)
        ByTime, // stored, looked up by time (2305, 2307)
    };

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

    // The time offset in seconds from the time-offset controls.
    int timeOffset() const;
    int autoPeriod() const;
    int autoCounter() const { return m_autoCounter; }
    int direction() const { return m_direction; }
    // The record number the navigation label shows.
    quint32 shownNumber() const;
    // Text of the unknown-record page.
    QString unknownText() const;
    QWidget* currentPage() const;
    ZRK_Form_TMI_Orba3* formOrba3() const { return m_formOrba3; }
    ZRK_Tmi_Session* session() const { return m_session; }
    // The line that tells how fresh the shown record is.
    QString freshnessText() const;
    // Last lines of the log pane.
    QString logText() const;

    // Saves the session's records: .tmi/.xml as the telemetry file, .csv and .kml as exports.
    // Whole or not at all; error gets a Russian text naming the file.
    bool WriteTmiToFile(const QString& name, QString* error = nullptr);
    // Titles of inputs, outputs and temperature sensors and user-parameter types written into the
    // head of saved files when no configuration is open in the configuration window (an open one
    // gives them instead).
    void setFileTitles(const zrk::tmi::Header& titles);
    // The positions of this session's records, in order, as a track for the map.
    QVector<ZrkMapTrackPoint> sessionTrack() const;

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
    // Commands to the terminal.
    void slot_pressed_OutOn();
    void slot_pressed_OutOff();
    void slot_pressed_GuardOn();
    void slot_pressed_GuardOff();
    void slot_pressed_Clear();
    void slot_toggled_NmeaOutput(bool on);
    void slot_pressed_SetParam();
    void slot_pressed_RunCommand();
    void slot_pressed_ReadTouch();
    void slot_pressed_ReadRfid();
    void slot_pressed_GetTouch();
    void slot_pressed_GetRfid();
    void slot_pressed_SendFlsCommand();
    void slot_pressed_FirmwareUpdate();
    void slot_pressed_TahoQuery();
    void slot_pressed_TahoFileRequest();
    void slot_pressed_TahoFileRead();
    void slot_pressed_FlsData();
    void slot_pressed_FlsDataFile();

private:
    unsigned long send(int msg, unsigned long w = 0, unsigned long l = 0);
    bool confirm(const QString& question);
    void setTerminalControlsEnabled();
    void setNavigationEnabled(bool enabled);
    void showPage(QWidget* page);
    void showDecoded(const std::shared_ptr<const OrbaPage>& page, orba::Form form);
    void showRecordAt(int row);
    void updateFreshness();
    void updatePeriodLabel();
    void logBytes(const QString& what, const QByteArray& data);
    void logLine(const QString& line);
    QString eventText(quint16 code);
    QString diagnosticText(quint8 code);

    std::unique_ptr<Ui::ZRK_Designer_Widget_Tmi_View> ui;
    bool m_connected = false;
    bool m_splitterSized = false; // the columns get their shares of the width once, when first shown
    bool m_rcsEnded = false;
    int m_direction = 0;
    int m_autoCounter = 1;
    QTimer m_Timer_Auto_TMI;
    ZRK_Form_TMI_Orba3* m_formOrba3 = nullptr;
    ZRK_Form_TMI_Ext* m_formExt = nullptr;
    ZRK_Form_TMI_Production* m_formProduction = nullptr;
    ZRK_Tmi_Session* m_session = nullptr;
    ZRK_Tmi_Chart* m_chart = nullptr;
    QString m_unknownText;
    // What the freshness line describes: the shown record.
    QDateTime m_shownReceived;
    quint32 m_shownTime = 0;
    quint32 m_shownLastFix = 0;
    bool m_shownHasTime = false;
    bool m_shownHasFix = false;
    Origin m_shownOrigin = Origin::Live;
    // Host texts are asked once per code and session.
    QHash<quint16, QString> m_eventTexts;
    QHash<quint8, QString> m_diagnosticTexts;
    zrk::tmi::Header m_titles;
};

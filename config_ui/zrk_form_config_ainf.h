#pragma once

#include "config_model/geo_data.h"

#include <QStringList>
#include <QVariantList>
#include <QWidget>

#include <functional>
#include <memory>

class CXMLWorkData;
class QByteArray;
class QTimer;
class Ui_ZRK_Designer_Form_Config_Ainf;
class ZRK_Ainf_Zone_Model;
class ZRK_Form_Config_Ainf_GeoParam;
class ZRK_Form_Config_Ainf_Route;
class ZRK_Form_Config_Ainf_Speed;
class ZRK_Form_Config_Ainf_Map;
struct ZrkMapZone;

// The geo-information page: geo-zones on a map, routes built from them, speed zones, sounds and
// the defaults. Its data lives in a geo file of its own, saved and opened here and written to the
// terminal's SD card, so readFormParam and writeFormParam of the configuration do nothing.
class ZRK_Form_Config_Ainf : public QWidget
{
    Q_OBJECT

public:
    explicit ZRK_Form_Config_Ainf(QWidget* parent = nullptr);
    ~ZRK_Form_Config_Ainf() override;

    // ---- the page contract
    void applyCaps();
    void translateForm();
    void initForm();
    QString getTabTitle() const;
    // The defaults of new records go back to the model's; the lists belong to the geo file.
    void setDefaultParam();
    void readFormParam(CXMLWorkData* root);
    void writeFormParam(CXMLWorkData* root);
    Q_INVOKABLE void deviceConnect();
    void deviceDisconnect();
    void setFormEnabled(bool enabled);
    void setTabIndex(int index) { m_tabIndex = index; }
    int getTabIndex() const { return m_tabIndex; }
    // The zone count, for a host's diagnostics and the demo.
    Q_INVOKABLE int zoneCount() const { return m_data.zones.size(); }

    // ---- data
    const coreAinfData& data() const { return m_data; }
    void setData(const coreAinfData& data);
    const ZRK_Ainf_Caps& caps() const { return m_caps; }
    ZRK_Form_Config_Ainf_Map* mapForm() const;
    ZRK_Form_Config_Ainf_Route* routeForm() const;

    // ---- zones; each returns the new zone's id, or 0 after telling the user why not
    int addGeoZone(const QString& name, int size, int angle, int gob, const QString& lat, const QString& lon);
    Q_INVOKABLE int addZoneAt(double lat, double lon);
    // A route with the defaults and one stop per zone, in order; its id, or 0 with a message.
    Q_INVOKABLE int addRouteThroughZones(const QString& number, const QVariantList& zoneIds);
    int duplicateZone(int row);
    // Deletes the rows; a zone that is a route's stop stays, with a message. Returns how many went.
    int deleteZones(QList<int> rows);
    int rowOfZone(int id) const;
    Q_INVOKABLE void selectZone(int id);
    int selectedZoneId() const;
    // Applies a moved or resized circle from the map to the list.
    void moveZone(int id, double lat, double lon);
    void resizeZone(int id, int radius);

    // ---- files
    // Reads a geo file (new format; the old one is recognised and refused with a message); the map
    // recentres on the zones when centreMap is set. On failure nothing changes.
    Q_INVOKABLE bool readFileParamGeo(const QString& path, bool centreMap = true);
    Q_INVOKABLE bool writeFileParamGeo(const QString& path, bool full);
    // appDataDirectory() + "/Data/AINF(dd-MM-yy hh_mm_ss).xml" for the moment given.
    static QString proposedFileName(const QDateTime& now);
    // Imports the KML file's points as zones; returns how many were added.
    Q_INVOKABLE int loadFileKML(const QString& file, int size, int angle, int gob);

    // ---- the terminal's SD card
    // The card files, in the order they are written: the geo file, then "GeoZones.cfg".
    static QStringList cardFileNames();
    Q_INVOKABLE bool saveFileInDevice();
    void saveNextFileSD();
    void receive_SD_File(QByteArray* data);
    bool isWritingToDevice() const { return m_sdIndex >= 0; }

    // Where the page's messages go (a message box by default; tests collect them).
    void setMessageSink(std::function<void(const QString&)> sink) { m_sink = std::move(sink); }

public slots:
    void slot_loadFileKML(const QString& file, int size, int angle, int gob);

signals:
    // The page wrote or failed to write its files to the card (for the window's status).
    void sdWriteFinished(bool ok);

private slots:
    void slot_pressed_ListGeo_BtnAdd();
    void slot_pressed_ListGeo_BtnAdd_FileKML();
    void slot_pressed_ListGeo_BtnCopy();
    void slot_pressed_ListGeo_BtnDel();
    void slot_pressed_BtnOpenFile();
    void slot_pressed_BtnSaveFile();
    void slot_pressed_BtnWriteDevice();
    void slot_pressed_Sounds_BtnAdd();
    void slot_pressed_Sounds_BtnDel();

private:
    void showMessage(const QString& text);
    QString createNameMapCircle(const coreGeoZone& zone) const;
    void createGeoMarker(const coreGeoZone& zone);
    ZrkMapZone mapZone(const coreGeoZone& zone) const;
    void zoneSelectionChanged();
    void zoneEdited();
    void refreshAll();
    void refreshSounds();
    void updateMapRoutes();
    void updateState();
    int appendZone(coreGeoZone zone);
    // Sends the current request of the card write (open, a 4 KB write, close); the host's result.
    qint32 sendSdStep();
    // Sends it and ends the write with a message when the host refuses it.
    void sendSdStepOrFail();
    void finishSd(bool ok, const QString& message);
    static QString sdFailureText(qint32 result, const QString& file);

    std::unique_ptr<Ui_ZRK_Designer_Form_Config_Ainf> ui;
    ZRK_Ainf_Caps m_caps;
    coreAinfData m_data;
    ZRK_Ainf_Zone_Model* m_model = nullptr;
    std::function<void(const QString&)> m_sink;
    QString m_tabTitle;
    int m_tabIndex = -1;
    bool m_connected = false;
    bool m_enabled = true;
    bool m_fillingSounds = false;
    // The card write in progress: the files' contents and the index of the one on its way.
    QVector<QPair<QString, QByteArray>> m_sdFiles;
    int m_sdIndex = -1;
    int m_sdOffset = -1; // -1: open next; past the file's end: close next
    bool m_sdClosing = false;
    quint32 m_sdAwaiting = 0; // the operation whose reply is due, 0 when none
    quint32 m_sdAwaitingOffset = 0;
    quint64 m_sdTransfer = 0; // changes when a write starts or ends: stale queued steps see it
    QTimer* m_sdWatchdog = nullptr;
};

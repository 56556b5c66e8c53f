#pragma once

#include "zrk/zrk_host_api.h"

#include <QByteArray>
#include <QStringList>
#include <QVector>
#include <QWidget>

#include <functional>

class CSerialize;
class CXMLWorkData;
class QTabWidget;
class ZRK_Form_Config_Ainf;
class ZRK_Form_Config_Orba3;
class ZRK_Form_Config_Other;
class ZRK_Form_Config_Track;

// The full editor: a tab per configuration page. Pages keep the common contract by name only, so
// each is registered once with addPage(), which binds its operations; everything else (reset,
// reading, writing in the fixed order, the page table of message 2383) walks that list.
class ZRK_Widget_Config_Full : public QWidget
{
    Q_OBJECT

public:
    // The order in which the pages write their branches; pages of other models keep their places.
    enum WriteOrder
    {
        OrderTransfer,
        OrderFieldSet,
        OrderTrack,
        OrderSystem,
        OrderCan,
        OrderSerial,
        OrderTempSensors,
        OrderInputs,
        OrderAccel,
        OrderOutputs,
        OrderPhones,
        OrderGeo,
        OrderCamera,
        OrderTouchMemory,
        OrderGuard,
        OrderEcoDrive,
        OrderBluetooth,
        OrderComplexEvents,
        OrderKept, // the branches no page owns, after every page
    };

    // The page numbers of message 2383 (0: the host cannot ask for the page).
    enum PageNumber
    {
        PageNone = 0,
        PageTransfer = 1,
        PageFieldSet = 2,
        PageTrack = 3,
        PageAccel = 9,
    };

    explicit ZRK_Widget_Config_Full(QWidget* parent = nullptr);
    ~ZRK_Widget_Config_Full() override;

    void translateForm();
    void deviceConnect();
    void deviceDisconnect();
    void setFormEnabled(bool enabled);

    // Every page at its defaults; keepOther leaves the branches no page owns as they are.
    void initDefaultParam(bool keepOther = false);
    // Reads a configuration file into the pages; fills configParam with the protocol generation.
    // False with the parser's reason when the file does not load; the pages then keep their values.
    bool OpenFileXml(const QString& path, szConfigParam& configParam, QString* error = nullptr);
    bool OpenFileXml(const QString& path, QString* error = nullptr);
    // Reads the pages from an open document (its "DEVICE" root); fills configParam when given.
    void readDocument(CSerialize* doc, szConfigParam* configParam = nullptr);
    // The configuration as SaveFileXml writes it.
    QByteArray renderXml();
    // Writes the configuration whole, or leaves the old file; false with the reason.
    bool SaveFileXml(const QString& path, QString* error = nullptr);

    // Selects the page of a 2383 value and opens its sub-tab; false when this model has no such page.
    bool openPage(quint32 value);
    static bool isSubTabValue(quint32 value);
    QWidget* pageForNumber(int number) const;
    // The page a 2383 value selects; null when the value is ignored or the page is not in this model.
    QWidget* pageForValue(quint32 value) const;
    static int pageNumberOf(quint32 value);
    QTabWidget* tabWidget() const { return m_tabs; }

    // The top-level branches the pages write (their own top nodes).
    QStringList ownedTopNodes();

    ZRK_Form_Config_Orba3* fieldSetPage() const { return m_fieldSet; }
    // The geo-information page, built when its tab is first opened (it starts a web engine for its
    // map); null until then.
    ZRK_Form_Config_Ainf* geoPage() const { return m_geo; }
    ZRK_Form_Config_Ainf* ensureGeoPage();
    ZRK_Form_Config_Track* trackPage() const { return m_track; }
    ZRK_Form_Config_Other* otherPage() const { return m_other; }

public slots:
    // Asked by the track page. This model has no accelerometer and no serial page: nothing opens.
    void openTabAccel();
    void openTabRS();
    // This model has no page that follows the speeding setting; kept for the track page's signal.
    void setSpeedingParam(bool on);

signals:
    // Something in a page changed (a widget's value, an edited kept value).
    void contentEdited();

private:
    struct Page
    {
        QWidget* widget = nullptr;
        int order = 0;
        int number = PageNone;
        std::function<QString()> title;
        std::function<void()> translate, setDefault, connectDevice, disconnectDevice;
        std::function<void(CXMLWorkData*)> read, write;
        std::function<void(bool)> setEnabled;
        std::function<void(int)> setTabIndex;
        std::function<void(int)> openSubTab; // 2383 values 201..210, 901..903
    };

    // Binds a page's contract and puts it in the tab set; pages are kept in write order.
    template <typename P> Page& addPage(P* page, int order, int number);
    // Puts a bound page in its place by write order; returns its index.
    int insertPage(const Page& page);
    void watchForEdits(QWidget* page);
    void writeHeader(CXMLWorkData* root);
    // Every page's branch in the fixed order, then the field set's user parameters.
    void writePages(CXMLWorkData* root);

    QTabWidget* m_tabs = nullptr;
    QVector<Page> m_pages;
    QStringList m_owned;
    bool m_filling = false; // reading or resetting: widget changes are not the user's
    ZRK_Form_Config_Orba3* m_fieldSet = nullptr;
    QWidget* m_geoHolder = nullptr;
    ZRK_Form_Config_Ainf* m_geo = nullptr;
    bool m_connected = false;
    ZRK_Form_Config_Track* m_track = nullptr;
    ZRK_Form_Config_Other* m_other = nullptr;
};

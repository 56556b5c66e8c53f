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
class ZRK_Form_Config_Page;
class ZRK_Form_Config_Track;
class ZRK_Config_Editing;

// The full editor: a tab per configuration page, each a view of the open configuration. Pages are
// registered once with addPage(); showing the configuration, turning what the user changed into
// undoable edits, translating, connecting and the page table of message 2383 walk that list.
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

    explicit ZRK_Widget_Config_Full(ZRK_Config_Editing* editing, QWidget* parent = nullptr);
    ~ZRK_Widget_Config_Full() override;

    void translateForm();
    void deviceConnect();
    void deviceDisconnect();
    void setFormEnabled(bool enabled);

    // Every page at its contract's defaults (the configuration is not touched).
    void initDefaultParam();
    // Shows the whole configuration on every page; what a page cannot show as it is (a range, a
    // rule of the page) is taken into the configuration as the page shows it, as part of it.
    void showConfiguration();
    // The protocol generation the telemetry view is told of, into configParam.
    void fillConfigParam(szConfigParam& configParam) const;

    // Selects the page of a 2383 value and opens its sub-tab; false when this model has no such page.
    bool openPage(quint32 value);
    static bool isSubTabValue(quint32 value);
    QWidget* pageForNumber(int number) const;
    // The page a 2383 value selects; null when the value is ignored or the page is not in this model.
    QWidget* pageForValue(quint32 value) const;
    static int pageNumberOf(quint32 value);
    QTabWidget* tabWidget() const { return m_tabs; }

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

private:
    struct Page
    {
        QWidget* widget = nullptr;
        ZRK_Form_Config_Page* form = nullptr; // null for the geo page's holder
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
    Page& addPage(ZRK_Form_Config_Page* page, int order, int number);
    // Puts a bound page in its place by write order; returns its index.
    int insertPage(const Page& page);
    void watchForEdits(QWidget* page, const std::function<void()>& edited);
    // The user changed something on a page: its values that differ become one undoable edit.
    void takeEdits(ZRK_Form_Config_Page* page);
    void showBranch(ZRK_Form_Config_Page* page, int branch);
    void slot_valueChanged(const QString& node, const QString& key);

    ZRK_Config_Editing* m_editing = nullptr;
    QTabWidget* m_tabs = nullptr;
    QVector<Page> m_pages;
    bool m_filling = false; // showing the configuration: widget changes are not the user's
    ZRK_Form_Config_Orba3* m_fieldSet = nullptr;
    QWidget* m_geoHolder = nullptr;
    ZRK_Form_Config_Ainf* m_geo = nullptr;
    bool m_connected = false;
    ZRK_Form_Config_Track* m_track = nullptr;
    ZRK_Form_Config_Other* m_other = nullptr;
};

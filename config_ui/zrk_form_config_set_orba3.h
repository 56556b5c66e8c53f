#pragma once

// The record field-set page: which fields the terminal puts into each ORBA record and which
// protocol generation it uses. Ten tabs, built from the position table beside the field set in the
// model, each own the check boxes of a group of mask positions; the page joins their positions into
// the 255-character mask and keeps the record size under the terminal's limit.

#include "config_model/orba_fieldset.h"
#include "config_model/orba_fieldset_tabs.h"
#include "config_ui/zrk_form_config_page.h"

#include <QMap>
#include <QPair>
#include <QSet>
#include <QVector>
#include <QWidget>

class CXMLWorkData;
class QCheckBox;
class QComboBox;
class QGroupBox;
class QLabel;
class QTabWidget;
class QLineEdit;
class QVBoxLayout;
namespace Ui {
class ZRK_Designer_Form_Config_Set_Orba3;
class ZRK_Designer_Form_Config_Set_Orba3_Tab;
}

// One tab of field boxes, built from its row of the position table (zrk::fieldset::tabTable()):
// a titled section of boxes for each group of positions, the tyre-count list, or the user
// parameters with their names and types. The operations of every tab are the same; a tab with no
// positions in a generation's span leaves that span alone.
class ZRK_Form_Config_Set_Orba3_Tab : public QWidget
{
    Q_OBJECT

public:
    // deviceType picks which of two boxes carries positions 3, 4 and 5 on the main tab.
    explicit ZRK_Form_Config_Set_Orba3_Tab(
        zrk::fieldset::TabId id, int deviceType = 0, QWidget* parent = nullptr);
    ~ZRK_Form_Config_Set_Orba3_Tab() override;

    zrk::fieldset::TabId id() const { return m_id; }
    QString tabTitle() const;
    QList<int> positions() const; // every mask position this tab shows as a box
    QCheckBox* box(int pos) const { return m_boxes.value(pos); }
    // Bytes the ticked positions of this tab add within generation index 0..2.
    int tickedSize(int generation) const;
    bool isPositionShown(int pos) const; // shown for this device (filters aside)
    int shownCount(const QVector<int>& positions) const;
    // Shows only boxes whose label contains text (any case) and, when asked, only ticked ones;
    // returns the number of boxes left in sight.
    int applyFilter(const QString& text, bool onlyTicked);

    // Device description: a box absent on this model is hidden; an always-recorded one is ticked
    // and locked; a box the model keeps as it stands is locked with its state.
    void showPosition(int pos, bool shown);
    void showFirst(const QVector<int>& positions, int count);
    void forcePosition(int pos, bool forced);
    void lockPosition(int pos, bool locked);
    void showTyres(bool shown);

    int deviceType() const { return m_deviceType; }
    QCheckBox* alternateBox(int pos) const { return m_alternate.value(pos); }
    QComboBox* tiresBox() const { return m_tires; }
    QLineEdit* nameEdit(int pos) const { return m_names.value(pos); }
    QComboBox* typeBox(int pos) const { return m_types.value(pos); }
    zrk::fieldset::UserParams userParams() const;
    void setUserParams(const zrk::fieldset::UserParams& params);
    void readUserParam(CXMLWorkData* root);
    void writeUserParam(CXMLWorkData* root);

public slots:
    void deviceConnect() { }
    void deviceDisconnect() { }
    void setDefaultParam();
    void setFormEnabled(bool enabled);
    void translateForm();
    void getStrFormat_Orba_1(QString& mask) const { writeSpan(mask, 1); }
    void getStrFormat_Orba_2(QString& mask) const { writeSpan(mask, 2); }
    void getStrFormat_Orba_3(QString& mask) const { writeSpan(mask, 3); }
    void setStrFormat_Orba_1(QString mask) { readSpan(mask, 1); }
    void setStrFormat_Orba_2(QString mask) { readSpan(mask, 2); }
    void setStrFormat_Orba_3(QString mask) { readSpan(mask, 3); }
    void setFormat_Enabled_Orba_1(bool enabled) { enableSpan(1, enabled); }
    void setFormat_Enabled_Orba_2(bool enabled) { enableSpan(2, enabled); }
    void setFormat_Enabled_Orba_3(bool enabled) { enableSpan(3, enabled); }

signals:
    // A position of this tab changed from the user's hand or a setter.
    void positionToggled(int pos, bool on);

private slots:
    void slot_currentIndexChanged_Tires(int index);

private:
    QGroupBox* makeSection(const char* titleId);
    QCheckBox* makeBox(int pos, QGroupBox* section);
    void makeUserRow(int pos, int group, QGroupBox* section, int row);
    void makeAlternates();
    void refreshSections();
    void refreshBox(int pos);
    // generation g is 1, 2 or 3
    void writeSpan(QString& mask, int g) const;
    using BoxIt = QMap<int, QCheckBox*>::const_iterator;
    // The boxes of generation g (1..3) in position order; none for another number.
    QPair<BoxIt, BoxIt> spanBoxes(int g) const;
    void readSpan(const QString& mask, int g);
    void enableSpan(int g, bool enabled);

    Ui::ZRK_Designer_Form_Config_Set_Orba3_Tab* ui;
    zrk::fieldset::TabId m_id;
    int m_deviceType;
    QMap<int, QCheckBox*> m_boxes;
    QMap<QCheckBox*, QGroupBox*> m_sectionOf;
    QVector<QPair<QGroupBox*, const char*>> m_sections;
    QMap<int, QCheckBox*> m_alternate; // the boxes of positions 3..5 the other device type uses
    QComboBox* m_tires = nullptr;
    QGroupBox* m_tiresGroup = nullptr;
    int m_tiresIndex = 0;
    QMap<int, QLineEdit*> m_names;
    QMap<int, QComboBox*> m_types;
    bool m_spanEnabled[4] = { true, true, true, true };
    QSet<int> m_hidden; // absent on this model
    QSet<int> m_locked;
    QSet<int> m_forced;
    QSet<int> m_filtered; // out of the filter's sight
};

// The names each tab has by its row; they are all the one class above.
using ZRK_Form_Config_Set_Orba3_Tab_Main = ZRK_Form_Config_Set_Orba3_Tab;
using ZRK_Form_Config_Set_Orba3_Tab_Navi = ZRK_Form_Config_Set_Orba3_Tab;
using ZRK_Form_Config_Set_Orba3_Tab_RS = ZRK_Form_Config_Set_Orba3_Tab;
using ZRK_Form_Config_Set_Orba3_Tab_CAN = ZRK_Form_Config_Set_Orba3_Tab;
using ZRK_Form_Config_Set_Orba3_Tab_Taho = ZRK_Form_Config_Set_Orba3_Tab;
using ZRK_Form_Config_Set_Orba3_Tab_More = ZRK_Form_Config_Set_Orba3_Tab;
using ZRK_Form_Config_Set_Orba3_Tab_Accel = ZRK_Form_Config_Set_Orba3_Tab;
using ZRK_Form_Config_Set_Orba3_Tab_FFS = ZRK_Form_Config_Set_Orba3_Tab;
using ZRK_Form_Config_Set_Orba3_Tab_Refr = ZRK_Form_Config_Set_Orba3_Tab;
using ZRK_Form_Config_Set_Orba3_Tab_User = ZRK_Form_Config_Set_Orba3_Tab;

class ZRK_Form_Config_Set_Orba3 : public ZRK_Form_Config_Page
{
    Q_OBJECT

public:
    explicit ZRK_Form_Config_Set_Orba3(QWidget* parent = nullptr);
    ~ZRK_Form_Config_Set_Orba3() override;

    void applyCaps() override;
    void translateForm() override;
    void initForm() override;
    QString getTabTitle() const override { return m_tabTitle; }
    void setDefaultParam() override;
    void readFormParam(CXMLWorkData* root) override;
    void writeFormParam(CXMLWorkData* root) override;
    void deviceConnect() override;
    void deviceDisconnect() override;
    void setFormEnabled(bool enabled) override;
    // "PROTOCOL" and "USERPARAM".
    QVector<zrk::cfg::BranchDecl> shownBranches() const override;
    zrk::cfg::Values shownValues(int branch) const override;
    void showValues(int branch, const zrk::cfg::Values& values) override;

    QString getStrFormat() const;
    void setStrFormat(const QString& mask);
    QString getTypeDFProtocol() const;
    void setTypeDFProtocol(const QString& format);
    // The mask "new" and reset start from: the defaults with this model's feature positions.
    QString defaultMask() const;

    void setProtocol_CurSize_Inc(int bytes);
    void setProtocol_CurSize_Dec(int bytes);
    void setFormatSize();
    int getProtocol_CurSize() const { return m_curSize; }
    bool isExcessSize() const { return m_excessSize; }
    // Recounts the size from the boxes (after bulk changes) and applies the limit.
    void recountSize();
    QString sizeBreakdown() const;

    void readUserParam(CXMLWorkData* root);
    void writeUserParam(CXMLWorkData* root);

    void openTab(int value); // 2: the page's first tab; 201..210: its tabs in creation order
    void openTabAccel();
    void openTabCan();
    void openTabUser();

    // Presets: the default field set, navigation only, or the mask of another configuration file.
    void applyPresetDefault();
    void applyPresetNavigation();
    bool applyPresetFromFile(const QString& path, QString* error = nullptr);
    // Filter across tabs: boxes whose label holds text, optionally ticked ones only.
    int applyFilter(const QString& text, bool onlyTicked);

    // Device description, forwarded to the tab that holds the boxes.
    void setDeviceUseState(bool state, bool state2);
    void setUseDefState2(bool use) { m_useDefState2 = use; }
    bool isUseDefState2() const { return m_useDefState2; }
    void setDeviceAlwaysUseState(bool state, bool state2);
    void setDeviceUseModule(bool module1, bool module2, bool module3);
    void setDeviceAlwaysUseModule(bool module1, bool module2, bool module3);
    void setDeviceUseGSM(bool gsm, bool connections);
    void setDeviceUseMotochas(bool motochas, bool loadOn, bool loadOff);
    void setDeviceEnabledMotochasMore(bool enabled);
    void setMaxCountLinesOut(int count);
    void setMaxCountStateIn(int count);
    void setMaxCountLinesIn(int count);
    void setMaxCountSensorsTemp(int count);
    void setDeviceUseNaviMore(bool naviMore, bool preciseCoord);
    void setDeviceUseLBS(bool use);
    void setDeviceUseCANState(bool use);
    void setDeviceUsePassager(bool use);
    void setDeviceUseTires(bool use);
    void setDeviceUseDisp(bool use);
    void setDeviceUseVAccelAxels(bool use);
    void setDeviceUseAinf(bool use);
    void setDeviceUseCamera(bool use);
    void setMaxCountHighPrecisionTemp(int count);
    void setMaxCountHighPrecisionHumidity(int count);
    void setRS485_FLS_MaxCount(int count);
    void setDeviceUseReservPower(bool use);

    // The tabs; null until created.
    QList<ZRK_Form_Config_Set_Orba3_Tab*> tabs() const { return m_tabs; }
    ZRK_Form_Config_Set_Orba3_Tab_Main* tabMain() const { return m_tabMain; }
    ZRK_Form_Config_Set_Orba3_Tab_Navi* tabNavi() const { return m_tabNavi; }
    ZRK_Form_Config_Set_Orba3_Tab_RS* tabRS() const { return m_tabRS; }
    ZRK_Form_Config_Set_Orba3_Tab_CAN* tabCAN() const { return m_tabCAN; }
    ZRK_Form_Config_Set_Orba3_Tab_Taho* tabTaho() const { return m_tabTaho; }
    ZRK_Form_Config_Set_Orba3_Tab_More* tabMore() const { return m_tabMore; }
    ZRK_Form_Config_Set_Orba3_Tab_Accel* tabAccel() const { return m_tabAccel; }
    ZRK_Form_Config_Set_Orba3_Tab_FFS* tabFFS() const { return m_tabFFS; }
    ZRK_Form_Config_Set_Orba3_Tab_Refr* tabRefr() const { return m_tabRefr; }
    ZRK_Form_Config_Set_Orba3_Tab_User* tabUser() const { return m_tabUser; }
    // The page's own widgets, for the window and tests.
    QComboBox* flashFormat() const;
    QLabel* sizeLabel() const;
    QLabel* warningLabel() const;
    QTabWidget* tabWidget() const;

signals:
    void notify_Excess_Size(bool excess);

protected:
    void createTab_Main(int deviceType);
    void createTab_Navi();
    void createTab_RS(bool rs232, bool rs485Temp, bool rs485Freq);
    void createTab_CAN();
    void createTab_Taho();
    void createTab_Accel();
    void createTab_Refr();
    void createTab_FFS();
    void createTab_More();
    void createTab_User();

private slots:
    void slot_currentIndexChanged_FlashFormat(int index);
    void slot_textChanged_Filter(const QString& text);
    void slot_stateChanged_OnlyTicked(int state);
    void slot_pressed_PresetDefault();
    void slot_pressed_PresetNavi();
    void slot_pressed_PresetFile();
    void slot_positionToggled(int pos, bool on);

private:
    ZRK_Form_Config_Set_Orba3_Tab* addTab(zrk::fieldset::TabId id, int deviceType = 0);
    void applyGeneration(int index);
    void setStrFormatQuiet(const QString& mask);

    Ui::ZRK_Designer_Form_Config_Set_Orba3* ui;
    QString m_tabTitle;
    int m_curSize = 0;
    bool m_excessSize = false;
    bool m_useDefState2 = false;
    bool m_bulk = false; // many boxes change at once: count once at the end
    bool m_useReserv = true; // the main tab shows the backup battery's voltage
    bool m_rs485Temp = true; // the serial tab's sensors report temperature
    bool m_rs485Freq = true; // and frequency
    QString m_defMask;
    QList<ZRK_Form_Config_Set_Orba3_Tab*> m_tabs;
    ZRK_Form_Config_Set_Orba3_Tab_Main* m_tabMain = nullptr;
    ZRK_Form_Config_Set_Orba3_Tab_Navi* m_tabNavi = nullptr;
    ZRK_Form_Config_Set_Orba3_Tab_RS* m_tabRS = nullptr;
    ZRK_Form_Config_Set_Orba3_Tab_CAN* m_tabCAN = nullptr;
    ZRK_Form_Config_Set_Orba3_Tab_Taho* m_tabTaho = nullptr;
    ZRK_Form_Config_Set_Orba3_Tab_More* m_tabMore = nullptr;
    ZRK_Form_Config_Set_Orba3_Tab_Accel* m_tabAccel = nullptr;
    ZRK_Form_Config_Set_Orba3_Tab_FFS* m_tabFFS = nullptr;
    ZRK_Form_Config_Set_Orba3_Tab_Refr* m_tabRefr = nullptr;
    ZRK_Form_Config_Set_Orba3_Tab_User* m_tabUser = nullptr;
};

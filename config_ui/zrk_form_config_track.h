#pragma once

#include "config_model/config_keys.h"
#include "config_model/zrk_track_caps.h"
#include "config_ui/zrk_config_binding.h"
#include "config_ui/zrk_form_config_page.h"

#include <QStringList>

#include <functional>

class CXMLWorkData;
class QAbstractButton;
class QRadioButton;
class QSpinBox;
class ZRK_Form_Config_Track_Locator_BList;
namespace Ui {
class ZRK_Designer_Form_Config_Track;
}

// The track page: when points are laid down, their density, the coordinate filter, averaging
// while stopped, parking, the satellite receiver ("TRACK") and alternative positioning
// ("LOCATOR"). Widgets are bound to the declared keys; the rules below are the special ones.
class ZRK_Form_Config_Track : public ZRK_Form_Config_Page
{
    Q_OBJECT
    // The keys whose widgets follow a rule of the page (see the declarations' "widget").
    Q_PROPERTY(int angleMode READ getAngleMode WRITE setAngleMode)
    Q_PROPERTY(QString tmrFlags READ getTmrFlags WRITE setTmrFlags)
    Q_PROPERTY(int minAlt READ getMinAlt WRITE setMinAlt)
    Q_PROPERTY(int maxAlt READ getMaxAlt WRITE setMaxAlt)
    Q_PROPERTY(int deltaNtp READ getDeltaNtp WRITE setDeltaNtp)
    Q_PROPERTY(int coldRstTimer READ getColdRstTimer WRITE setColdRstTimer)
    Q_PROPERTY(int rejCnt READ getRejCnt WRITE setRejCnt)
    Q_PROPERTY(int averageMode READ getAverageMode WRITE setAverageMode)
    Q_PROPERTY(QString sensorAverage READ getSensorAverage WRITE setSensorAverage)
    Q_PROPERTY(int parkingMode READ getParkingMode WRITE setParkingMode)
    Q_PROPERTY(QString gnssMode READ getGnssMode WRITE setGnssMode)
    Q_PROPERTY(int gnssCoord READ getGnssCoord WRITE setGnssCoord)
    Q_PROPERTY(int locCondition READ getLocCondition WRITE setLocCondition)
    Q_PROPERTY(QStringList blackList READ getBlackList WRITE setBlackList)

public:
    explicit ZRK_Form_Config_Track(QWidget* parent = nullptr);
    // A page for other capabilities than this model's (other models of the family, tests).
    explicit ZRK_Form_Config_Track(const ZRK_Track_Caps& caps, QWidget* parent = nullptr);
    ~ZRK_Form_Config_Track() override;

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
    // "TRACK" and "LOCATOR".
    QVector<zrk::cfg::BranchDecl> shownBranches() const override { return { m_trackDecl, m_locatorDecl }; }
    zrk::cfg::Values shownValues(int branch) const override;
    void showValues(int branch, const zrk::cfg::Values& values) override;

    const ZRK_Track_Caps& caps() const { return m_caps; }

    QString getTmrFlags() const;
    void setTmrFlags(const QString& flags);
    QString getSensorAverage() const;
    void setSensorAverage(const QString& flags);
    int getParkingMode() const;
    void setParkingMode(int mode);
    QString getGnssMode() const;
    void setGnssMode(const QString& mode);
    int getGnssCoord() const;
    void setGnssCoord(int datum);
    int getLocConditionCode4Name(const QString& text) const;
    QString getLocConditionName4Code(int code) const;
    QRadioButton* gnssButton(int index) const;
    int getAngleMode() const;
    void setAngleMode(int mode);
    int getMinAlt() const;
    void setMinAlt(int metres);
    int getMaxAlt() const;
    void setMaxAlt(int metres);
    int getDeltaNtp() const;
    void setDeltaNtp(int seconds);
    int getColdRstTimer() const;
    void setColdRstTimer(int value);
    int getRejCnt() const;
    void setRejCnt(int count);
    int getAverageMode() const;
    void setAverageMode(int mode);
    int getLocCondition() const;
    void setLocCondition(int code);
    QStringList getBlackList() const;
    void setBlackList(const QStringList& rows);
    static QString getFloatToStr(float value, int decimals);
    // Enables the density-limit group while any point rule (angle, direction, distance, timer) is on.
    void setRestrictionEnabled();

    // The two branches as the page holds them, in declaration order.
    zrk::cfg::Values trackValues() const;
    zrk::cfg::Values locatorValues() const;
    ZRK_Form_Config_Track_Locator_BList* blackList() const { return m_blackList; }

signals:
    void openTabAccelRequested();
    void openTabRSRequested();
    void speedingParamChanged(bool on);

private slots:
    void slot_stateChanged_Always_checkBox_MaxSpeed(int state);
    void slot_stateChanged_Additional_checkBox_Corner(int state);
    void slot_stateChanged_Additional_checkBox_Direction(int state);
    void slot_stateChanged_Additional_checkBox_Distance(int state);
    void slot_stateChanged_Additional_checkBox_Timer(int state);
    void slot_stateChanged_checkBox_BlockDist(int state);
    void slot_stateChanged_checkBox_BlockTimer(int state);
    void slot_stateChanged_checkBox_CoordFlt_Use(int state);
    void slot_valueChanged_spinBox_MinAlt(int value);
    void slot_valueChanged_spinBox_MaxAlt(int value);
    void slot_stateChanged_checkBox_DeltaNtp(int state);
    void slot_clicked_Coord_Stop_radioButton_NotAverage(bool checked);
    void slot_clicked_Coord_Stop_radioButton_Average(bool checked);
    void slot_clicked_Coord_Stop_radioButton_Fixed(bool checked);
    void slot_clicked_radioButton_ParkingMode_1(bool checked);
    void slot_clicked_radioButton_ParkingMode_2(bool checked);
    void slot_pressed_pushButton_ParkingAccel();
    void slot_stateChanged_checkBox_ColdRstTimer(int state);
    void slot_stateChanged_checkBox_Tlm_Use(int state);
    void slot_stateChanged_checkBox_Loc_Use(int state);
    void slot_toggled_groupBox_CoordFlt_Use(bool on);
    void slot_stateChanged_checkBox_CoordFlt_RejCnt(int state);
    void slot_toggled_groupBox_ApFLT_Use(bool on);
    void slot_pressed_pushButton_BlackList();

private:
    QVector<ZRK_Config_Binding> bindBranch(const zrk::cfg::BranchDecl& branch);
    void setCounter(QAbstractButton* box, QSpinBox* spin, int value, int onValue);
    void applyCounter(QSpinBox* spin, bool on, int onValue);
    void enableSensorAverageForMode();
    void setRangeTips();
    void applyValues(const zrk::cfg::BranchDecl& branch, const QVector<ZRK_Config_Binding>& bindings,
        const zrk::cfg::Values& values, bool reset);
    void runDependentSlots();

    ZRK_Track_Caps m_caps;
    Ui::ZRK_Designer_Form_Config_Track* ui;
    zrk::cfg::BranchDecl m_trackDecl;
    zrk::cfg::BranchDecl m_locatorDecl;
    QVector<ZRK_Config_Binding> m_trackBind;
    QVector<ZRK_Config_Binding> m_locatorBind;
    ZRK_Form_Config_Track_Locator_BList* m_blackList = nullptr;
    QString m_tabTitle;
};

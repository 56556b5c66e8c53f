#pragma once

#include <QWidget>

#include <memory>

class Ui_ZRK_Designer_Form_Config_Ainf_Map;
class ZRK_Widget_Map;

// The page's map with its background setting (grid, tile server or local tile folder, kept in the
// application's settings) and the "all zones" button.
class ZRK_Form_Config_Ainf_Map : public QWidget
{
    Q_OBJECT

public:
    explicit ZRK_Form_Config_Ainf_Map(QWidget* parent = nullptr);
    ~ZRK_Form_Config_Ainf_Map() override;

    void translateForm();
    ZRK_Widget_Map* map() const;
    // When on, the next load of zones brings them all into view (after reading a file).
    void setMapCenterEnable(bool enable);
    bool mapCenterEnable() const { return m_centre; }
    // Called after zones were loaded: recentres once if asked to.
    void zonesLoaded();

private slots:
    void slot_pressed_BtnApplyTiles();
    void slot_pressed_BtnCentre();

private:
    std::unique_ptr<Ui_ZRK_Designer_Form_Config_Ainf_Map> ui;
    bool m_centre = false;
};

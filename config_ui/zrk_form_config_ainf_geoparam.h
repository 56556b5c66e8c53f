#pragma once

#include "config_model/geo_data.h"

#include <QWidget>

#include <memory>

class Ui_ZRK_Designer_Form_Config_Ainf_GeoParam;

// The fields of one geo-zone and the default options of new zones. Typing a position or a radius
// reports the change at once, so the map follows what the user types.
class ZRK_Form_Config_Ainf_GeoParam : public QWidget
{
    Q_OBJECT

public:
    explicit ZRK_Form_Config_Ainf_GeoParam(QWidget* parent = nullptr);
    ~ZRK_Form_Config_Ainf_GeoParam() override;

    void translateForm();
    // The defaults live with the page's data; this form shows and edits the geo options of it.
    void setDefaults(coreAinfDefaults* defaults) { m_defaults = defaults; }

    void setZone(const coreGeoZone& zone);
    void clearZone();
    int zoneId() const { return m_id; }
    // The zone as the fields give it (id kept); false with a Russian *error for a bad coordinate.
    bool readZone(coreGeoZone* zone, QString* error) const;
    // The typed position, for adding a zone there.
    bool typedPosition(double* lat, double* lon) const;

    int getDefGeoOptions() const;
    QString getDefGeoOptionsStr() const;
    void setDefGeoOptions(int bits);
    void setDefGeoOptionsStr(const QString& text);

signals:
    void zoneEdited();

private slots:
    void slot_pressed_BtnSetDefault();

private:
    int gobFromBoxes() const;

    std::unique_ptr<Ui_ZRK_Designer_Form_Config_Ainf_GeoParam> ui;
    coreAinfDefaults* m_defaults = nullptr;
    coreAinfDefaults m_ownDefaults;
    int m_id = 0;
    bool m_filling = false;
};

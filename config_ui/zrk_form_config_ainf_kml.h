#pragma once

#include <QDialog>

#include <memory>

class Ui_ZRK_Designer_Form_Config_Ainf_KML;

// Asks for a KML file and the three integers every imported zone takes: radius, heading of entry
// and the zone's option set.
class ZRK_Form_Config_Ainf_KML : public QDialog
{
    Q_OBJECT

public:
    explicit ZRK_Form_Config_Ainf_KML(QWidget* parent = nullptr);
    ~ZRK_Form_Config_Ainf_KML() override;

    void translateForm();
    QString fileName() const;
    int size() const;
    int angle() const;
    int gob() const;
    void setGob(int gob);

private slots:
    void slot_pressed_BtnBrowse();

private:
    std::unique_ptr<Ui_ZRK_Designer_Form_Config_Ainf_KML> ui;
};

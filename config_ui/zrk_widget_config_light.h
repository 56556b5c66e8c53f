#pragma once

#include <QString>
#include <QVector>
#include <QWidget>

class QWidget;
class ZRK_Config_Editing;
namespace Ui {
class ZRK_Designer_Widget_Config_Light;
}

// The light editor: one form with the settings a technician changes most (point timer, distance,
// turn angle, the period while stopped, protocol generation), a second view of the configuration
// the full editor shows. Which keys it shows, and by which widget, is declared with the keys.
class ZRK_Widget_Config_Light : public QWidget
{
    Q_OBJECT

public:
    explicit ZRK_Widget_Config_Light(ZRK_Config_Editing* editing, QWidget* parent = nullptr);
    ~ZRK_Widget_Config_Light() override;

    void translateForm();

    // The form's values in their text form, by key ("moveTimer", "dist", "angle", "stopTimer",
    // "format"); empty for a key the form does not show.
    QString value(const QString& key) const;
    // As the user would set it; false for a key the form does not show.
    bool setValue(const QString& key, const QString& value);
    // The form's keys as a new configuration has them, one undoable step; the rest stays.
    void setDefaultValues();
    // The configuration as it is saved, written whole; the old file stays when it fails.
    bool saveConfigLight(const QString& path, QString* error = nullptr);

    void setFormEnabled(bool enabled);

private:
    struct Shown
    {
        QString node;
        QString key;
        int branch = 0;
        int index = 0; // in the branch's declaration
        QWidget* widget = nullptr;
    };
    void showConfiguration();
    void showOne(const Shown& shown);
    QString widgetValue(const Shown& shown) const;
    void takeEdit(const Shown& shown);
    const Shown* find(const QString& key) const;

    Ui::ZRK_Designer_Widget_Config_Light* ui;
    ZRK_Config_Editing* m_editing;
    QVector<Shown> m_shown;
    bool m_filling = false;
};

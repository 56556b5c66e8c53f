#pragma once

#include <QWidget>

namespace Ui {
class ZRK_Designer_Widget_AltNav_Source;
}

// Which alternative positioning sources are used: Wi-Fi, and mobile cells where the model has
// them. Its string form ("source") is two flags, Wi-Fi then mobile cells.
class ZRK_Widget_AltNav_Source : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(QString source READ getSource WRITE setSource)

public:
    explicit ZRK_Widget_AltNav_Source(QWidget* parent = nullptr);
    ~ZRK_Widget_AltNav_Source() override;

    // 0: no choice (hidden, always "10"); 1: Wi-Fi only; 2: Wi-Fi and mobile cells.
    void applyCaps(int sources);
    void translateForm();
    QString getSource() const;
    void setSource(const QString& flags);
    void setDefault();

signals:
    // The Wi-Fi module is set up on the serial peripherals page.
    void openTabRSRequested();

private slots:
    void slot_pressed_pushButton_WiFi();

private:
    Ui::ZRK_Designer_Widget_AltNav_Source* ui;
    int m_sources = 0;
};

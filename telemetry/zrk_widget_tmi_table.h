#pragma once

#include <QWidget>

// The viewer of a saved telemetry file (table form), opened by host message 2103. One per plug-in,
// created on first need by the device object and never deleted while the library is loaded.
//
// Filled by the telemetry-view work: setFileTmi has an empty body in this shell.
class ZRK_Widget_Tmi_Table : public QWidget
{
    Q_OBJECT

public:
    explicit ZRK_Widget_Tmi_Table(QWidget* parent = nullptr);
    ~ZRK_Widget_Tmi_Table() override;

    virtual void showForm();
    virtual void setFileTmi(const QString& name);
    virtual void translateForm();
};

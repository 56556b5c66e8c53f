#pragma once

#include <QWidget>

// The viewer of a saved telemetry file (page form), opened by host message 2103. One per plug-in,
// created on first need by the device object and never deleted while the library is loaded.
//
// Filled by the telemetry-view work: setFileTmi has an empty body in this shell.
class ZRK_Widget_Tmi_Page : public QWidget
{
    Q_OBJECT

public:
    explicit ZRK_Widget_Tmi_Page(QWidget* parent = nullptr);
    ~ZRK_Widget_Tmi_Page() override;

    virtual void showForm();
    virtual void setFileTmi(const QString& name);
    virtual void translateForm();
};

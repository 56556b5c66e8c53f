#pragma once

#include <QWidget>

// The viewers of a saved telemetry file, as a page or as a table, opened by host message 2103. One
// of each per plug-in, created on first need by the device object and never deleted while the
// library is loaded.
//
// Filled by the telemetry-view work: setFileTmi has an empty body in this shell.
class ZRK_Widget_Tmi_File : public QWidget
{
    Q_OBJECT

public:
    ~ZRK_Widget_Tmi_File() override;

    virtual void showForm();
    virtual void setFileTmi(const QString& name);
    virtual void translateForm() = 0;

protected:
    ZRK_Widget_Tmi_File(const char* objectName, QWidget* parent);
};

class ZRK_Widget_Tmi_Page : public ZRK_Widget_Tmi_File
{
    Q_OBJECT

public:
    explicit ZRK_Widget_Tmi_Page(QWidget* parent = nullptr);
    void translateForm() override;
};

class ZRK_Widget_Tmi_Table : public ZRK_Widget_Tmi_File
{
    Q_OBJECT

public:
    explicit ZRK_Widget_Tmi_Table(QWidget* parent = nullptr);
    void translateForm() override;
};

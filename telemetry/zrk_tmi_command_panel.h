#pragma once

#include <QObject>

#include <functional>

class QWidget;
namespace zrk::tmi {
struct CommandRow;
struct CommandInput;
} // namespace zrk::tmi

// The telemetry view's commands tab bound to the command table: each row's button sends its
// command with the values of the controls the row names, after the row's question; a command is
// offered only while the terminal is connected and, for one that needs a text, once it is typed.
class ZRK_Tmi_Command_Panel : public QObject
{
    Q_OBJECT

public:
    using Send = std::function<unsigned long(int msg, unsigned long w, unsigned long l)>;

    // controls: the widget that holds every row's button and inputs. awaitKey marks the view as
    // the window waiting for the next key code, before a command whose answer is routed so.
    ZRK_Tmi_Command_Panel(QWidget* controls, Send send, std::function<void()> awaitKey, QObject* parent);

    void setConnected(bool connected);
    // Sends the command of the named control as its button does; false when nothing was sent.
    bool run(const QString& control);
    // The question before a command (a message box unless set) and the choice of a firmware file
    // (none unless set: the owner knows where firmware is kept).
    void setConfirmer(std::function<bool(const QString& question)> confirm)
    {
        m_confirm = std::move(confirm);
    }
    void setFileChooser(std::function<QString()> choose) { m_chooseFile = std::move(choose); }

private:
    bool run(const zrk::tmi::CommandRow& row);
    zrk::tmi::CommandInput input(const zrk::tmi::CommandRow& row) const;
    void updateStates();

    QWidget* m_controls;
    Send m_send;
    std::function<void()> m_awaitKey;
    std::function<bool(const QString&)> m_confirm;
    std::function<QString()> m_chooseFile;
    bool m_connected = false;
};

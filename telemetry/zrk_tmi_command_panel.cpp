#include "telemetry/zrk_tmi_command_panel.h"

#include "telemetry/tmi_commands.h"

#include <QAbstractButton>
#include <QCheckBox>
#include <QComboBox>
#include <QDateEdit>
#include <QDoubleSpinBox>
#include <QLineEdit>
#include <QMessageBox>
#include <QSpinBox>

using zrk::tmi::CommandArg;
using zrk::tmi::CommandInput;
using zrk::tmi::CommandRow;

namespace {

QStringList inputNames(const CommandRow& row)
{
    return QString::fromLatin1(row.inputs).split(QLatin1Char(','), Qt::SkipEmptyParts);
}

} // namespace

ZRK_Tmi_Command_Panel::ZRK_Tmi_Command_Panel(
    QWidget* controls, Send send, std::function<void()> awaitKey, QObject* parent)
    : QObject(parent)
    , m_controls(controls)
    , m_send(std::move(send))
    , m_awaitKey(std::move(awaitKey))
{
    m_confirm = [controls](const QString& question) {
        //% "Команда терминалу"
        return QMessageBox::question(controls, qtTrId("tmiw_091"), question,
                   QMessageBox::Yes | QMessageBox::No, QMessageBox::No)
            == QMessageBox::Yes;
    };
    for (int i = 0; i < zrk::tmi::commandCount(); ++i) {
        const CommandRow& row = zrk::tmi::commandRows()[i];
        auto* button = controls->findChild<QAbstractButton*>(QLatin1String(row.control));
        Q_ASSERT(button);
        if (!button)
            continue;
        connect(button, &QAbstractButton::clicked, this, [this, &row] { run(row); });
        if (row.arg == CommandArg::Text)
            for (const QString& name : inputNames(row))
                if (auto* edit = controls->findChild<QLineEdit*>(name))
                    connect(edit, &QLineEdit::textChanged, this, &ZRK_Tmi_Command_Panel::updateStates);
    }
    updateStates();
}

void ZRK_Tmi_Command_Panel::setConnected(bool connected)
{
    m_connected = connected;
    updateStates();
}

void ZRK_Tmi_Command_Panel::updateStates()
{
    for (int i = 0; i < zrk::tmi::commandCount(); ++i) {
        const CommandRow& row = zrk::tmi::commandRows()[i];
        if (auto* button = m_controls->findChild<QAbstractButton*>(QLatin1String(row.control))) {
            const bool ready = row.arg != CommandArg::Text || !input(row).texts.value(0).isEmpty();
            button->setEnabled((m_connected || !row.needsConnection) && ready);
        }
    }
}

CommandInput ZRK_Tmi_Command_Panel::input(const CommandRow& row) const
{
    CommandInput in;
    for (const QString& name : inputNames(row)) {
        QWidget* w = m_controls->findChild<QWidget*>(name);
        if (auto* box = qobject_cast<QComboBox*>(w)) {
            in.value = box->currentIndex() + 1; // choices are counted from 1
            in.texts << box->currentText();
        } else if (auto* spin = qobject_cast<QSpinBox*>(w)) {
            in.value = spin->value();
        } else if (auto* number = qobject_cast<QDoubleSpinBox*>(w)) {
            in.number = number->value();
        } else if (auto* check = qobject_cast<QCheckBox*>(w)) {
            in.flag = check->isChecked();
        } else if (auto* edit = qobject_cast<QLineEdit*>(w)) {
            in.texts << edit->text();
        } else if (auto* date = qobject_cast<QDateEdit*>(w)) {
            (in.from.isValid() ? in.to : in.from) = date->date();
        }
    }
    return in;
}

bool ZRK_Tmi_Command_Panel::run(const QString& control)
{
    const CommandRow* row = zrk::tmi::findCommand(control);
    return row && run(*row);
}

bool ZRK_Tmi_Command_Panel::run(const CommandRow& row)
{
    if (row.needsConnection && !m_connected)
        return false;
    CommandInput in = input(row);
    if (row.arg == CommandArg::FirmwareFile) {
        const QString path = m_chooseFile ? m_chooseFile() : QString();
        if (path.isEmpty())
            return false;
        in.texts = QStringList { path };
    }
    const QString question = zrk::tmi::confirmationText(row, in);
    if (!question.isEmpty() && !(m_confirm && m_confirm(question)))
        return false;
    if (row.awaitsKey && m_awaitKey)
        m_awaitKey();
    return zrk::tmi::sendCommand(row, in, m_send);
}

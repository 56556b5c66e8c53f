// The telemetry steps of the scripted session: the view against the simulated terminal, stepping,
// auto-request, saving a .tmi and opening it in both viewers. The plug-in's widgets are found by
// class and object name and used as a user would; a step whose widget is missing is logged and
// skipped, so the session still shows what is there.
#include "demo_session.h"

#include "host_window.h"

#include <QAbstractButton>
#include <QApplication>
#include <QCheckBox>
#include <QDateTimeEdit>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QLineEdit>
#include <QMessageBox>
#include <QMetaMethod>
#include <QSlider>
#include <QTabWidget>
#include <QTimer>

#include <cstdio>
#include <memory>

namespace {

void note(const char* what)
{
    std::fprintf(stderr, "zrk-host demo: %s\n", what);
}

QAbstractButton* button(QWidget* in, const char* objectName)
{
    return in ? in->findChild<QAbstractButton*>(QLatin1String(objectName)) : nullptr;
}

// Clicks the named button if it is there and enabled; says so when it is not.
bool click(QWidget* in, const char* objectName)
{
    QAbstractButton* b = button(in, objectName);
    if (!b || !b->isEnabled()) {
        std::fprintf(stderr, "zrk-host demo: button %s %s, step skipped\n", objectName,
            b ? "is disabled" : "not found");
        return false;
    }
    b->click();
    return true;
}

bool hasMethod(const QObject* o, const char* signature)
{
    return o->metaObject()->indexOfMethod(QMetaObject::normalizedSignature(signature).constData()) >= 0;
}

// For a few seconds (one more once the file dialog is answered), answers the modal dialogs a save
// brings up: the file dialog gets `file` and is accepted; a message box (a failed save) is logged
// and closed, so the session goes on.
void answerFileDialog(const QString& file)
{
    auto* poll = new QTimer;
    auto tries = std::make_shared<int>(0);
    QObject::connect(poll, &QTimer::timeout, poll, [poll, tries, file] {
        QWidget* modal = QApplication::activeModalWidget();
        if (auto* dialog = qobject_cast<QFileDialog*>(modal)) {
            // The folder first: a whole path in selectFile leaves the dialog on the folder alone.
            dialog->setDirectory(QFileInfo(file).absolutePath());
            dialog->selectFile(QFileInfo(file).fileName());
            if (auto* edit = dialog->findChild<QLineEdit*>(QStringLiteral("fileNameEdit")))
                edit->setText(QFileInfo(file).fileName()); // what a user types
            static_cast<QDialog*>(dialog)->done(QDialog::Accepted); // as if the user pressed Save
            *tries = qMax(
                *tries, 70); // a second more for a failure message, then other steps' dialogs are theirs
        } else if (auto* box = qobject_cast<QMessageBox*>(modal)) {
            std::fprintf(stderr, "zrk-host demo: the view says: %s\n", qPrintable(box->text()));
            box->accept();
        } else if (auto* other = qobject_cast<QDialog*>(modal)) {
            note("an unexpected dialog came up while saving; it is closed");
            other->reject();
        }
        if (++*tries > 80) {
            poll->stop();
            poll->deleteLater();
        }
    });
    poll->start(100);
}

} // namespace

void ZrkDemoSession::runTelemetrySteps()
{
    m_window.connectTerminal();
    m_window.openTelemetryView();
    settle(300);
    QWidget* view = topLevel("ZRK_Widget_Tmi_View");
    if (!view) {
        note("the plug-in opened no telemetry view; telemetry steps skipped");
        return;
    }
    view->move(40, 40);
    view->resize(qMax(view->width(), 1100), qMax(view->height(), 760));
    view->show();
    view->raise();
    grab(view, QStringLiteral("tmi_view"));

    if (click(view, "GetCurrent")) {
        grab(view, QStringLiteral("tmi_current"));
        // The record's raw tab (the last of the record form), then back to the first.
        QWidget* form = view->findChild<QWidget*>(QStringLiteral("ZRK_Form_TMI_Orba3"));
        if (auto* tabs = form ? form->findChild<QTabWidget*>(QStringLiteral("Tabs")) : nullptr) {
            tabs->setCurrentIndex(tabs->count() - 1);
            grab(view, QStringLiteral("tmi_current_raw"));
            tabs->setCurrentIndex(0);
        }
    }
    if (click(view, "GetPrev"))
        grab(view, QStringLiteral("tmi_previous"));
    if (click(view, "GetNext"))
        grab(view, QStringLiteral("tmi_next"));

    // By time: five minutes ago on this workstation's clock, the terminal keeping UTC (offset 0).
    if (auto* moment = view->findChild<QDateTimeEdit*>(QStringLiteral("TimeMoment"))) {
        moment->setDateTime(QDateTime::currentDateTime().addSecs(-300));
        if (click(view, "Show"))
            grab(view, QStringLiteral("tmi_by_time"));
    } else {
        note("date-time editor TimeMoment not found, the lookup by time skipped");
    }

    // The key the terminal's reader holds (2311 with 1), answered into the log tab.
    if (auto* side = view->findChild<QTabWidget*>(QStringLiteral("SideTabs"))) {
        side->setCurrentIndex(side->indexOf(view->findChild<QWidget*>(QStringLiteral("TabCommands"))));
        if (click(view, "GetTouch")) {
            side->setCurrentIndex(side->indexOf(view->findChild<QWidget*>(QStringLiteral("TabLog"))));
            grab(view, QStringLiteral("tmi_key_code"));
        }
        side->setCurrentIndex(0);
    }

    // Plot the chart's first field over the records that auto-request brings.
    click(view, "ChartAdd");

    // Auto-request at the shortest period for a few ticks.
    if (auto* autoBox = view->findChild<QCheckBox*>(QStringLiteral("GetAutoTmi"))) {
        for (QSlider* slider : view->findChildren<QSlider*>())
            slider->setValue(slider->minimum());
        autoBox->click();
        settle(3500);
        grab(view, QStringLiteral("tmi_auto_request"));
        autoBox->click();
    } else {
        note("check box GetAutoTmi not found, auto-request skipped");
    }

    // The terminal pushes an extended record (the host's button).
    if (click(&m_window, "SimTmiSendExt"))
        grab(view, QStringLiteral("tmi_extended"));

    // Save what the view holds, then open it in both viewers.
    const QString file = QDir(m_directory).absoluteFilePath(QStringLiteral("demo.tmi"));
    QFile::remove(file);
    if (hasMethod(view, "WriteTmiToFile(QString)")) {
        QMetaObject::invokeMethod(view, "WriteTmiToFile", Q_ARG(QString, file));
    } else if (button(view, "SaveFile")) {
        // Qt's own dialog, which the session can fill; a platform one would wait for a person.
        QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
        // The user's way: the save button, then the file dialog it opens, filled and accepted.
        answerFileDialog(file);
        click(view, "SaveFile");
        settle(300);
    } else {
        note("the view has neither WriteTmiToFile(QString) nor a SaveFile button; saving skipped");
    }
    if (!QFileInfo::exists(file)) {
        note("no .tmi was written; the viewer steps are skipped");
        view->hide();
        m_window.disconnectTerminal();
        return;
    }
    m_written << file;
    view->hide();
    const struct
    {
        quint32 kind;
        const char* className;
        const char* shot;
    } viewers[]
        = { { 0, "ZRK_Widget_Tmi_Page", "tmi_file_page" }, { 1, "ZRK_Widget_Tmi_Table", "tmi_file_table" } };
    for (const auto& v : viewers) {
        m_window.openTelemetryFile(file, v.kind);
        settle(300);
        QWidget* w = topLevel(v.className);
        if (!w) {
            std::fprintf(stderr, "zrk-host demo: no %s after 2103 kind %u\n", v.className, v.kind);
            continue;
        }
        w->move(60, 60);
        w->show();
        grab(w, QLatin1String(v.shot));
        w->hide();
    }
    m_window.disconnectTerminal();
}

#pragma once

#include "zrk/zrk_host_api.h"

#include "config_model/config_diff.h"
#include "config_model/config_document.h"
#include "config_model/config_session.h"
#include "config_ui/zrk_config_editing.h"

#include <QByteArray>
#include <QDialog>

class ZRK_Widget_Config_Full;
class ZRK_Widget_Config_Light;
namespace Ui {
class ZRK_Designer_Widget_Config;
}

// The configuration window: one per plug-in, created hidden by the device object and never
// deleted while the library is loaded. The device object routes the host's configuration
// messages to the operations below (virtual, so that a test can watch the routing).
//
// It holds the open configuration (zrk::ConfigSession) with its undo history, and shows it in the
// full editor (a tab per page) or the light editor, both views of the same configuration. It opens
// a configuration from a file, from the terminal or as a new one, saves it, shows what a write
// will change on the terminal before handing it to the host, keeps a dated copy of everything
// read from the terminal, compares, and asks before unsaved changes are dropped.
class ZRK_Widget_Config : public QDialog
{
    Q_OBJECT
    Q_PROPERTY(bool deviceConnected READ isDeviceConnected)

public:
    explicit ZRK_Widget_Config(QWidget* parent = nullptr);
    ~ZRK_Widget_Config() override;

    bool isDeviceConnected() const { return m_connected; }

    virtual void deviceConnect();
    virtual void deviceDisconnect();
    virtual void translateForm();

    virtual void openConfig(szConfigFile* file, szConfigParam& configParam);
    // Closes the window and tells the host; false when the user refused to close.
    virtual bool closeWidgetConfig();
    virtual void saveConfigToDevice();
    virtual void readConfigFromDevice();
    virtual void openConfigPage(quint32 page);
    virtual void getFileConfigure(QString& name);
    virtual void setCE_ProgramInfo(QByteArray* data);
    virtual void setWindowCEClosed();
    virtual void setWindowFocus();
    virtual void addUserParamCE(const QString& name);
    virtual void addUserParamListCE(const QString& name);
    virtual void delUserParamCE(const QString& name);
    virtual void delUserParamListCE(const QString& name);

    // Device replies, forwarded to the page that asked.
    virtual void receiveDataTest(QByteArray* data);
    virtual void receiveDtpTest(szDtpKRAI* result);
    virtual void receiveDtpProtection(quint8 value);
    virtual void receiveDtpFileRead_V3(bool ok);
    virtual void receiveTM(quint64 code);
    virtual void receiveAnalogValue(szAnalogValue* value);
    virtual void receiveAdValueFuel(szADValue* value);
    virtual void receiveAdValueFuel_UN(szADValue_UN* value);
    virtual void receiveAccelParam(szAccelParam* param);
    virtual void receiveAccelBrake(quint8 step, quint8 result);
    virtual void receiveAccelReset(szAccelReset* result);
    virtual void receiveAccelAclC(szCmdAccelParam* param);
    virtual void receiveBluetoothCancelRez(quint8 value);
    virtual void receiveBluetoothRez(quint8 value);
    virtual void receiveBluetoothDevice(szBluetoothDevice* device);
    virtual void receiveCurrentDispValue(quint32 value);
    virtual void receive_CanlogCurNum(qint32 value);
    virtual void receive_TM_File_Info_V3(quint32 size, quint8 type);
    virtual void receive_TM_ReadFile_V3(bool ok, const QString& file);
    virtual void receive_TM_WriteFile_V3(bool ok);
    virtual void receive_CurCanFile(QByteArray* data, const QString& name);
    virtual void receive_SD_File(QByteArray* data);
    virtual void receive_Camera_Info(QByteArray* data);
    virtual void receive_PhotoInfo_SD_File(QByteArray* data);

    // Editor switching: show one, or hand the document over and show the other.
    void showWidgetConfigFull();
    void showWidgetConfigLight();
    void changeConfigWidgetToFull();
    void changeConfigWidgetToLight();
    bool isFullEditorShown() const;

    // What the buttons do, without dialogs; each is one undoable step.
    void newConfig();
    // Opens a file; false (with a message) when it does not load, and nothing changes.
    bool openFile(const QString& path);
    // Saves the configuration; false (with a message) when the file cannot be written.
    bool saveFile(const QString& path);
    void resetToDefaults();
    void undo();
    void redo();
    QVector<zrk::ConfigDifference> compareWithFile(const QString& path, bool* ok = nullptr);
    // Against the copy kept of the configuration last read from the terminal.
    QVector<zrk::ConfigDifference> compareWithLastRead(bool* ok = nullptr);
    // The dated copies of configurations read from terminals, newest first.
    QVector<zrk::ReadCopy> readHistory() const;
    // What writing to the connected terminal would change there: from the configuration last read
    // from it (or a new configuration's defaults when none was), to the open one.
    QVector<zrk::ConfigDifference> pendingWrite() const;

    // The configuration as it is saved.
    QByteArray currentXml();
    // For the header of a saved telemetry file, from the configuration open in the window (shown
    // or not): the names of the inputs, outputs and temperature sensors and the user-parameter
    // types (1-, 2-, 4-, 8-byte). False, with nothing set, before a configuration was opened.
    bool openFileTitles(zrk::DeviceTitles* titles, QStringList* userParamTypes);
    // Brings the title in line with the unsaved mark (kept for callers; the mark follows every edit).
    void updateModified();
    bool isModified() const { return m_editing.session().isModified(); }
    QString currentFile() const { return m_editing.session().filePath(); }
    QString lastReadCopy() const { return m_lastReadCopy; }
    ZRK_Widget_Config_Full* widgetFull() const { return m_full; }
    ZRK_Widget_Config_Light* widgetLight() const { return m_light; }
    zrk::ConfigSession& session() { return m_editing.session(); }
    const zrk::ConfigSession& session() const { return m_editing.session(); }
    QUndoStack& undoStack() { return m_editing.undoStack(); }

    enum class UnsavedAnswer
    {
        Save,
        Discard,
        Cancel,
    };

protected:
    // The user's side of the window; a test answers them itself.
    virtual UnsavedAnswer askUnsavedChanges();
    virtual void showMessage(const QString& text);
    virtual QString chooseFileToOpen();
    virtual QString chooseFileToSave();
    virtual void showDifferences(const QVector<zrk::ConfigDifference>& differences, const QString& against);
    // Shows what the write will change on the terminal; true to write.
    virtual bool confirmWrite(const QVector<zrk::ConfigDifference>& differences, const QString& against);
    // One of the dated copies, or "" when the user chose none.
    virtual QString chooseReadCopy(const QVector<zrk::ReadCopy>& copies);

    void closeEvent(QCloseEvent* event) override;
    void reject() override;

private slots:
    void slot_pressed_New();
    void slot_pressed_Open();
    void slot_pressed_Save();
    void slot_pressed_SaveAs();
    void slot_pressed_Read();
    void slot_pressed_Load();
    void slot_pressed_Defaults();
    void slot_pressed_Editor();
    void slot_toggled_ReviewBeforeWrite(bool on);

private:
    // Takes a configuration as one undoable step; false with a message, everything kept as it was.
    bool loadConfiguration(const QString& path, zrk::ConfigSource source);
    void keepReadCopy(const QString& path);
    void applyHeader();
    void setTitleName(const QString& name);
    void updateTitle();
    void updateButtons();
    void moveButtonsToToolBar();
    // Asks about unsaved changes; false when the window must stay open.
    bool confirmClose();
    QString deviceType() const;
    QString terminalId() const;
    QString loadErrorText(const QString& path, const QString& reason) const;

    Ui::ZRK_Designer_Widget_Config* ui;
    ZRK_Config_Editing m_editing;
    ZRK_Widget_Config_Full* m_full = nullptr;
    ZRK_Widget_Config_Light* m_light = nullptr;
    bool m_connected = false;
    QString m_titleName; // what follows the device type in the title; empty before the first open
    QString m_lastReadCopy; // the dated copy of the configuration last read from the terminal
    bool m_closeConfirmed = false;
};

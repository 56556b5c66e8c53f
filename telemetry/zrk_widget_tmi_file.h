#pragma once

#include "telemetry/tmi_record_model.h"

#include <QWidget>

#include <functional>
#include <memory>

class ZRK_Form_TMI_Ext;
class ZRK_Form_TMI_Orba3;
namespace Ui {
class ZRK_Designer_Tmi_Page;
class ZRK_Designer_Tmi_Table;
} // namespace Ui

// The viewers of a saved telemetry file, as a page or as a table, opened by host message 2103. One
// of each per plug-in, created on first need by the device object and never deleted while the
// library is loaded.
class ZRK_Widget_Tmi_File : public QWidget
{
    Q_OBJECT

public:
    ~ZRK_Widget_Tmi_File() override;

    virtual void showForm();
    // Reads the file and shows its records. A file with a fault is reported, and the records read
    // before the fault are shown when the user wants them; otherwise the view stays as it was.
    virtual void setFileTmi(const QString& name);
    virtual void translateForm() = 0;

    const QString& fileName() const { return m_fileName; }

    // Asks whether to show the good records of a file with a fault (message: what is wrong);
    // goodRecords 0: only tells. A message box unless replaced (tests answer for the user).
    std::function<bool(const QString& message, int goodRecords)> askShowGoodRecords;

protected:
    ZRK_Widget_Tmi_File(const char* objectName, QWidget* parent);
    virtual void setRecords(zrk::tmi::RecordStore&& store) = 0;
    // A message box over this window (tests replace askShowGoodRecords, which it goes through).
    void tell(const QString& message);

private:
    QString m_fileName;
};

// One record at a time: first, previous, next, last, a record by its number or by its time.
class ZRK_Widget_Tmi_Page : public ZRK_Widget_Tmi_File
{
    Q_OBJECT

public:
    explicit ZRK_Widget_Tmi_Page(QWidget* parent = nullptr);
    ~ZRK_Widget_Tmi_Page() override;
    void translateForm() override;

    int recordCount() const { return m_store.size(); }
    int currentIndex() const { return m_current; } // -1: none
    // Shows record index (clamped to the file); nothing for an empty file.
    void showRecord(int index);
    // Shows the first record whose own time is not before moment; false (nothing changes) when
    // there is none.
    bool showRecordAtTime(const QDateTime& moment);

protected:
    void setRecords(zrk::tmi::RecordStore&& store) override;

private slots:
    void slot_pressed_First();
    void slot_pressed_Prev();
    void slot_pressed_Next();
    void slot_pressed_Last();
    void slot_pressed_GoNumber();
    void slot_pressed_GoTime();

private:
    void fillRecordView(const QByteArray& record);
    void updateNavigation();

    std::unique_ptr<Ui::ZRK_Designer_Tmi_Page> m_ui;
    zrk::tmi::RecordStore m_store;
    int m_current = -1;
    ZRK_Form_TMI_Orba3* m_form = nullptr; // created on the first current record
    ZRK_Form_TMI_Ext* m_formExt = nullptr; // created on the first extended record
};

// One row per record: chosen columns, sorting, a filter by event code and time, CSV/KML export
// of the rows shown.
struct ZrkMapTrackPoint;

class ZRK_Widget_Tmi_Table : public ZRK_Widget_Tmi_File
{
    Q_OBJECT

public:
    explicit ZRK_Widget_Tmi_Table(QWidget* parent = nullptr);
    ~ZRK_Widget_Tmi_Table() override;
    void translateForm() override;

    zrk::tmi::TmiRecordModel* model() const { return m_model; }
    // The filter of the form's fields: codes as numbers separated by commas or spaces (empty: any);
    // false with the reason when the codes are not numbers.
    bool applyFilter(
        const QString& codes, bool byTime, const QDateTime& from, const QDateTime& to, QString* why);
    void setFieldShown(int no, bool shown);
    // The rows shown, in their order, as CSV or KML.
    bool exportShown(const QString& path, bool kml, QString* error);
    // The positions of the rows shown, in their order, as a track for the map.
    QVector<ZrkMapTrackPoint> shownTrack() const;

protected:
    void setRecords(zrk::tmi::RecordStore&& store) override;

private slots:
    void slot_pressed_ApplyFilter();
    void slot_pressed_ResetFilter();
    void slot_pressed_Columns();
    void slot_pressed_ExportCsv();
    void slot_pressed_ExportKml();
    void slot_pressed_ShowOnMap();

private:
    void updateCount();
    void exportWithDialog(bool kml);

    std::unique_ptr<Ui::ZRK_Designer_Tmi_Table> m_ui;
    zrk::tmi::TmiRecordModel* m_model;
    QVector<int> m_present; // fields any record carries: the column chooser's choice
};

#pragma once

#include <QVector>
#include <QWidget>

#include <functional>
#include <memory>

class OrbaPage;
class QTableWidget;
class QAction;
class QLabel;
class QTableView;
class QTreeWidget;
class QTreeWidgetItem;
namespace Ui {
class ZRK_Designer_Form_TMI_Orba3;
}

// The record form of versions 1 to 3: tabs as a technician reads a record, their rows made from
// the field table once, and each record only changing the texts that differ. Only the open tab
// follows each record; the others catch up with the last record when they are opened, so a live
// stream of records costs one tab's rows. A version-1 or version-2 record leaves the rows of the
// fields its version lacks hidden.
class ZRK_Form_TMI_Orba3 : public QWidget
{
    Q_OBJECT

public:
    // Host texts of event codes (2310) and diagnostic codes (2313).
    using EventText = std::function<QString(quint16)>;
    using DiagnosticText = std::function<QString(quint8)>;

    explicit ZRK_Form_TMI_Orba3(QWidget* parent = nullptr);
    ~ZRK_Form_TMI_Orba3() override;

    void setTextSources(EventText eventText, DiagnosticText diagnosticText);
    // Absent fields: hidden, or shown as "n/a" in grey.
    void setHideAbsent(bool hide);
    bool hideAbsent() const { return m_hideAbsent; }
    // The form keeps the page until the next one, for the tabs not yet brought up to date.
    void setPage(std::shared_ptr<const OrbaPage> page);
    void translateForm();

    // The value text the form shows for field no (sub < 0) or for sub-value sub of it, its tab
    // brought up to date first; for tests and the production check.
    QString shownText(int no, int sub = -1);
    bool isRowHidden(int no);
    int tabCount() const;
    // How many row texts the last record changed on the open tab.
    int lastChangedCount() const { return m_changed; }
    // The raw tab as text, brought up to date first: the field set, then the body as hex lines;
    // what its copy action copies.
    QString rawText();

private:
    enum class Kind
    {
        Field,
        Sub,
        EventCode, // Code with the host's event text
        TimeUtc, // Time with the workstation's UTC offset
        Lamp, // one output as a lamp
        Diagnostic, // a diagnostic code with the host's text
    };
    struct Row
    {
        QTreeWidgetItem* item;
        int tab;
        int field;
        int sub; // -1 for the field itself
        Kind kind;
        QString text;
        int state = -1; // -1 never shown, 0 absent, 1 present, 2 beyond the version
    };
    void buildTabs();
    void addFieldRows(QTreeWidget* tree, int no);
    // Brings tab up to date with the kept page, if it is not already.
    void refreshTab(int tab);
    void updateRow(Row& row, const OrbaPage& page);
    void updateTyres(const OrbaPage& page);
    void updateRaw(const OrbaPage& page);
    QString rowText(const Row& row, const OrbaPage& page) const;

    std::unique_ptr<Ui::ZRK_Designer_Form_TMI_Orba3> ui;
    QVector<Row> m_rows;
    QVector<int> m_fieldRow; // first row of each field, -1 when no tab shows it
    QTableWidget* m_tyres = nullptr;
    QVector<QString> m_tyreTexts;
    QVector<int> m_tyreState;
    class RawBytesModel;
    QWidget* m_raw = nullptr;
    QLabel* m_rawFields = nullptr;
    QTableView* m_rawBytes = nullptr;
    RawBytesModel* m_rawModel = nullptr;
    QAction* m_rawCopy = nullptr;
    int m_rawVersion = -1;
    QVector<int> m_tabTitleIds;
    std::shared_ptr<const OrbaPage> m_page;
    QVector<bool> m_tabStale; // per tab: the kept page is not shown on it yet
    EventText m_eventText;
    DiagnosticText m_diagnosticText;
    bool m_hideAbsent = false;
    int m_changed = 0;
};

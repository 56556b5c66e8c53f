#pragma once

#include "config_ui/zrk_form_config_page.h"

#include <QStringList>

class CXMLWorkData;
class CXmlTagV2;
class QTreeWidgetItem;
class ZRK_Config_Editing;
namespace Ui {
class ZRK_Designer_Form_Config_Other;
}

// The terminal's settings that no page of this editor owns: every top-level branch of a loaded
// configuration that the pages do not write, and the root's keys other than the header. The open
// configuration keeps them as they were read and writes them back after the pages' branches; this
// page shows them as a tree the user can filter, and a value edited here is an undoable edit.
class ZRK_Form_Config_Other : public ZRK_Form_Config_Page
{
    Q_OBJECT

public:
    explicit ZRK_Form_Config_Other(QWidget* parent = nullptr);
    ~ZRK_Form_Config_Other() override;

    void applyCaps() override;
    void translateForm() override;
    void initForm() override;
    QString getTabTitle() const override { return m_tabTitle; }
    void setDefaultParam() override;
    // The configuration keeps the branches itself: reading and writing add nothing here.
    void readFormParam(CXMLWorkData*) override { }
    void writeFormParam(CXMLWorkData*) override { }
    void deviceConnect() override { }
    void deviceDisconnect() override { }
    void setFormEnabled(bool enabled) override;

    // The configuration shown; null shows nothing.
    void setEditing(ZRK_Config_Editing* editing);
    // Shows the configuration's kept branches again (it was replaced or a kept value changed).
    void refresh();
    // Shows one kept value again (an edit, its undo or redo).
    void showValue(const QString& path, const QString& key);
    QStringList keptBranchNames() const;

    // Shows only the rows whose node, key or value contains the text (case ignored), with their
    // parents; a matching node shows all of its rows.
    void setFilter(const QString& text);
    // Whether the row of that key is shown under the current filter.
    bool isRowShown(const QString& path, const QString& key) const;
    // Sets the value of the key at "BRANCH/NODE" (empty path: the root's own keys), as the user's
    // edit; false when the node or the key does not exist.
    bool setKeptValue(const QString& path, const QString& key, const QString& value);

private slots:
    void slot_textChanged_lineEdit_Filter(const QString& text);
    void slot_itemChanged_treeWidget_Other(QTreeWidgetItem* item, int column);

protected:
    void showEvent(QShowEvent* event) override;

private:
    void rebuildTree();
    void ensureTree() const;
    void applyFilter();
    QTreeWidgetItem* elementItem(QTreeWidgetItem* parent, CXmlTagV2* tag) const;
    bool filterItem(QTreeWidgetItem* item, const QString& text, bool parentMatched);
    QTreeWidgetItem* findItem(const QString& path, const QString& key) const;
    const CXmlTagV2* shownRoot() const;

    Ui::ZRK_Designer_Form_Config_Other* ui;
    ZRK_Config_Editing* m_editing = nullptr;
    QString m_tabTitle;
    bool m_filling = false;
    bool m_treeStale = true;
};

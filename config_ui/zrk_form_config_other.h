#pragma once

#include <QStringList>
#include <QWidget>

#include <memory>

class CXMLWorkData;
class CXmlTagV2;
class QTreeWidgetItem;
namespace Ui {
class ZRK_Designer_Form_Config_Other;
}

// The terminal's settings that no page of this editor owns: every top-level branch of a loaded
// configuration that the pages do not write, and the root's keys other than the header. They are
// kept as they were read, shown as a tree the user can filter and edit, and written back after the
// pages' branches, so a configuration read from the terminal goes back to it with nothing lost.
class ZRK_Form_Config_Other : public QWidget
{
    Q_OBJECT

public:
    explicit ZRK_Form_Config_Other(QWidget* parent = nullptr);
    ~ZRK_Form_Config_Other() override;

    void applyCaps();
    void translateForm();
    void initForm();
    QString getTabTitle() const { return m_tabTitle; }
    void setDefaultParam();
    void readFormParam(CXMLWorkData* root);
    void writeFormParam(CXMLWorkData* root);
    void deviceConnect() { }
    void deviceDisconnect() { }
    void setFormEnabled(bool enabled);
    void setTabIndex(int index) { m_tabIndex = index; }
    int getTabIndex() const { return m_tabIndex; }

    // The top-level branches the other pages write; everything else in a loaded file is kept here.
    void setOwnedTopNodes(const QStringList& names) { m_owned = names; }
    QStringList ownedTopNodes() const { return m_owned; }
    // The kept branches (a holder named "DEVICE": its keys and children).
    const CXmlTagV2* keptBranches() const { return m_kept.get(); }
    QStringList keptBranchNames() const;

    // Shows only the rows whose node, key or value contains the text (case ignored), with their
    // parents; a matching node shows all of its rows.
    void setFilter(const QString& text);
    // Whether the row of that key is shown under the current filter.
    bool isRowShown(const QString& path, const QString& key) const;
    // Sets the value of the key at "BRANCH/NODE" (empty path: the root's own keys); false when the
    // node or the key does not exist.
    bool setKeptValue(const QString& path, const QString& key, const QString& value);

signals:
    void keptValueEdited();

private slots:
    void slot_textChanged_lineEdit_Filter(const QString& text);
    void slot_itemChanged_treeWidget_Other(QTreeWidgetItem* item, int column);

protected:
    void showEvent(QShowEvent* event) override;

private:
    void rebuildTree();
    void ensureTree() const;
    void applyFilter();
    static QTreeWidgetItem* elementItem(QTreeWidgetItem* parent, CXmlTagV2* tag);
    bool filterItem(QTreeWidgetItem* item, const QString& text, bool parentMatched);
    QTreeWidgetItem* findItem(const QString& path, const QString& key) const;

    Ui::ZRK_Designer_Form_Config_Other* ui;
    std::unique_ptr<CXmlTagV2> m_kept;
    QStringList m_owned;
    QString m_tabTitle;
    int m_tabIndex = -1;
    bool m_filling = false;
    bool m_treeStale = true;
};

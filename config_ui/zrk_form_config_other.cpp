#include "config_ui/zrk_form_config_other.h"

#include "config_model/config_document.h"
#include "config_model/config_session.h"
#include "config_model/xml_tag.h"
#include "config_model/xml_workdata.h"
#include "config_ui/zrk_config_editing.h"

#include "ui_zrk_form_config_other.h"

#include <QHeaderView>
#include <QShowEvent>

namespace {

enum ItemRole
{
    PathRole = Qt::UserRole, // the node the row's key belongs to
    KeyRole, // the key; empty on a node's own row
};

constexpr int kNodeColumn = 0;
constexpr int kKeyColumn = 1;
constexpr int kValueColumn = 2;

// The form's texts (the .ui carries their ids).
[[maybe_unused]] const char* const kFormTexts[] = {
    //% "Настройки терминала, для которых в этом редакторе нет страницы. Они сохраняются и записываются в "
    //% "терминал без изменений; значения можно править (двойной щелчок по строке)."
    QT_TRID_NOOP("cfgx_002"),
    //% "Фильтр:"
    QT_TRID_NOOP("cfgx_003"),
    //% "Показать только узлы, ключи и значения, содержащие этот текст"
    QT_TRID_NOOP("cfgx_004"),
    //% "Разделы конфигурации, которые терминал прислал сверх страниц редактора"
    QT_TRID_NOOP("cfgx_005"),
    //% "Узел"
    QT_TRID_NOOP("cfgx_006"),
    //% "Ключ"
    QT_TRID_NOOP("cfgx_007"),
    //% "Значение"
    QT_TRID_NOOP("cfgx_008"),
};

// A row of a key: its node's path and the key, so that an edit names the value it changes.
void bindKey(QTreeWidgetItem* item, const QString& path, const QString& key)
{
    item->setData(kNodeColumn, PathRole, path);
    item->setData(kNodeColumn, KeyRole, key);
    item->setFlags(item->flags() | Qt::ItemIsEditable);
}

} // namespace

ZRK_Form_Config_Other::ZRK_Form_Config_Other(QWidget* parent)
    : ZRK_Form_Config_Page(parent)
    , ui(new Ui::ZRK_Designer_Form_Config_Other)
{
    ui->setupUi(this);
    applyCaps();
    translateForm();
    initForm();
}

ZRK_Form_Config_Other::~ZRK_Form_Config_Other()
{
    delete ui;
}

void ZRK_Form_Config_Other::applyCaps() { }

void ZRK_Form_Config_Other::translateForm()
{
    ui->retranslateUi(this);
    //% "Прочие настройки"
    m_tabTitle = qtTrId("cfgx_001");
}

void ZRK_Form_Config_Other::initForm()
{
    ui->treeWidget_Other->header()->setSectionResizeMode(kNodeColumn, QHeaderView::ResizeToContents);
    ui->treeWidget_Other->header()->setSectionResizeMode(kKeyColumn, QHeaderView::ResizeToContents);
    connect(ui->lineEdit_Filter, &QLineEdit::textChanged, this,
        &ZRK_Form_Config_Other::slot_textChanged_lineEdit_Filter);
    connect(ui->treeWidget_Other, &QTreeWidget::itemChanged, this,
        &ZRK_Form_Config_Other::slot_itemChanged_treeWidget_Other);
    // Only the value column is edited; node and key names stay as the terminal sent them.
    connect(ui->treeWidget_Other, &QTreeWidget::itemActivated, this, [this](QTreeWidgetItem* item) {
        if (item->flags() & Qt::ItemIsEditable)
            ui->treeWidget_Other->editItem(item, kValueColumn);
    });
}

// Defaults leave what the terminal had beyond the pages: nothing to do here.
void ZRK_Form_Config_Other::setDefaultParam() { }

void ZRK_Form_Config_Other::setEditing(ZRK_Config_Editing* editing)
{
    m_editing = editing;
    refresh();
}

void ZRK_Form_Config_Other::refresh()
{
    rebuildTree();
}

void ZRK_Form_Config_Other::showValue(const QString& path, const QString& key)
{
    if (m_treeStale || !m_editing)
        return; // built from the configuration when next looked at
    QTreeWidgetItem* item = findItem(path, key);
    const QString value = m_editing->session().value(path, key);
    if (!item || item->text(kValueColumn) == value)
        return;
    m_filling = true;
    item->setText(kValueColumn, value);
    m_filling = false;
}

void ZRK_Form_Config_Other::setFormEnabled(bool enabled)
{
    ui->treeWidget_Other->setEnabled(enabled);
}

const CXmlTagV2* ZRK_Form_Config_Other::shownRoot() const
{
    return m_editing ? m_editing->session().root() : nullptr;
}

QStringList ZRK_Form_Config_Other::keptBranchNames() const
{
    return m_editing ? m_editing->session().keptBranchNames() : QStringList();
}

void ZRK_Form_Config_Other::rebuildTree()
{
    // The tree is built when it is first looked at: a configuration read from the terminal need
    // not wait for rows nobody sees.
    m_treeStale = true;
    if (isVisible())
        ensureTree();
}

void ZRK_Form_Config_Other::ensureTree() const
{
    if (!m_treeStale)
        return;
    auto* self = const_cast<ZRK_Form_Config_Other*>(this);
    self->m_treeStale = false;
    self->m_filling = true;
    QTreeWidget* tree = ui->treeWidget_Other;
    tree->clear();
    const CXmlTagV2* root = shownRoot();
    const QStringList owned = zrk::ConfigSession::ownedTopNodes();
    const QStringList& header = zrk::configHeaderKeys();
    // Items are built detached and added at once, which spares the view a notification per row.
    QList<QTreeWidgetItem*> top;
    QTreeWidgetItem* rootItem = nullptr;
    if (!root) {
        self->m_filling = false;
        return;
    }
    for (const CXmlTagV2* attr : root->values) {
        if (header.contains(attr->name))
            continue;
        // The root's own keys come first, under the root's name.
        if (!rootItem) {
            rootItem = new QTreeWidgetItem(QStringList(root->name));
            top << rootItem;
        }
        bindKey(new QTreeWidgetItem(rootItem, { QString(), attr->name, attr->value }), QString(), attr->name);
    }
    for (CXmlTagV2* child : root->children) {
        if (!owned.contains(child->name))
            top << elementItem(nullptr, child);
    }
    tree->addTopLevelItems(top);
    tree->expandToDepth(1);
    self->m_filling = false;
    self->applyFilter();
}

QTreeWidgetItem* ZRK_Form_Config_Other::elementItem(QTreeWidgetItem* parent, CXmlTagV2* tag) const
{
    if (parent && tag->values.isEmpty() && tag->children.isEmpty()) {
        auto* item = new QTreeWidgetItem(parent, { QString(), tag->name, tag->value });
        bindKey(item, parent->data(kNodeColumn, PathRole).toString(), tag->name);
        return item;
    }
    auto* item = parent ? new QTreeWidgetItem(parent, QStringList(tag->name))
                        : new QTreeWidgetItem(QStringList(tag->name));
    const QString path = zrk::pathOf(tag);
    item->setData(kNodeColumn, PathRole, path);
    for (CXmlTagV2* attr : tag->values)
        bindKey(new QTreeWidgetItem(item, { QString(), attr->name, attr->value }), path, attr->name);
    for (CXmlTagV2* child : tag->children)
        elementItem(item, child);
    return item;
}
void ZRK_Form_Config_Other::showEvent(QShowEvent* event)
{
    ensureTree();
    QWidget::showEvent(event);
}

void ZRK_Form_Config_Other::setFilter(const QString& text)
{
    if (ui->lineEdit_Filter->text() != text) {
        ui->lineEdit_Filter->setText(text); // comes back here through the slot
        return;
    }
    ensureTree();
    applyFilter();
}

void ZRK_Form_Config_Other::applyFilter()
{
    const QString needle = ui->lineEdit_Filter->text().trimmed();
    for (int i = 0; i < ui->treeWidget_Other->topLevelItemCount(); ++i)
        filterItem(ui->treeWidget_Other->topLevelItem(i), needle, false);
    if (!needle.isEmpty())
        ui->treeWidget_Other->expandAll();
}

bool ZRK_Form_Config_Other::isRowShown(const QString& path, const QString& key) const
{
    QTreeWidgetItem* item = findItem(path, key);
    for (QTreeWidgetItem* at = item; at; at = at->parent()) {
        if (at->isHidden())
            return false;
    }
    return item != nullptr;
}

bool ZRK_Form_Config_Other::filterItem(QTreeWidgetItem* item, const QString& text, bool parentMatched)
{
    bool matched = text.isEmpty() || parentMatched;
    for (int c = kNodeColumn; !matched && c <= kValueColumn; ++c)
        matched = item->text(c).contains(text, Qt::CaseInsensitive);
    bool childVisible = false;
    for (int i = 0; i < item->childCount(); ++i)
        childVisible = filterItem(item->child(i), text, matched) || childVisible;
    const bool visible = matched || childVisible;
    item->setHidden(!visible);
    return visible;
}

QTreeWidgetItem* ZRK_Form_Config_Other::findItem(const QString& path, const QString& key) const
{
    ensureTree();
    QList<QTreeWidgetItem*> stack;
    for (int i = 0; i < ui->treeWidget_Other->topLevelItemCount(); ++i)
        stack << ui->treeWidget_Other->topLevelItem(i);
    QTreeWidgetItem* found = nullptr;
    while (!stack.isEmpty()) {
        QTreeWidgetItem* item = stack.takeFirst();
        // The last entry of a key is the one written.
        if (!key.isEmpty() && item->data(kNodeColumn, KeyRole).toString() == key
            && item->data(kNodeColumn, PathRole).toString() == path)
            found = item;
        for (int i = 0; i < item->childCount(); ++i)
            stack << item->child(i);
    }
    return found;
}

bool ZRK_Form_Config_Other::setKeptValue(const QString& path, const QString& key, const QString& value)
{
    QTreeWidgetItem* item = findItem(path, key);
    if (!item)
        return false;
    item->setText(kValueColumn, value); // the tree's change notification stores it
    return true;
}

void ZRK_Form_Config_Other::slot_textChanged_lineEdit_Filter(const QString& text)
{
    setFilter(text);
}

void ZRK_Form_Config_Other::slot_itemChanged_treeWidget_Other(QTreeWidgetItem* item, int column)
{
    if (m_filling || column != kValueColumn || !m_editing)
        return;
    const QString key = item->data(kNodeColumn, KeyRole).toString();
    if (key.isEmpty())
        return;
    // Stored as typed (no second decoding); the configuration tells the views back.
    m_editing->setValue(item->data(kNodeColumn, PathRole).toString(), key, item->text(kValueColumn));
}

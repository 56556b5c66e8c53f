#include "config_ui/zrk_form_config_other.h"

#include "config_model/config_document.h"
#include "config_model/xml_tag.h"
#include "config_model/xml_workdata.h"

#include "ui_zrk_form_config_other.h"

#include <QHeaderView>
#include <QShowEvent>

namespace {

enum ItemRole
{
    TagRole = Qt::UserRole, // the CXmlTagV2 the row shows
    KindRole, // RowKind
};

enum RowKind
{
    ElementRow,
    AttributeRow, // one attribute entry: key and value
    TextRow, // an element holding only a text: its name is the key
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

CXmlTagV2* tagOf(const QTreeWidgetItem* item)
{
    return reinterpret_cast<CXmlTagV2*>(item->data(kNodeColumn, TagRole).value<quintptr>());
}

void bindRow(QTreeWidgetItem* item, CXmlTagV2* tag, RowKind kind)
{
    item->setData(kNodeColumn, TagRole, QVariant::fromValue(reinterpret_cast<quintptr>(tag)));
    item->setData(kNodeColumn, KindRole, kind);
    if (kind != ElementRow)
        item->setFlags(item->flags() | Qt::ItemIsEditable);
}

} // namespace

ZRK_Form_Config_Other::ZRK_Form_Config_Other(QWidget* parent)
    : QWidget(parent)
    , ui(new Ui::ZRK_Designer_Form_Config_Other)
    , m_kept(zrk::extractUnowned(nullptr, {}))
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

void ZRK_Form_Config_Other::setDefaultParam()
{
    m_kept = zrk::extractUnowned(nullptr, {});
    rebuildTree();
}

void ZRK_Form_Config_Other::readFormParam(CXMLWorkData* root)
{
    if (!root)
        return;
    m_kept = zrk::extractUnowned(root->tag(), m_owned);
    rebuildTree();
}

void ZRK_Form_Config_Other::writeFormParam(CXMLWorkData* root)
{
    if (!root)
        return;
    zrk::appendKept(root->tag(), m_kept.get());
}

void ZRK_Form_Config_Other::setFormEnabled(bool enabled)
{
    ui->treeWidget_Other->setEnabled(enabled);
}

QStringList ZRK_Form_Config_Other::keptBranchNames() const
{
    return zrk::topNodeNames(m_kept.get());
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
    // Items are built detached and added at once, which spares the view a notification per row.
    QList<QTreeWidgetItem*> top;
    if (!m_kept->values.isEmpty()) {
        // The root's own keys come first, under the root's name.
        auto* rootItem = new QTreeWidgetItem(QStringList(m_kept->name));
        bindRow(rootItem, m_kept.get(), ElementRow);
        for (CXmlTagV2* attr : m_kept->values)
            bindRow(
                new QTreeWidgetItem(rootItem, { QString(), attr->name, attr->value }), attr, AttributeRow);
        top << rootItem;
    }
    for (CXmlTagV2* child : m_kept->children)
        top << elementItem(nullptr, child);
    tree->addTopLevelItems(top);
    tree->expandToDepth(1);
    self->m_filling = false;
    self->applyFilter();
}

QTreeWidgetItem* ZRK_Form_Config_Other::elementItem(QTreeWidgetItem* parent, CXmlTagV2* tag)
{
    if (parent && tag->values.isEmpty() && tag->children.isEmpty()) {
        auto* item = new QTreeWidgetItem(parent, { QString(), tag->name, tag->value });
        bindRow(item, tag, TextRow);
        return item;
    }
    auto* item = parent ? new QTreeWidgetItem(parent, QStringList(tag->name))
                        : new QTreeWidgetItem(QStringList(tag->name));
    bindRow(item, tag, ElementRow);
    for (CXmlTagV2* attr : tag->values)
        bindRow(new QTreeWidgetItem(item, { QString(), attr->name, attr->value }), attr, AttributeRow);
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
    const CXmlTagV2* node = path.isEmpty() ? m_kept.get() : zrk::childAt(m_kept.get(), path);
    if (!node)
        return nullptr;
    const CXmlTagV2* target = nullptr;
    for (const CXmlTagV2* attr : node->values) {
        if (attr->name == key)
            target = attr; // the last entry of a name is the one written
    }
    if (!target) {
        const CXmlTagV2* child = node->children.getTagFromName(key);
        if (child && child->values.isEmpty() && child->children.isEmpty())
            target = child;
    }
    if (!target)
        return nullptr;
    QList<QTreeWidgetItem*> stack;
    for (int i = 0; i < ui->treeWidget_Other->topLevelItemCount(); ++i)
        stack << ui->treeWidget_Other->topLevelItem(i);
    while (!stack.isEmpty()) {
        QTreeWidgetItem* item = stack.takeLast();
        if (tagOf(item) == target)
            return item;
        for (int i = 0; i < item->childCount(); ++i)
            stack << item->child(i);
    }
    return nullptr;
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
    if (m_filling || column != kValueColumn)
        return;
    const int kind = item->data(kNodeColumn, KindRole).toInt();
    if (kind != AttributeRow && kind != TextRow)
        return;
    CXmlTagV2* tag = tagOf(item);
    if (!tag || tag->value == item->text(kValueColumn))
        return;
    tag->value = item->text(kValueColumn); // stored as typed: no second decoding
    emit keptValueEdited();
}

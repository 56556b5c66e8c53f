#include "config_ui/zrk_dialog_config_compare.h"

#include "ui_zrk_dialog_config_compare.h"

#include <QCheckBox>
#include <QHeaderView>
#include <QLayout>
#include <QPushButton>

// The form's texts (the .ui carries their ids).
[[maybe_unused]] const char* const kFormTexts[] = {
    //% "Сравнение конфигураций"
    QT_TRID_NOOP("cmpc_001"),
    //% "Раздел / узел"
    QT_TRID_NOOP("cmpc_002"),
    //% "Ключ"
    QT_TRID_NOOP("cmpc_003"),
    //% "Название"
    QT_TRID_NOOP("cmpc_004"),
    //% "В редакторе"
    QT_TRID_NOOP("cmpc_005"),
    //% "В другой"
    QT_TRID_NOOP("cmpc_006"),
};

ZRK_Dialog_Config_Compare::ZRK_Dialog_Config_Compare(QWidget* parent)
    : QDialog(parent)
    , ui(new Ui::ZRK_Designer_Dialog_Config_Compare)
{
    ui->setupUi(this);
    // Names fit their texts; the two values share the rest, long ones (the record mask) elided in
    // the middle with the whole value in the tooltip.
    QHeaderView* header = ui->treeWidget_Differences->header();
    header->setSectionResizeMode(QHeaderView::ResizeToContents);
    header->setSectionResizeMode(3, QHeaderView::Stretch);
    header->setSectionResizeMode(4, QHeaderView::Stretch);
    ui->treeWidget_Differences->setTextElideMode(Qt::ElideMiddle);
}

ZRK_Dialog_Config_Compare::~ZRK_Dialog_Config_Compare()
{
    delete ui;
}

void ZRK_Dialog_Config_Compare::setDifferences(
    const QVector<zrk::ConfigDifference>& differences, const QString& against)
{
    //% "Сравнение с: %1"
    setWindowTitle(qtTrId("cmpc_007").arg(against));
    //% "Различий нет."
    const QString none = qtTrId("cmpc_008");
    //% "Различий: %1"
    const QString some = qtTrId("cmpc_009");
    ui->label_Summary->setText(differences.isEmpty() ? none : some.arg(differences.size()));
    fill(differences);
}

void ZRK_Dialog_Config_Compare::setReview(
    const QVector<zrk::ConfigDifference>& differences, const QString& against)
{
    //% "Запись в терминал: что изменится"
    setWindowTitle(qtTrId("cmpc_012"));
    //% "Сравнение с: %1.\nВ терминале ничего не изменится: записываемая конфигурация совпадает."
    const QString none = qtTrId("cmpc_013").arg(against);
    //% "Сравнение с: %1.\nВ терминале изменится настроек: %2. Записать?"
    const QString some = qtTrId("cmpc_014").arg(against).arg(differences.size());
    ui->label_Summary->setText(differences.isEmpty() ? none : some);
    QTreeWidgetItem* header = ui->treeWidget_Differences->headerItem();
    //% "Сейчас в терминале"
    header->setText(3, qtTrId("cmpc_015"));
    //% "Будет записано"
    header->setText(4, qtTrId("cmpc_016"));
    ui->buttonBox->setStandardButtons(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    //% "Записать в терминал"
    ui->buttonBox->button(QDialogButtonBox::Ok)->setText(qtTrId("cmpc_017"));
    //% "Отмена"
    ui->buttonBox->button(QDialogButtonBox::Cancel)->setText(qtTrId("cmpc_018"));
    connect(ui->buttonBox, &QDialogButtonBox::accepted, this, &QDialog::accept, Qt::UniqueConnection);
    if (!m_reviewAgain) {
        //% "Показывать этот обзор перед каждой записью"
        m_reviewAgain = new QCheckBox(qtTrId("cmpc_019"), this);
        m_reviewAgain->setObjectName(QStringLiteral("checkBox_ReviewAgain"));
        m_reviewAgain->setChecked(true);
        layout()->addWidget(m_reviewAgain);
    }
    fill(differences);
}

bool ZRK_Dialog_Config_Compare::reviewAgain() const
{
    return !m_reviewAgain || m_reviewAgain->isChecked();
}

QString ZRK_Dialog_Config_Compare::summary() const
{
    return ui->label_Summary->text();
}

void ZRK_Dialog_Config_Compare::fill(const QVector<zrk::ConfigDifference>& differences)
{
    QTreeWidget* tree = ui->treeWidget_Differences;
    tree->clear();
    //% "(нет)"
    const QString absent = qtTrId("cmpc_010");
    //% "(корень)"
    const QString rootName = qtTrId("cmpc_011");
    QHash<QString, QTreeWidgetItem*> branches;
    for (const zrk::ConfigDifference& d : differences) {
        const QString branch = d.node.isEmpty() ? rootName : d.node.section(QLatin1Char('/'), 0, 0);
        QTreeWidgetItem*& top = branches[branch];
        if (!top) {
            top = new QTreeWidgetItem(tree, QStringList(branch));
            top->setFirstColumnSpanned(true);
        }
        const QString rest = d.node.section(QLatin1Char('/'), 1);
        auto* row = new QTreeWidgetItem(top,
            { rest.isEmpty() ? QString() : rest, d.key, d.label, d.inLeft ? d.left : absent,
                d.inRight ? d.right : absent });
        row->setToolTip(3, row->text(3));
        row->setToolTip(4, row->text(4));
    }
    tree->expandAll();
}

int ZRK_Dialog_Config_Compare::rowCount() const
{
    int rows = 0;
    for (int i = 0; i < ui->treeWidget_Differences->topLevelItemCount(); ++i)
        rows += ui->treeWidget_Differences->topLevelItem(i)->childCount();
    return rows;
}

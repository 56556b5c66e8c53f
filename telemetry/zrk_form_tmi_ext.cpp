#include "telemetry/zrk_form_tmi_ext.h"

#include "telemetry/orba_field_labels.h"
#include "telemetry/tmipage_orba3.h"
#include "ui_zrk_form_tmi_ext.h"

#include <QFontDatabase>
#include <QTextStream>

// The Russian texts of the ids the form file carries (uic passes the ids on as they are).
[[maybe_unused]] const char* const kFormTextIds[] = {
    //% "Расширенная запись"
    QT_TRID_NOOP("tmio_030"),
    //% "Поле"
    QT_TRID_NOOP("tmio_031"),
    //% "Значение"
    QT_TRID_NOOP("tmio_032"),
    //% "Тип"
    QT_TRID_NOOP("tmio_033"),
    //% "Размер"
    QT_TRID_NOOP("tmio_034"),
};

ZRK_Form_TMI_Ext::ZRK_Form_TMI_Ext(QWidget* parent)
    : QWidget(parent)
    , ui(new Ui::ZRK_Designer_Form_TMI_Ext)
{
    ui->setupUi(this);
    setObjectName(QStringLiteral("ZRK_Form_TMI_Ext"));
    // The system's fixed font rather than a family named by a literal: Qt's font cache keeps such a
    // name after the plug-in is unloaded, and the literal's bytes go with the plug-in.
    QFont fixed = QFontDatabase::systemFont(QFontDatabase::FixedFont);
    fixed.setPointSize(9);
    ui->ExtXml->setFont(fixed);
    // One row per head value, made once; a record changes only their texts.
    for (int id = 0; id < orba::kExtCount; ++id) {
        auto* item = new QTreeWidgetItem(ui->ExtHead, QStringList { orba::extFieldLabel(id), QString() });
        item->setToolTip(0, QLatin1String(orba::kExtFields[id].name));
    }
    ui->ExtHead->resizeColumnToContents(0);
    ui->ExtHead->header()->resizeSection(0, qBound(180, ui->ExtHead->columnWidth(0) + 8, 320));
}

ZRK_Form_TMI_Ext::~ZRK_Form_TMI_Ext() = default;

void ZRK_Form_TMI_Ext::setPage(const TmiPage_Orba3& page)
{
    for (int id = 0; id < orba::kExtCount; ++id) {
        QTreeWidgetItem* item = ui->ExtHead->topLevelItem(id);
        const QString text = orba::extFieldText(id, page.extTMI());
        if (item->text(1) != text)
            item->setText(1, text);
    }
    ui->ExtDynamic->clear();
    for (const orba::DynamicItem& d : page.getDynamicItems_Ext()) {
        const QString value = d.type == 2 ? d.text : QString::number(d.number);
        new QTreeWidgetItem(
            ui->ExtDynamic, QStringList { QString::number(d.type), QString::number(d.size), value });
    }
    QString xml;
    QTextStream out(&xml);
    page.getXmlPageExt(out);
    out.flush();
    ui->ExtXml->setPlainText(xml);
}

QString ZRK_Form_TMI_Ext::xmlText() const
{
    return ui->ExtXml->toPlainText();
}

int ZRK_Form_TMI_Ext::dynamicCount() const
{
    return ui->ExtDynamic->topLevelItemCount();
}

#include "config_ui/zrk_widget_config_light.h"

#include "config_model/config_document.h"
#include "config_model/config_keys.h"
#include "config_model/orba_fieldset.h"
#include "config_ui/zrk_config_editing.h"

#include "ui_zrk_widget_config_light.h"

#include <QComboBox>
#include <QScopedValueRollback>
#include <QSpinBox>

namespace {

// The form's texts (the .ui carries their ids).
[[maybe_unused]] const char* const kFormTexts[] = {
    //% "Основные настройки записи трека. Остальные настройки конфигурации сохраняются без изменений."
    QT_TRID_NOOP("cfgl_001"),
    //% "Период записи в движении, с:"
    QT_TRID_NOOP("cfgl_002"),
    //% "Интервал между точками трека в движении, от 0 до 99999 с"
    QT_TRID_NOOP("cfgl_003"),
    //% "Дистанция, м:"
    QT_TRID_NOOP("cfgl_004"),
    //% "Точка трека через каждые N метров, от 1 до 10000 м"
    QT_TRID_NOOP("cfgl_005"),
    //% "Угол поворота, °:"
    QT_TRID_NOOP("cfgl_006"),
    //% "Точка трека при повороте на этот угол, от 1 до 90°"
    QT_TRID_NOOP("cfgl_007"),
    //% "Период записи на стоянке, с:"
    QT_TRID_NOOP("cfgl_008"),
    //% "Интервал между точками трека на стоянке, от 0 до 99999 с"
    QT_TRID_NOOP("cfgl_009"),
    //% "Поколение протокола:"
    QT_TRID_NOOP("cfgl_010"),
    //% "Формат записей телеметрии ORBA: 1, 2 или 3"
    QT_TRID_NOOP("cfgl_011"),
};

} // namespace

ZRK_Widget_Config_Light::ZRK_Widget_Config_Light(ZRK_Config_Editing* editing, QWidget* parent)
    : QWidget(parent)
    , ui(new Ui::ZRK_Designer_Widget_Config_Light)
    , m_editing(editing)
{
    ui->setupUi(this);
    for (int i = 0; i < 3; ++i)
        ui->comboBox_FlashFormat->addItem(QString());
    translateForm();
    const QVector<zrk::cfg::BranchDecl>& branches = zrk::cfg::declaredBranches();
    for (int b = 0; b < branches.size(); ++b) {
        for (int i = 0; i < branches[b].keys.size(); ++i) {
            const zrk::cfg::KeyDecl& d = branches[b].keys[i];
            QWidget* widget = d.lightWidget.isEmpty() ? nullptr : findChild<QWidget*>(d.lightWidget);
            if (!widget)
                continue;
            const QString node
                = d.group.isEmpty() ? branches[b].top : branches[b].top + QLatin1Char('/') + d.group;
            m_shown.append({ node, d.key, b, i, widget });
            const Shown shown = m_shown.last();
            if (auto* box = qobject_cast<QSpinBox*>(widget)) {
                box->setRange(d.min, d.max);
                connect(
                    box, qOverload<int>(&QSpinBox::valueChanged), this, [this, shown] { takeEdit(shown); });
            } else if (auto* combo = qobject_cast<QComboBox*>(widget)) {
                connect(combo, qOverload<int>(&QComboBox::currentIndexChanged), this,
                    [this, shown] { takeEdit(shown); });
            }
        }
    }
    zrk::ConfigSession& session = m_editing->session();
    connect(
        &session, &zrk::ConfigSession::documentReplaced, this, &ZRK_Widget_Config_Light::showConfiguration);
    connect(
        &session, &zrk::ConfigSession::valueChanged, this, [this](const QString& node, const QString& key) {
            for (const Shown& shown : qAsConst(m_shown)) {
                if (shown.node == node && shown.key == key)
                    showOne(shown);
            }
        });
    showConfiguration();
}

ZRK_Widget_Config_Light::~ZRK_Widget_Config_Light()
{
    delete ui;
}

void ZRK_Widget_Config_Light::translateForm()
{
    ui->retranslateUi(this);
    //% "Поколение 1 (ORBA 1)"
    ui->comboBox_FlashFormat->setItemText(0, qtTrId("cfgl_012"));
    //% "Поколение 2 (ORBA 2)"
    ui->comboBox_FlashFormat->setItemText(1, qtTrId("cfgl_013"));
    //% "Поколение 3 (ORBA 3)"
    ui->comboBox_FlashFormat->setItemText(2, qtTrId("cfgl_014"));
}

void ZRK_Widget_Config_Light::showConfiguration()
{
    for (const Shown& shown : qAsConst(m_shown))
        showOne(shown);
}

void ZRK_Widget_Config_Light::showOne(const Shown& shown)
{
    const QScopedValueRollback<bool> filling(m_filling, true);
    const QString v = m_editing->session().value(shown.node, shown.key);
    // A box already showing the value is left alone: setting it again redraws its text.
    if (auto* box = qobject_cast<QSpinBox*>(shown.widget)) {
        if (box->value() != v.toInt())
            box->setValue(v.toInt());
    } else if (auto* combo = qobject_cast<QComboBox*>(shown.widget)) {
        combo->setCurrentIndex(zrk::fieldset::generationIndex(v)); // the field-set page's reading
    }
}

QString ZRK_Widget_Config_Light::widgetValue(const Shown& shown) const
{
    if (auto* box = qobject_cast<QSpinBox*>(shown.widget))
        return QString::number(box->value());
    if (auto* combo = qobject_cast<QComboBox*>(shown.widget))
        return zrk::fieldset::generationText(combo->currentIndex());
    return QString();
}

void ZRK_Widget_Config_Light::takeEdit(const Shown& shown)
{
    if (!m_filling)
        m_editing->setValue(shown.node, shown.key, widgetValue(shown));
}

const ZRK_Widget_Config_Light::Shown* ZRK_Widget_Config_Light::find(const QString& key) const
{
    for (const Shown& shown : m_shown) {
        if (shown.key == key)
            return &shown;
    }
    return nullptr;
}

QString ZRK_Widget_Config_Light::value(const QString& key) const
{
    const Shown* shown = find(key);
    return shown ? widgetValue(*shown) : QString();
}

bool ZRK_Widget_Config_Light::setValue(const QString& key, const QString& value)
{
    const Shown* shown = find(key);
    if (!shown)
        return false;
    if (auto* box = qobject_cast<QSpinBox*>(shown->widget))
        box->setValue(value.toInt()); // the box clamps to its range
    else if (auto* combo = qobject_cast<QComboBox*>(shown->widget))
        combo->setCurrentIndex(zrk::fieldset::generationIndex(value));
    return true;
}

void ZRK_Widget_Config_Light::setDefaultValues()
{
    QVector<ZRK_Config_Editing::Change> changes;
    for (const Shown& shown : qAsConst(m_shown)) {
        const zrk::cfg::KeyDecl& d = zrk::cfg::declaredBranches()[shown.branch].keys[shown.index];
        changes.append({ shown.node, shown.key, d.resetValue });
    }
    m_editing->setValues(changes);
}

bool ZRK_Widget_Config_Light::saveConfigLight(const QString& path, QString* error)
{
    return zrk::writeFileWhole(path, m_editing->session().render(), error);
}

void ZRK_Widget_Config_Light::setFormEnabled(bool enabled)
{
    for (QWidget* w : findChildren<QWidget*>())
        w->setEnabled(enabled);
}

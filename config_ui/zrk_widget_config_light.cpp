#include "config_ui/zrk_widget_config_light.h"

#include "config_model/config_document.h"
#include "config_model/serialize.h"
#include "config_model/xml_tag.h"

#include "ui_zrk_widget_config_light.h"

#include <QSpinBox>

namespace {

// The keys the light form edits: where they live and what a file without them means.
struct LightKey
{
    const char* key; // also the form's value name
    const char* top;
    const char* group;
    const char* readDefault;
};

constexpr LightKey kLightKeys[] = {
    { "moveTimer", "TRACK", "POINTS", "60" },
    { "dist", "TRACK", "POINTS", "500" },
    { "angle", "TRACK", "POINTS", "5" },
    { "stopTimer", "TRACK", "POINTS", "600" },
    { "format", "PROTOCOL", "ORBA", "10" },
};
constexpr char kFormatKey[] = "format";
// The protocol generations in the order of the combo box.
constexpr const char* kFormats[] = { "10", "20", "30" };

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

ZRK_Widget_Config_Light::ZRK_Widget_Config_Light(QWidget* parent)
    : QWidget(parent)
    , ui(new Ui::ZRK_Designer_Widget_Config_Light)
{
    ui->setupUi(this);
    for (int i = 0; i < 3; ++i)
        ui->comboBox_FlashFormat->addItem(QString());
    translateForm();
    setDocument(QByteArray());
    for (QSpinBox* box : findChildren<QSpinBox*>())
        connect(box, qOverload<int>(&QSpinBox::valueChanged), this, &ZRK_Widget_Config_Light::contentEdited);
    connect(ui->comboBox_FlashFormat, qOverload<int>(&QComboBox::currentIndexChanged), this,
        &ZRK_Widget_Config_Light::contentEdited);
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

bool ZRK_Widget_Config_Light::OpenFileXml(const QString& path, QString* error)
{
    zrk::ConfigLoadResult loaded = zrk::loadConfigFile(path);
    if (!loaded.doc) {
        if (error)
            *error = loaded.error;
        return false;
    }
    m_doc = std::move(loaded.doc);
    takeValuesFromDocument();
    return true;
}

bool ZRK_Widget_Config_Light::setDocument(const QByteArray& text, QString* error)
{
    if (text.isEmpty()) {
        // An empty document still has its root, so that saving always yields a configuration.
        m_doc = std::make_unique<CSerialize>(0, nullptr);
        m_doc->startSerialize();
        m_doc->createNodeV2(nullptr, QStringLiteral("DEVICE"), 0);
        takeValuesFromDocument();
        return true;
    }
    zrk::ConfigLoadResult loaded = zrk::loadConfigBytes(text);
    if (!loaded.doc) {
        if (error)
            *error = loaded.error;
        return false;
    }
    m_doc = std::move(loaded.doc);
    takeValuesFromDocument();
    return true;
}

void ZRK_Widget_Config_Light::adoptDocument(std::unique_ptr<CSerialize> doc)
{
    if (!doc || !doc->root()) {
        setDocument(QByteArray());
        return;
    }
    m_doc = std::move(doc);
    takeValuesFromDocument();
}

QString ZRK_Widget_Config_Light::value(const QString& key) const
{
    if (key == QLatin1String(kFormatKey))
        return QLatin1String(kFormats[qBound(0, ui->comboBox_FlashFormat->currentIndex(), 2)]);
    const QSpinBox* box
        = findChild<QSpinBox*>(QStringLiteral("spinBox_") + key.left(1).toUpper() + key.mid(1));
    return box ? QString::number(box->value()) : QString();
}

bool ZRK_Widget_Config_Light::setValue(const QString& key, const QString& value)
{
    if (key == QLatin1String(kFormatKey)) {
        for (int i = 0; i < 3; ++i) {
            if (value == QLatin1String(kFormats[i])) {
                ui->comboBox_FlashFormat->setCurrentIndex(i);
                return true;
            }
        }
        // An unknown generation reads as the first one, as the field-set page does.
        ui->comboBox_FlashFormat->setCurrentIndex(0);
        return false;
    }
    QSpinBox* box = findChild<QSpinBox*>(QStringLiteral("spinBox_") + key.left(1).toUpper() + key.mid(1));
    if (!box)
        return false;
    box->setValue(value.toInt()); // the box clamps to its range
    return true;
}

void ZRK_Widget_Config_Light::setDefaultValues()
{
    // For these keys the reset values are the read defaults.
    for (const LightKey& k : kLightKeys)
        setValue(QLatin1String(k.key), QLatin1String(k.readDefault));
}

void ZRK_Widget_Config_Light::takeValuesFromDocument()
{
    const CXmlTagV2* root = m_doc ? m_doc->root() : nullptr;
    for (const LightKey& k : kLightKeys) {
        const CXmlTagV2* group
            = zrk::childAt(root, QStringLiteral("%1/%2").arg(QLatin1String(k.top), QLatin1String(k.group)));
        QString v = zrk::keyValue(group, QLatin1String(k.key));
        if (v.isEmpty())
            v = QLatin1String(k.readDefault);
        setValue(QLatin1String(k.key), v);
    }
}

void ZRK_Widget_Config_Light::putValuesIntoDocument()
{
    if (!m_doc)
        setDocument(QByteArray());
    CXmlTagV2* root = m_doc->root();
    for (const LightKey& k : kLightKeys) {
        const QString top = QLatin1String(k.top);
        CXmlTagV2* topTag = root->children.getTagFromName(top);
        if (!topTag) {
            topTag = zrk::ensureChild(root, top, CXmlTagV2::Ordinary);
            zrk::setKeyValue(topTag, QStringLiteral("page"), top);
        }
        CXmlTagV2* group = zrk::ensureChild(topTag, QLatin1String(k.group), CXmlTagV2::Record);
        zrk::setKeyValue(group, QLatin1String(k.key), value(QLatin1String(k.key)));
    }
}

QByteArray ZRK_Widget_Config_Light::renderDocument()
{
    putValuesIntoDocument();
    return m_doc->render();
}

bool ZRK_Widget_Config_Light::saveConfigLight(const QString& path, QString* error)
{
    return zrk::writeFileWhole(path, renderDocument(), error);
}

void ZRK_Widget_Config_Light::setFormEnabled(bool enabled)
{
    for (QWidget* w : findChildren<QWidget*>())
        w->setEnabled(enabled);
}

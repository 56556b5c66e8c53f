#include "config_ui/zrk_widget_config_full.h"

#include "config_model/config_document.h"
#include "config_model/config_keys.h"
#include "config_model/serialize.h"
#include "config_model/xml_tag.h"
#include "config_model/xml_workdata.h"
#include "config_ui/zrk_form_config_ainf.h"
#include "config_ui/zrk_form_config_orba3.h"
#include "config_ui/zrk_form_config_other.h"
#include "config_ui/zrk_form_config_track.h"
#include "device/zrk_device_k7140.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QScopedValueRollback>
#include <QSpinBox>
#include <QTabWidget>
#include <QTreeWidget>
#include <QVBoxLayout>

#include <algorithm>
#include <cstring>
#include <memory>

namespace {

constexpr char kProtocolPath[] = "PROTOCOL/ORBA";
constexpr char kFormatKey[] = "format";

// Page values of 2383 that a page passes on to its own sub-tabs.
constexpr quint32 kFieldSetTabFirst = 201;
constexpr quint32 kFieldSetTabLast = 210;
constexpr quint32 kAccelTabFirst = 901;
constexpr quint32 kAccelTabLast = 903;

} // namespace

int ZRK_Widget_Config_Full::pageNumberOf(quint32 value)
{
    if (value >= kFieldSetTabFirst && value <= kFieldSetTabLast)
        return ZRK_Widget_Config_Full::PageFieldSet;
    if (value >= kAccelTabFirst && value <= kAccelTabLast)
        return ZRK_Widget_Config_Full::PageAccel;
    // 12 and 13 have no page in any model; everything past 18 is no page number at all.
    if (value == 0 || value == 12 || value == 13 || value > 18)
        return ZRK_Widget_Config_Full::PageNone;
    return static_cast<int>(value);
}

template <typename P>
ZRK_Widget_Config_Full::Page& ZRK_Widget_Config_Full::addPage(P* page, int order, int number)
{
    Page p;
    p.widget = page;
    p.order = order;
    p.number = number;
    p.title = [page] { return page->getTabTitle(); };
    p.translate = [page] { page->translateForm(); };
    p.setDefault = [page] { page->setDefaultParam(); };
    p.connectDevice = [page] { page->deviceConnect(); };
    p.disconnectDevice = [page] { page->deviceDisconnect(); };
    p.read = [page](CXMLWorkData* root) { page->readFormParam(root); };
    p.write = [page](CXMLWorkData* root) { page->writeFormParam(root); };
    p.setEnabled = [page](bool on) { page->setFormEnabled(on); };
    p.setTabIndex = [page](int index) { page->setTabIndex(index); };
    const int index = insertPage(p);
    watchForEdits(page);
    return m_pages[index];
}

int ZRK_Widget_Config_Full::insertPage(const Page& page)
{
    // Write order decides the position in the list; tabs follow the same order.
    auto at = std::upper_bound(
        m_pages.begin(), m_pages.end(), page.order, [](int o, const Page& other) { return o < other.order; });
    const int index = static_cast<int>(at - m_pages.begin());
    m_pages.insert(at, page);
    m_tabs->insertTab(index, page.widget, page.title());
    for (int i = 0; i < m_pages.size(); ++i)
        m_pages[i].setTabIndex(m_tabs->indexOf(m_pages[i].widget));
    return index;
}

ZRK_Form_Config_Ainf* ZRK_Widget_Config_Full::ensureGeoPage()
{
    if (m_geo)
        return m_geo;
    m_geo = new ZRK_Form_Config_Ainf(m_geoHolder);
    m_geoHolder->layout()->addWidget(m_geo);
    m_geo->setTabIndex(m_tabs->indexOf(m_geoHolder));
    if (m_connected)
        m_geo->deviceConnect();
    else
        m_geo->deviceDisconnect();
    m_tabs->setTabText(m_tabs->indexOf(m_geoHolder), m_geo->getTabTitle());
    watchForEdits(m_geo);
    return m_geo;
}

ZRK_Widget_Config_Full::ZRK_Widget_Config_Full(QWidget* parent)
    : QWidget(parent)
    , m_tabs(new QTabWidget(this))
{
    setObjectName(QStringLiteral("ZRK_Widget_Config_Full"));
    m_tabs->setObjectName(QStringLiteral("tabWidget_Pages"));
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_tabs);

    m_fieldSet = new ZRK_Form_Config_Orba3(m_tabs);
    m_fieldSet->setFormCreate();
    addPage(m_fieldSet, OrderFieldSet, PageFieldSet).openSubTab
        = [this](int value) { m_fieldSet->openTab(value); };

    m_track = new ZRK_Form_Config_Track(m_tabs);
    addPage(m_track, OrderTrack, PageTrack);
    connect(
        m_track, &ZRK_Form_Config_Track::openTabAccelRequested, this, &ZRK_Widget_Config_Full::openTabAccel);
    connect(m_track, &ZRK_Form_Config_Track::openTabRSRequested, this, &ZRK_Widget_Config_Full::openTabRS);
    connect(m_track, &ZRK_Form_Config_Track::speedingParamChanged, this,
        &ZRK_Widget_Config_Full::setSpeedingParam);

    // The geo page keeps its data in a file of its own and writes nothing into the configuration;
    // its tab holds the page once it is opened.
    m_geoHolder = new QWidget(m_tabs);
    m_geoHolder->setObjectName(QStringLiteral("ZRK_Form_Config_Ainf_Holder"));
    auto* holderLayout = new QVBoxLayout(m_geoHolder);
    holderLayout->setContentsMargins(0, 0, 0, 0);
    Page geo;
    geo.widget = m_geoHolder;
    geo.order = OrderGeo;
    geo.title = [this] {
        //% "Геозоны"
        return m_geo ? m_geo->getTabTitle() : qtTrId("wcfg_036");
    };
    geo.translate = [this] {
        if (m_geo)
            m_geo->translateForm();
    };
    geo.setDefault = [this] {
        if (m_geo)
            m_geo->setDefaultParam();
    };
    geo.connectDevice = [this] {
        if (m_geo)
            m_geo->deviceConnect();
    };
    geo.disconnectDevice = [this] {
        if (m_geo)
            m_geo->deviceDisconnect();
    };
    geo.read = [this](CXMLWorkData* root) {
        if (m_geo)
            m_geo->readFormParam(root);
    };
    geo.write = [this](CXMLWorkData* root) {
        if (m_geo)
            m_geo->writeFormParam(root);
    };
    geo.setEnabled = [this](bool on) {
        if (m_geo)
            m_geo->setFormEnabled(on);
    };
    geo.setTabIndex = [this](int index) {
        if (m_geo)
            m_geo->setTabIndex(index);
    };
    insertPage(geo);
    connect(m_tabs, &QTabWidget::currentChanged, this, [this](int index) {
        if (m_tabs->widget(index) == m_geoHolder)
            ensureGeoPage();
    });

    m_other = new ZRK_Form_Config_Other(m_tabs);
    addPage(m_other, OrderKept, PageNone);
    connect(m_other, &ZRK_Form_Config_Other::keptValueEdited, this, &ZRK_Widget_Config_Full::contentEdited);
    m_other->setOwnedTopNodes(ownedTopNodes());
}

ZRK_Widget_Config_Full::~ZRK_Widget_Config_Full() = default;

void ZRK_Widget_Config_Full::watchForEdits(QWidget* page)
{
    // Any change of any input marks the configuration for a fresh comparison with the saved one;
    // the window decides whether it really differs, so pages need nothing of their own.
    auto edited = [this] {
        if (!m_filling)
            emit contentEdited();
    };
    for (QAbstractButton* b : page->findChildren<QAbstractButton*>())
        connect(b, &QAbstractButton::toggled, this, edited);
    for (QSpinBox* s : page->findChildren<QSpinBox*>())
        connect(s, qOverload<int>(&QSpinBox::valueChanged), this, edited);
    for (QDoubleSpinBox* s : page->findChildren<QDoubleSpinBox*>())
        connect(s, qOverload<double>(&QDoubleSpinBox::valueChanged), this, edited);
    for (QLineEdit* e : page->findChildren<QLineEdit*>())
        connect(e, &QLineEdit::textEdited, this, edited);
    for (QComboBox* c : page->findChildren<QComboBox*>())
        connect(c, qOverload<int>(&QComboBox::currentIndexChanged), this, edited);
    for (QPlainTextEdit* e : page->findChildren<QPlainTextEdit*>())
        connect(e, &QPlainTextEdit::textChanged, this, edited);
    for (QAbstractItemView* v : page->findChildren<QAbstractItemView*>()) {
        if (v->model())
            connect(v->model(), &QAbstractItemModel::dataChanged, this, edited);
    }
}

void ZRK_Widget_Config_Full::translateForm()
{
    for (const Page& p : m_pages) {
        p.translate();
        m_tabs->setTabText(m_tabs->indexOf(p.widget), p.title());
    }
}

void ZRK_Widget_Config_Full::deviceConnect()
{
    m_connected = true;
    for (const Page& p : m_pages)
        p.connectDevice();
}

void ZRK_Widget_Config_Full::deviceDisconnect()
{
    m_connected = false;
    for (const Page& p : m_pages)
        p.disconnectDevice();
}

void ZRK_Widget_Config_Full::setFormEnabled(bool enabled)
{
    for (const Page& p : m_pages)
        p.setEnabled(enabled);
}

void ZRK_Widget_Config_Full::initDefaultParam(bool keepOther)
{
    const QScopedValueRollback<bool> filling(m_filling, true);
    for (const Page& p : m_pages) {
        if (!(keepOther && p.widget == m_other))
            p.setDefault();
    }
}

bool ZRK_Widget_Config_Full::OpenFileXml(const QString& path, szConfigParam& configParam, QString* error)
{
    zrk::ConfigLoadResult loaded = zrk::loadConfigFile(path);
    if (!loaded.doc) {
        if (error)
            *error = loaded.error;
        return false;
    }
    readDocument(loaded.doc.get(), &configParam);
    return true;
}

bool ZRK_Widget_Config_Full::OpenFileXml(const QString& path, QString* error)
{
    szConfigParam unused {};
    return OpenFileXml(path, unused, error);
}

void ZRK_Widget_Config_Full::readDocument(CSerialize* doc, szConfigParam* configParam)
{
    if (!doc || !doc->root())
        return;
    if (configParam) {
        // The protocol generation is what the telemetry view needs to know of the configuration.
        const QByteArray format = zrk::keyValue(
            zrk::childAt(doc->root(), QLatin1String(kProtocolPath)), QLatin1String(kFormatKey))
                                      .toLocal8Bit()
                                      .left(ZRK_CONFIG_PARAM_SIZE - 1);
        std::memset(configParam->text, 0, sizeof configParam->text);
        std::memcpy(configParam->text, format.constData(), static_cast<size_t>(format.size()));
    }
    // Values set by reading are no edits.
    const QScopedValueRollback<bool> filling(m_filling, true);
    // The unowned branches are taken before any page creates its missing nodes.
    CXMLWorkData root(doc, zrk::cfg::kRootNode);
    m_other->readFormParam(&root);
    for (const Page& p : m_pages) {
        if (p.widget != m_other)
            p.read(&root);
    }
    m_fieldSet->readUserParam(&root);
}

void ZRK_Widget_Config_Full::writeHeader(CXMLWorkData* root)
{
    QString model = QString::fromLatin1(zrk::cfg::kDefaultModel);
    QString vendor = QString::fromLatin1(zrk::cfg::kDefaultVendor);
    QString version = QString::fromLatin1(zrk::cfg::kVersionText);
    if (lpGlobalDevice) {
        szLibraryInfo info {};
        lpGlobalDevice->getModuleInfo(&info);
        model = lpGlobalDevice->getDeviceType();
        vendor = lpGlobalDevice->getDeviceVendor();
        version = QString::asprintf("%d.%d.%d", info.hostValues[0], info.hostValues[1], info.hostValues[2]);
    }
    root->writeString(zrk::cfg::kHeaderModel, model);
    root->writeString(zrk::cfg::kHeaderVersion, version);
    root->writeString(zrk::cfg::kHeaderCreator, zrk::cfg::kCreatorText);
    root->writeString(zrk::cfg::kHeaderVendor, vendor);
}

void ZRK_Widget_Config_Full::writePages(CXMLWorkData* root)
{
    // The kept branches follow the pages; the user parameters are always last.
    for (const Page& p : m_pages)
        p.write(root);
    m_fieldSet->writeUserParam(root);
}

QByteArray ZRK_Widget_Config_Full::renderXml()
{
    CSerialize doc(0, nullptr);
    doc.startSerialize();
    {
        CXMLWorkData root(&doc, zrk::cfg::kRootNode);
        root.clearNode();
        writeHeader(&root);
        writePages(&root);
        root.writeParameters();
    }
    return doc.render();
}

bool ZRK_Widget_Config_Full::SaveFileXml(const QString& path, QString* error)
{
    return zrk::writeFileWhole(path, renderXml(), error);
}

QStringList ZRK_Widget_Config_Full::ownedTopNodes()
{
    if (m_owned.isEmpty()) {
        // What the pages write, asked of the pages themselves: a page that writes a branch owns it.
        CSerialize doc(0, nullptr);
        doc.startSerialize();
        CXMLWorkData root(&doc, zrk::cfg::kRootNode);
        writePages(&root);
        m_owned = zrk::topNodeNames(doc.root());
    }
    return m_owned;
}

bool ZRK_Widget_Config_Full::isSubTabValue(quint32 value)
{
    return (value >= kFieldSetTabFirst && value <= kFieldSetTabLast)
        || (value >= kAccelTabFirst && value <= kAccelTabLast);
}

QWidget* ZRK_Widget_Config_Full::pageForNumber(int number) const
{
    if (number == PageNone)
        return nullptr;
    for (const Page& p : m_pages) {
        if (p.number == number)
            return p.widget;
    }
    return nullptr;
}

QWidget* ZRK_Widget_Config_Full::pageForValue(quint32 value) const
{
    return pageForNumber(pageNumberOf(value));
}

bool ZRK_Widget_Config_Full::openPage(quint32 value)
{
    const int number = pageNumberOf(value);
    for (const Page& p : m_pages) {
        if (number == PageNone || p.number != number)
            continue;
        m_tabs->setCurrentWidget(p.widget);
        if (p.openSubTab)
            p.openSubTab(static_cast<int>(value));
        return true;
    }
    return false;
}

void ZRK_Widget_Config_Full::openTabAccel()
{
    openPage(PageAccel);
}

void ZRK_Widget_Config_Full::openTabRS()
{
    // The serial peripherals page (6) is not part of this model's editor.
    openPage(6);
}

void ZRK_Widget_Config_Full::setSpeedingParam(bool) { }

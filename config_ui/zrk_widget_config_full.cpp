#include "config_ui/zrk_widget_config_full.h"

#include "config_model/config_document.h"
#include "config_model/config_keys.h"
#include "config_model/config_session.h"
#include "config_model/orba_fieldset.h"
#include "config_model/serialize.h"
#include "config_model/xml_tag.h"
#include "config_model/xml_workdata.h"
#include "config_ui/zrk_config_editing.h"
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

ZRK_Widget_Config_Full::Page& ZRK_Widget_Config_Full::addPage(
    ZRK_Form_Config_Page* page, int order, int number)
{
    Page p;
    p.widget = page;
    p.form = page;
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
    if (!page->shownBranches().isEmpty())
        watchForEdits(page, [this, page] { takeEdits(page); });
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
    return m_geo;
}

ZRK_Widget_Config_Full::ZRK_Widget_Config_Full(ZRK_Config_Editing* editing, QWidget* parent)
    : QWidget(parent)
    , m_editing(editing)
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
    m_other->setEditing(m_editing);

    zrk::ConfigSession& session = m_editing->session();
    connect(
        &session, &zrk::ConfigSession::documentReplaced, this, &ZRK_Widget_Config_Full::showConfiguration);
    connect(&session, &zrk::ConfigSession::valueChanged, this, &ZRK_Widget_Config_Full::slot_valueChanged);
}

ZRK_Widget_Config_Full::~ZRK_Widget_Config_Full() = default;

void ZRK_Widget_Config_Full::watchForEdits(QWidget* page, const std::function<void()>& edited)
{
    // Any change of any input is compared with the configuration; pages need nothing of their own.
    auto onEdit = [this, edited] {
        if (!m_filling)
            edited();
    };
    for (QAbstractButton* b : page->findChildren<QAbstractButton*>())
        connect(b, &QAbstractButton::toggled, this, onEdit);
    for (QSpinBox* s : page->findChildren<QSpinBox*>())
        connect(s, qOverload<int>(&QSpinBox::valueChanged), this, onEdit);
    for (QDoubleSpinBox* s : page->findChildren<QDoubleSpinBox*>())
        connect(s, qOverload<double>(&QDoubleSpinBox::valueChanged), this, onEdit);
    for (QLineEdit* e : page->findChildren<QLineEdit*>())
        connect(e, &QLineEdit::textEdited, this, onEdit);
    for (QComboBox* c : page->findChildren<QComboBox*>())
        connect(c, qOverload<int>(&QComboBox::currentIndexChanged), this, onEdit);
    for (QPlainTextEdit* e : page->findChildren<QPlainTextEdit*>())
        connect(e, &QPlainTextEdit::textChanged, this, onEdit);
    for (QAbstractItemView* v : page->findChildren<QAbstractItemView*>()) {
        if (v->model())
            connect(v->model(), &QAbstractItemModel::dataChanged, this, onEdit);
    }
}

namespace {

QString nodeOf(const zrk::cfg::BranchDecl& branch, const zrk::cfg::KeyDecl& key)
{
    return key.group.isEmpty() ? branch.top : branch.top + QLatin1Char('/') + key.group;
}

} // namespace

void ZRK_Widget_Config_Full::takeEdits(ZRK_Form_Config_Page* page)
{
    const zrk::ConfigSession& session = m_editing->session();
    QVector<ZRK_Config_Editing::Change> changes;
    const QVector<zrk::cfg::BranchDecl> branches = page->shownBranches();
    for (int b = 0; b < branches.size(); ++b) {
        const zrk::cfg::BranchDecl& decl = branches[b];
        if (decl.keys.isEmpty())
            continue;
        const zrk::cfg::Values shown = page->shownValues(b);
        const zrk::cfg::Values stored = session.branchValues(decl);
        for (int i = 0; i < decl.keys.size() && i < shown.size(); ++i) {
            if (shown[i] != stored.value(i))
                changes.append({ nodeOf(decl, decl.keys[i]), decl.keys[i].key, shown[i] });
        }
    }
    m_editing->setValues(changes);
}

void ZRK_Widget_Config_Full::showBranch(ZRK_Form_Config_Page* page, int branch)
{
    const QScopedValueRollback<bool> filling(m_filling, true);
    const zrk::cfg::BranchDecl decl = page->shownBranches().value(branch);
    page->showValues(branch, m_editing->session().branchValues(decl));
}

void ZRK_Widget_Config_Full::showConfiguration()
{
    zrk::ConfigSession& session = m_editing->session();
    for (const Page& p : qAsConst(m_pages)) {
        if (!p.form)
            continue;
        const QVector<zrk::cfg::BranchDecl> branches = p.form->shownBranches();
        for (int b = 0; b < branches.size(); ++b) {
            const zrk::cfg::BranchDecl& decl = branches[b];
            if (decl.keys.isEmpty())
                continue;
            // A page already showing these values (the same configuration again) is left alone.
            const zrk::cfg::Values stored = session.branchValues(decl);
            if (p.form->shownValues(b) == stored)
                continue;
            showBranch(p.form, b);
            const zrk::cfg::Values shown = p.form->shownValues(b);
            for (int i = 0; i < decl.keys.size() && i < shown.size(); ++i) {
                if (shown[i] != stored.value(i))
                    session.absorbValue(nodeOf(decl, decl.keys[i]), decl.keys[i].key, shown[i]);
            }
        }
    }
    m_other->refresh();
}

void ZRK_Widget_Config_Full::slot_valueChanged(const QString& node, const QString& key)
{
    const QString top = node.section(QLatin1Char('/'), 0, 0);
    for (const Page& p : qAsConst(m_pages)) {
        if (!p.form)
            continue;
        const QVector<zrk::cfg::BranchDecl> branches = p.form->shownBranches();
        for (int b = 0; b < branches.size(); ++b) {
            if (branches[b].top == top && !branches[b].keys.isEmpty()) {
                // A page already showing the value (the user's own edit) is left alone.
                const int i = branches[b].indexOf(node.section(QLatin1Char('/'), 1), key);
                if (i >= 0 && p.form->shownValues(b).value(i) == m_editing->session().value(node, key))
                    return;
                showBranch(p.form, b);
                return;
            }
        }
    }
    m_other->showValue(node, key);
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

void ZRK_Widget_Config_Full::initDefaultParam()
{
    const QScopedValueRollback<bool> filling(m_filling, true);
    for (const Page& p : qAsConst(m_pages))
        p.setDefault();
}

void ZRK_Widget_Config_Full::fillConfigParam(szConfigParam& configParam) const
{
    // The protocol generation is what the telemetry view needs to know of the configuration.
    const QByteArray format = m_editing->session()
                                  .value(QLatin1String(zrk::fieldset::kProtocolNode) + QLatin1Char('/')
                                          + QLatin1String(zrk::fieldset::kOrbaNode),
                                      QLatin1String(zrk::fieldset::kFormatKey))
                                  .toLocal8Bit()
                                  .left(ZRK_CONFIG_PARAM_SIZE - 1);
    std::memset(configParam.text, 0, sizeof configParam.text);
    std::memcpy(configParam.text, format.constData(), static_cast<size_t>(format.size()));
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

#include "config_model/config_session.h"

#include "config_model/orba_fieldset.h"
#include "config_model/serialize.h"
#include "config_model/xml_tag.h"

#include <QDir>
#include <QRegularExpression>
#include <QVarLengthArray>

#include <algorithm>

namespace zrk {

namespace {

constexpr char kReadCopyPrefix[] = "zrk_K7140_read_";
constexpr char kReadCopyDateFormat[] = "yyyy-MM-dd_HH-mm-ss";

std::unique_ptr<CSerialize> emptyDocument()
{
    auto doc = std::make_unique<CSerialize>(0, nullptr);
    doc->startSerialize();
    doc->createNodeV2(nullptr, QLatin1String(cfg::kRootNode), NodeFindOrCreate);
    return doc;
}

// Values as writeBranch writes them: integers in "%d" form, booleans "1" or "0"; missing ones at
// the end take the key's reset value. Normalised values are in that form already.
cfg::Values writtenForm(const cfg::BranchDecl& branch, const cfg::Values& values)
{
    cfg::Values out;
    out.reserve(branch.keys.size());
    for (int i = 0; i < branch.keys.size(); ++i) {
        const cfg::KeyDecl& d = branch.keys[i];
        const QString v = i < values.size() ? values[i] : d.resetValue;
        switch (d.type) {
        case cfg::KeyType::Integer:
            out << QString::number(v.toInt());
            break;
        case cfg::KeyType::Bool:
            out << (v.toInt() != 0 ? QStringLiteral("1") : QStringLiteral("0"));
            break;
        default:
            out << v;
            break;
        }
    }
    return out;
}

// A declared branch as writeBranch leaves it, built straight as elements from values in their
// written form (missing ones at the end take the reset value): the top node with its "page", then one record
// node a group with its keys in declaration order. Values pass the same decoding a committed parameter list
// gives a new attribute.
void appendBranch(CXmlTagV2* root, const cfg::BranchDecl& branch, const cfg::Values& values)
{
    auto attribute = [](CXmlTagV2* tag, const QString& name, const QString& value) {
        auto* attr = new CXmlTagV2(name, QString(), tag);
        // Only "&..." and "_33_" decode: a value without either is taken as it is.
        const bool plain = !value.contains(QLatin1Char('&')) && !value.contains(QLatin1Char('_'));
        attr->value = plain ? value : CXmlTagV2::decodeText(value);
        tag->values.addTag(attr);
    };
    auto* top = new CXmlTagV2(branch.top, QString(), root);
    root->children.addTag(top);
    attribute(top, QLatin1String(cfg::kPageKey), branch.top);
    QVarLengthArray<CXmlTagV2*, 16> nodes;
    for (const QString& group : branch.groups) {
        auto* node = new CXmlTagV2(group, QString(), top);
        node->type = CXmlTagV2::Record;
        top->children.addTag(node);
        nodes.append(node);
    }
    // A group's keys mostly follow one another: the group of the key before is tried first.
    int last = 0;
    for (int i = 0; i < branch.keys.size(); ++i) {
        const cfg::KeyDecl& d = branch.keys[i];
        CXmlTagV2* tag = nullptr;
        if (d.group.isEmpty()) {
            tag = top;
        } else if (last < nodes.size() && branch.groups[last] == d.group) {
            tag = nodes[last];
        } else {
            last = branch.groups.indexOf(d.group);
            tag = last < 0 ? nullptr : nodes[last];
            last = qMax(last, 0);
        }
        // A key whose record node the branch does not list is not written.
        if (tag)
            attribute(tag, d.key, i < values.size() ? values[i] : d.resetValue);
    }
}

cfg::Values userParamValues(const fieldset::UserParams& params)
{
    cfg::Values values;
    for (int g = 0; g < 4; ++g) {
        values << params.types[g].leftJustified(fieldset::kUserCounts[g], QLatin1Char('0'), true);
        for (int i = 0; i < fieldset::kUserCounts[g]; ++i)
            values << params.names[g].value(i);
    }
    return values;
}

// The document in its saved form, from what a file holds (null: a new configuration). Declared
// keys missing from the file take their read defaults, values their declared form; the branches no
// page owns follow as they were, then the user parameters.
std::unique_ptr<CSerialize> normalizedDocument(CSerialize* from)
{
    static const cfg::BranchDecl userBranch = cfg::userParamBranch();
    auto out = emptyDocument();
    CXmlTagV2* target = out->root();
    if (!from) {
        for (const cfg::BranchDecl& b : cfg::declaredBranches())
            appendBranch(target, b, writtenForm(b, cfg::resetValues(b)));
        appendBranch(target, userBranch, userParamValues(fieldset::defaultUserParams()));
        return out;
    }
    // Values are read straight from the source tree; what no page owns is then moved over as it
    // is (the source is thrown away after). The header is the session's own.
    const CXmlTagV2* source = from->root();
    for (const cfg::BranchDecl& b : cfg::declaredBranches()) {
        cfg::Values values = cfg::readBranch(source, b);
        for (int i = 0; i < values.size(); ++i)
            values[i] = cfg::normalizedValue(b.keys[i], values[i]);
        appendBranch(target, b, values);
    }
    const fieldset::UserParams user = fieldset::readUserParams(source);
    const QStringList owned = ConfigSession::ownedTopNodes();
    const QStringList& header = configHeaderKeys();
    QVector<CXmlTagV2*> keptKeys, keptBranches;
    for (CXmlTagV2* attr : source->values) {
        if (!header.contains(attr->name))
            keptKeys << attr;
    }
    for (CXmlTagV2* child : source->children) {
        if (!owned.contains(child->name))
            keptBranches << child;
    }
    for (CXmlTagV2* attr : keptKeys) {
        from->root()->values.deleteTag(attr);
        attr->parent = target;
        target->values.addTag(attr);
    }
    for (CXmlTagV2* child : keptBranches) {
        from->root()->children.deleteTag(child);
        child->parent = target;
        target->children.addTag(child);
    }
    appendBranch(target, userBranch, userParamValues(user));
    return out;
}

// The element holding a key under tag: the tag itself for an attribute, or the text element.
struct KeyPlace
{
    CXmlTagV2* attribute = nullptr; // the last entry of that name
    CXmlTagV2* text = nullptr;
};

KeyPlace placeOf(const CXmlTagV2* tag, const QString& key)
{
    KeyPlace place;
    if (!tag)
        return place;
    for (CXmlTagV2* attr : tag->values) {
        if (attr->name == key)
            place.attribute = attr;
    }
    if (!place.attribute) {
        CXmlTagV2* child = tag->children.getTagFromName(key);
        if (child && child->values.isEmpty() && child->children.isEmpty())
            place.text = child;
    }
    return place;
}

} // namespace

class ConfigSession::Snapshot
{
public:
    std::shared_ptr<CSerialize> doc; // shared with the session until either side writes: never written

    ConfigSource source = ConfigSource::None;
    QString path;
    quint64 state = 0;
    quint64 docState = 0;
    quint64 savedDocState = 0;
    QHash<QString, QString> edited;
};

ConfigSession::ConfigSession(QObject* parent)
    : QObject(parent)
    , m_doc(emptyDocument())
    , m_model(QString::fromLatin1(cfg::kDefaultModel))
    , m_version(QString::fromLatin1(cfg::kVersionText))
    , m_vendor(QString::fromLatin1(cfg::kDefaultVendor))
{
}

ConfigSession::~ConfigSession() = default;

const CXmlTagV2* ConfigSession::root() const
{
    return m_doc->root();
}

QStringList ConfigSession::ownedTopNodes()
{
    QStringList names;
    for (const cfg::BranchDecl& b : cfg::declaredBranches())
        names << b.top;
    names << QLatin1String(fieldset::kUserNode);
    return names;
}

void ConfigSession::writeHeader(CXmlTagV2* root) const
{
    setKeyValue(root, QLatin1String(cfg::kHeaderModel), m_model);
    setKeyValue(root, QLatin1String(cfg::kHeaderVersion), m_version);
    setKeyValue(root, QLatin1String(cfg::kHeaderCreator), QLatin1String(cfg::kCreatorText));
    setKeyValue(root, QLatin1String(cfg::kHeaderVendor), m_vendor);
}

void ConfigSession::setHeader(const QString& model, const QString& version, const QString& vendor)
{
    m_model = model;
    m_version = version;
    m_vendor = vendor;
    if (hasDocument())
        updateHeader();
}

void ConfigSession::updateHeader()
{
    const QString values[] = { m_model, m_version, QLatin1String(cfg::kCreatorText), m_vendor };
    const char* keys[] = { cfg::kHeaderModel, cfg::kHeaderVersion, cfg::kHeaderCreator, cfg::kHeaderVendor };
    // As writeHeader leaves it: every attribute entry of each key holding its value.
    for (int i = 0; i < 4; ++i) {
        bool held = false;
        for (const CXmlTagV2* attr : root()->values) {
            if (attr->name != QLatin1String(keys[i]))
                continue;
            held = attr->value == values[i];
            if (!held)
                break;
        }
        if (!held) {
            writeHeader(editableRoot());
            return;
        }
    }
}

CXmlTagV2* ConfigSession::editableRoot()
{
    // A snapshot shares the document it was taken of; the first write after it works on a copy.
    if (m_doc.use_count() > 1)
        m_doc = copyDocument(m_doc->root());
    return m_doc->root();
}

void ConfigSession::notifyModified(bool wasModified)
{
    ++m_revision;
    if (isModified() != wasModified)
        emit modifiedChanged(isModified());
}

void ConfigSession::trackEdit(
    const QString& node, const QString& key, const QString& before, const QString& after)
{
    // Only a document that is the saved one has saved values to come back to.
    if (m_docState != m_savedDocState)
        return;
    const QString id = node + QLatin1Char('\n') + key;
    auto it = m_editedSinceSave.find(id);
    if (it == m_editedSinceSave.end())
        it = m_editedSinceSave.insert(id, before);
    if (it.value() == after)
        m_editedSinceSave.erase(it);
}

void ConfigSession::replaceDocument(std::unique_ptr<CSerialize> doc, ConfigSource source, const QString& path)
{
    m_doc = std::move(doc);
    writeHeader(m_doc->root());
    const bool sourceChanged = source != m_source || path != m_path;
    m_source = source;
    m_path = path;
    const bool wasModified = isModified();
    m_state = ++m_nextState;
    m_docState = m_state;
    m_editedSinceSave.clear();
    notifyModified(wasModified);
    emit documentReplaced();
    if (sourceChanged)
        emit this->sourceChanged();
}

void ConfigSession::newDocument()
{
    replaceDocument(normalizedDocument(nullptr), ConfigSource::New, QString());
}

void ConfigSession::resetToDefaults()
{
    auto fresh = normalizedDocument(nullptr);
    appendKept(fresh->root(), extractUnowned(root(), ownedTopNodes()).get());
    // Kept branches belong before the user parameters.
    CXmlTagV2* user = fresh->root()->children.getTagFromName(QLatin1String(fieldset::kUserNode));
    if (user) {
        fresh->root()->children.deleteTag(user);
        fresh->root()->children.addTag(user);
    }
    replaceDocument(std::move(fresh), hasDocument() ? m_source : ConfigSource::New, m_path);
}

bool ConfigSession::loadBytes(
    const QByteArray& text, ConfigSource source, const QString& path, QString* error)
{
    ConfigLoadResult loaded = loadConfigBytes(text);
    if (!loaded.doc) {
        if (error)
            *error = loaded.error;
        return false;
    }
    replaceDocument(normalizedDocument(loaded.doc.get()), source, path);
    return true;
}

bool ConfigSession::loadFile(const QString& path, ConfigSource source, QString* error)
{
    ConfigLoadResult loaded = zrk::loadConfigFile(path);
    if (!loaded.doc) {
        if (error)
            *error = loaded.error;
        return false;
    }
    replaceDocument(
        normalizedDocument(loaded.doc.get()), source, source == ConfigSource::File ? path : QString());
    return true;
}

QByteArray ConfigSession::render() const
{
    return m_doc->render();
}

bool ConfigSession::saveFile(const QString& path, QString* error)
{
    if (!writeFileWhole(path, render(), error))
        return false;
    const bool changed = m_source != ConfigSource::File || m_path != path;
    m_source = ConfigSource::File;
    m_path = path;
    markSaved();
    if (changed)
        emit sourceChanged();
    return true;
}

void ConfigSession::markSaved()
{
    const bool wasModified = isModified();
    m_savedDocState = m_docState;
    m_editedSinceSave.clear();
    if (wasModified)
        emit modifiedChanged(false);
}

// ---- values ------------------------------------------------------------------------------------

QString ConfigSession::value(const QString& node, const QString& key) const
{
    const KeyPlace place = placeOf(nodeAt(root(), node), key);
    if (place.attribute)
        return place.attribute->value;
    return place.text ? place.text->value : QString();
}

bool ConfigSession::hasValue(const QString& node, const QString& key) const
{
    const KeyPlace place = placeOf(nodeAt(root(), node), key);
    return place.attribute || place.text;
}

void ConfigSession::storeValue(const QString& node, const QString& key, const QString& value)
{
    CXmlTagV2* tag = nodeAt(editableRoot(), node);
    const KeyPlace place = placeOf(tag, key);
    if (place.attribute)
        setKeyValue(tag, key, value); // every entry of the name, so none is left behind
    else if (place.text)
        place.text->value = value;
}

bool ConfigSession::setValue(const QString& node, const QString& key, const QString& value, Edit* edit)
{
    if (!hasValue(node, key))
        return false;
    const QString before = this->value(node, key);
    if (before == value)
        return false;
    Edit e { node, key, before, value, m_state, ++m_nextState };
    const bool wasModified = isModified();
    storeValue(node, key, value);
    trackEdit(node, key, before, value);
    m_state = e.stateAfter;
    notifyModified(wasModified);
    emit valueChanged(node, key);
    if (edit)
        *edit = e;
    return true;
}

void ConfigSession::undoEdit(const Edit& edit)
{
    replayEdit(edit, edit.after, edit.before, edit.stateBefore);
}

void ConfigSession::redoEdit(const Edit& edit)
{
    replayEdit(edit, edit.before, edit.after, edit.stateAfter);
}

void ConfigSession::replayEdit(const Edit& edit, const QString& from, const QString& to, quint64 state)
{
    const bool wasModified = isModified();
    storeValue(edit.node, edit.key, to);
    trackEdit(edit.node, edit.key, from, to);
    m_state = state;
    notifyModified(wasModified);
    emit valueChanged(edit.node, edit.key);
}

void ConfigSession::absorbValue(const QString& node, const QString& key, const QString& value)
{
    if (!hasValue(node, key) || this->value(node, key) == value)
        return;
    storeValue(node, key, value);
    ++m_revision;
}

cfg::Values ConfigSession::branchValues(const cfg::BranchDecl& branch) const
{
    const int n = branch.keys.size();
    cfg::Values values(n);
    QVarLengthArray<bool, 128> found(n);
    std::fill(found.begin(), found.end(), false);
    const CXmlTagV2* top = root()->children.getTagFromName(branch.top);
    for (int first = 0; first < n; ++first) {
        if (found[first])
            continue;
        // One record node at a time: its keys (each declared once), then its attributes from the
        // last, so that the last entry of a name counts. The session writes them in declaration
        // order, so each attribute is most often the key before the one found last.
        const QString& groupName = branch.keys[first].group;
        QVarLengthArray<int, 64> keys;
        for (int i = first; i < n; ++i) {
            if (branch.keys[i].group == groupName)
                keys.append(i);
        }
        const CXmlTagV2* node = groupName.isEmpty() || !top ? top : top->children.getTagFromName(groupName);
        QVarLengthArray<const CXmlTagV2*, 64> attributes;
        if (node) {
            for (const CXmlTagV2* a : node->values)
                attributes.append(a);
        }
        int guess = keys.size() - 1;
        for (int a = attributes.size() - 1; a >= 0; --a) {
            const QString& name = attributes[a]->name;
            int at = guess >= 0 && branch.keys[keys[guess]].key == name ? guess : -1;
            for (int k = 0; at < 0 && k < keys.size(); ++k) {
                if (branch.keys[keys[k]].key == name)
                    at = k;
            }
            if (at < 0)
                continue;
            guess = at - 1;
            if (!found[keys[at]]) {
                values[keys[at]] = attributes[a]->value;
                found[keys[at]] = true;
            }
        }
        for (int k : keys) {
            if (!found[k])
                values[k] = branch.keys[k].readDefault;
            found[k] = true;
        }
    }
    return values;
}

// ---- snapshots ---------------------------------------------------------------------------------

std::shared_ptr<const ConfigSession::Snapshot> ConfigSession::snapshot() const
{
    auto s = std::make_shared<Snapshot>();
    s->doc = m_doc;
    s->source = m_source;
    s->path = m_path;
    s->state = m_state;
    s->docState = m_docState;
    s->savedDocState = m_savedDocState;
    s->edited = m_editedSinceSave;
    return s;
}

void ConfigSession::restore(const Snapshot& snapshot)
{
    m_doc = snapshot.doc;
    updateHeader();
    const bool sourceChanged = snapshot.source != m_source || snapshot.path != m_path;
    m_source = snapshot.source;
    m_path = snapshot.path;
    const bool wasModified = isModified();
    m_state = snapshot.state;
    m_docState = snapshot.docState;
    // The mark is against the file the snapshot had: going back to a configuration as it was
    // opened or saved is no unsaved change.
    m_savedDocState = snapshot.savedDocState;
    m_editedSinceSave = snapshot.edited;
    notifyModified(wasModified);
    emit documentReplaced();
    if (sourceChanged)
        emit this->sourceChanged();
}

// ---- questions ---------------------------------------------------------------------------------

QStringList ConfigSession::keptBranchNames() const
{
    QStringList names = topNodeNames(root());
    const QStringList owned = ownedTopNodes();
    names.erase(
        std::remove_if(names.begin(), names.end(), [&owned](const QString& n) { return owned.contains(n); }),
        names.end());
    return names;
}

QVector<ConfigDifference> ConfigSession::differencesTo(const CXmlTagV2* other) const
{
    return diffConfigs(root(), other);
}

bool ConfigSession::telemetryTitles(DeviceTitles* titles, QStringList* userParamTypes) const
{
    if (!hasDocument())
        return false;
    if (titles)
        *titles = deviceTitles(root());
    if (userParamTypes) {
        *userParamTypes = fieldset::userParamTypes(fieldset::readUserParams(root()));
    }
    return true;
}

void ConfigSession::setLastRead(const QByteArray& text, const QString& terminal)
{
    ConfigLoadResult loaded = loadConfigBytes(text);
    if (loaded.doc) {
        m_lastRead = copyDocument(loaded.doc->root());
        m_lastReadTerminal = terminal;
    }
}

bool ConfigSession::hasLastReadFrom(const QString& terminal) const
{
    return m_lastRead && m_lastReadTerminal == terminal;
}

QVector<ConfigDifference> ConfigSession::pendingWrite(const QString& terminal) const
{
    if (hasLastReadFrom(terminal))
        return diffConfigs(m_lastRead->root(), root());
    auto defaults = normalizedDocument(nullptr);
    writeHeader(defaults->root());
    return diffConfigs(defaults->root(), root());
}

// ---- dated copies ------------------------------------------------------------------------------

QString readCopyName(const QDateTime& when, int sameSecond)
{
    QString name = QLatin1String(kReadCopyPrefix) + when.toString(QLatin1String(kReadCopyDateFormat));
    if (sameSecond > 1)
        name += QStringLiteral("_%1").arg(sameSecond);
    return name + QStringLiteral(".xml");
}

QVector<ReadCopy> listReadCopies(const QString& dir)
{
    static const QRegularExpression pattern(
        QStringLiteral("^%1(\\d{4}-\\d\\d-\\d\\d_\\d\\d-\\d\\d-\\d\\d)(_(\\d+))?\\.xml$")
            .arg(QLatin1String(kReadCopyPrefix)));
    QVector<ReadCopy> copies;
    QVector<int> order;
    const QDir folder(dir);
    for (const QString& name :
        folder.entryList({ QLatin1String(kReadCopyPrefix) + QStringLiteral("*.xml") }, QDir::Files)) {
        const QRegularExpressionMatch m = pattern.match(name);
        if (!m.hasMatch())
            continue;
        const QDateTime when = QDateTime::fromString(m.captured(1), QLatin1String(kReadCopyDateFormat));
        if (!when.isValid())
            continue;
        copies.append({ folder.filePath(name), when });
        order.append(m.captured(3).isEmpty() ? 1 : m.captured(3).toInt());
    }
    QVector<int> index(copies.size());
    for (int i = 0; i < index.size(); ++i)
        index[i] = i;
    std::sort(index.begin(), index.end(), [&](int a, int b) {
        if (copies[a].when != copies[b].when)
            return copies[a].when > copies[b].when;
        return order[a] > order[b];
    });
    QVector<ReadCopy> sorted;
    for (int i : index)
        sorted.append(copies[i]);
    return sorted;
}

} // namespace zrk

#include "config_model/config_diff.h"

#include "config_model/config_keys.h"
#include "config_model/serialize.h"
#include "config_model/xml_tag.h"

#include <QFileInfo>
#include <QHash>
#include <QMap>
#include <QRegularExpression>

#include <memory>

namespace zrk {
namespace {

// An element seen as keys and sub-nodes, in document order.
struct NodeView
{
    QVector<QPair<QString, QString>> keys; // name, value; one entry per name, the last written wins
    QVector<QPair<QString, const CXmlTagV2*>> nodes; // path segment, element
};

bool isKeyElement(const CXmlTagV2* child)
{
    return child->values.isEmpty() && child->children.isEmpty();
}

NodeView viewOf(const CXmlTagV2* tag)
{
    NodeView view;
    if (!tag)
        return view;
    QHash<QString, int> keyAt;
    auto setKey = [&](const QString& name, const QString& value) {
        auto it = keyAt.constFind(name);
        if (it != keyAt.constEnd()) {
            view.keys[*it].second = value;
        } else {
            keyAt.insert(name, view.keys.size());
            view.keys.append({ name, value });
        }
    };
    for (const CXmlTagV2* attr : tag->values)
        setKey(attr->name, attr->value);
    // Repeated siblings are told apart by their position among those of the same name.
    QHash<QString, int> seen;
    QHash<QString, int> total;
    for (const CXmlTagV2* child : tag->children) {
        if (!isKeyElement(child))
            ++total[child->name];
    }
    for (const CXmlTagV2* child : tag->children) {
        if (isKeyElement(child)) {
            setKey(child->name, child->value);
            continue;
        }
        const int n = ++seen[child->name];
        const QString segment
            = total.value(child->name) > 1 ? QStringLiteral("%1[%2]").arg(child->name).arg(n) : child->name;
        view.nodes.append({ segment, child });
    }
    return view;
}

QString joinPath(const QString& base, const QString& segment)
{
    return base.isEmpty() ? segment : base + QLatin1Char('/') + segment;
}

// Every key of a subtree that only one side has.
void oneSided(const QString& path, const CXmlTagV2* tag, bool left, const ConfigKeyLabeler& label,
    QVector<ConfigDifference>& out)
{
    const NodeView view = viewOf(tag);
    if (view.keys.isEmpty() && view.nodes.isEmpty()) {
        ConfigDifference d;
        d.node = path;
        (left ? d.inRight : d.inLeft) = false;
        out.append(d);
    }
    for (const auto& key : view.keys) {
        ConfigDifference d;
        d.node = path;
        d.key = key.first;
        d.label = label(path, key.first);
        (left ? d.left : d.right) = key.second;
        (left ? d.inRight : d.inLeft) = false;
        out.append(d);
    }
    for (const auto& node : view.nodes)
        oneSided(joinPath(path, node.first), node.second, left, label, out);
}

void compare(const QString& path, const CXmlTagV2* a, const CXmlTagV2* b, const ConfigKeyLabeler& label,
    QVector<ConfigDifference>& out)
{
    const NodeView va = viewOf(a);
    const NodeView vb = viewOf(b);
    QHash<QString, QString> keysB;
    for (const auto& key : vb.keys)
        keysB.insert(key.first, key.second);
    for (const auto& key : va.keys) {
        auto it = keysB.constFind(key.first);
        if (it != keysB.constEnd() && *it == key.second)
            continue;
        ConfigDifference d;
        d.node = path;
        d.key = key.first;
        d.label = label(path, key.first);
        d.left = key.second;
        if (it == keysB.constEnd())
            d.inRight = false;
        else
            d.right = *it;
        out.append(d);
    }
    QHash<QString, int> keysA;
    for (const auto& key : va.keys)
        keysA.insert(key.first, 0);
    for (const auto& key : vb.keys) {
        if (keysA.contains(key.first))
            continue;
        ConfigDifference d;
        d.node = path;
        d.key = key.first;
        d.label = label(path, key.first);
        d.right = key.second;
        d.inLeft = false;
        out.append(d);
    }
    QHash<QString, const CXmlTagV2*> nodesB;
    for (const auto& node : vb.nodes)
        nodesB.insert(node.first, node.second);
    QHash<QString, int> nodesA;
    for (const auto& node : va.nodes) {
        nodesA.insert(node.first, 0);
        const QString sub = joinPath(path, node.first);
        if (const CXmlTagV2* other = nodesB.value(node.first))
            compare(sub, node.second, other, label, out);
        else
            oneSided(sub, node.second, true, label, out);
    }
    for (const auto& node : vb.nodes) {
        if (!nodesA.contains(node.first))
            oneSided(joinPath(path, node.first), node.second, false, label, out);
    }
}

std::unique_ptr<CSerialize> load(const QString& path, QString* error)
{
    if (!QFileInfo(path).isFile()) {
        if (error)
            *error = QStringLiteral("%1: no such file").arg(path);
        return nullptr;
    }
    auto doc = std::make_unique<CSerialize>(path);
    if (!doc->startSerialize()) {
        if (error)
            *error = QStringLiteral("%1: %2").arg(path, doc->lastError());
        return nullptr;
    }
    return doc;
}

} // namespace

QString declaredLabel(const QString& node, const QString& key)
{
    // Repeated records carry an index the declarations do not know.
    QString plain = node;
    plain.remove(QRegularExpression(QStringLiteral("\\[\\d+\\]")));
    if (const cfg::KeyDecl* decl = cfg::findDeclaredKey(plain, key))
        return cfg::declaredKeyLabel(*decl);
    return QString();
}

QVector<ConfigDifference> diffConfigs(
    const CXmlTagV2* left, const CXmlTagV2* right, const ConfigKeyLabeler& labeler)
{
    const ConfigKeyLabeler label = labeler ? labeler : ConfigKeyLabeler(&declaredLabel);
    QVector<ConfigDifference> out;
    if (left && right)
        compare(QString(), left, right, label, out);
    else if (left)
        oneSided(QString(), left, true, label, out);
    else if (right)
        oneSided(QString(), right, false, label, out);
    return out;
}

bool diffConfigFiles(const QString& left, const QString& right, QVector<ConfigDifference>* out,
    QString* error, const ConfigKeyLabeler& labeler)
{
    std::unique_ptr<CSerialize> a = load(left, error);
    if (!a)
        return false;
    std::unique_ptr<CSerialize> b = load(right, error);
    if (!b)
        return false;
    if (out)
        *out = diffConfigs(a->root(), b->root(), labeler);
    return true;
}

} // namespace zrk

#include "config_model/config_diff.h"

#include "config_model/config_keys.h"
#include "config_model/xml_tag.h"

#include <QMap>

namespace zrk {

namespace {

struct Entry
{
    QString value;
    bool present = false;
};

// Keys of one element: its attributes, then its leaf children (text elements without attributes).
QMap<QString, QString> keysOf(const CXmlTagV2* tag)
{
    QMap<QString, QString> keys;
    if (!tag)
        return keys;
    for (const CXmlTagV2* a : tag->values)
        keys.insert(a->name, a->value);
    for (const CXmlTagV2* c : tag->children) {
        if (c->values.count() == 0 && c->children.count() == 0 && c->type == 2)
            keys.insert(c->name, c->value);
    }
    return keys;
}

// Child elements that are nodes of their own, named by path segment ("NAME", "NAME[2]", ...).
QVector<QPair<QString, const CXmlTagV2*>> nodesOf(const CXmlTagV2* tag)
{
    QVector<QPair<QString, const CXmlTagV2*>> nodes;
    if (!tag)
        return nodes;
    QMap<QString, int> seen;
    for (const CXmlTagV2* c : tag->children) {
        if (c->values.count() == 0 && c->children.count() == 0 && c->type == 2)
            continue;
        const int n = ++seen[c->name];
        nodes.append({ n == 1 ? c->name : QStringLiteral("%1[%2]").arg(c->name).arg(n), c });
    }
    return nodes;
}

void compare(const QString& path, const CXmlTagV2* a, const CXmlTagV2* b, QVector<ConfigDifference>& out)
{
    const QMap<QString, QString> ka = keysOf(a);
    const QMap<QString, QString> kb = keysOf(b);
    QStringList names = ka.keys();
    for (const QString& k : kb.keys()) {
        if (!ka.contains(k))
            names << k;
    }
    names.sort();
    for (const QString& k : names) {
        const bool inA = ka.contains(k);
        const bool inB = kb.contains(k);
        if (inA && inB && ka.value(k) == kb.value(k))
            continue;
        ConfigDifference d;
        d.node = path;
        d.key = k;
        if (const cfg::KeyDecl* decl = cfg::findDeclaredKey(path, k))
            d.label = cfg::declaredKeyLabel(*decl);
        d.left = ka.value(k);
        d.right = kb.value(k);
        d.inLeft = inA;
        d.inRight = inB;
        out.append(d);
    }
    const auto na = nodesOf(a);
    const auto nb = nodesOf(b);
    auto find = [](const auto& list, const QString& name) -> const CXmlTagV2* {
        for (const auto& n : list) {
            if (n.first == name)
                return n.second;
        }
        return nullptr;
    };
    const QString prefix = path.isEmpty() ? QString() : path + QLatin1Char('/');
    for (const auto& n : na)
        compare(prefix + n.first, n.second, find(nb, n.first), out);
    for (const auto& n : nb) {
        if (!find(na, n.first))
            compare(prefix + n.first, nullptr, n.second, out);
    }
}

} // namespace

QVector<ConfigDifference> diffConfigs(const CXmlTagV2* left, const CXmlTagV2* right)
{
    QVector<ConfigDifference> out;
    compare(QString(), left, right, out);
    return out;
}

} // namespace zrk

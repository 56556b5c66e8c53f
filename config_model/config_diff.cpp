#include "config_model/config_diff.h"

#include "config_model/config_keys.h"
#include "config_model/xml_tag.h"

#include <QHash>
#include <QPair>

#include <algorithm>

namespace zrk {

namespace {

using Key = QPair<QString, QString>; // name, value

// A text element without attributes or children stands for a key of its parent.
bool isLeaf(const CXmlTagV2* c)
{
    return c->values.isEmpty() && c->children.isEmpty() && c->type == CXmlTagV2::Text;
}

// Keys of one element sorted by name, one each: its attributes, then its leaf children; of entries
// sharing a name the last one counts, as in the file.
QVector<Key> keysOf(const CXmlTagV2* tag)
{
    QVector<Key> keys;
    if (!tag)
        return keys;
    keys.reserve(tag->values.count());
    for (const CXmlTagV2* a : tag->values)
        keys.append({ a->name, a->value });
    for (const CXmlTagV2* c : tag->children) {
        if (isLeaf(c))
            keys.append({ c->name, c->value });
    }
    // An element has a handful of keys, often in order already: sorting in place by insertion
    // (stable, as the rule of the last entry needs) beats a merge sort's buffer.
    auto byName = [](const Key& x, const Key& y) { return x.first < y.first; };
    if (keys.size() > 32) {
        std::stable_sort(keys.begin(), keys.end(), byName);
    } else {
        for (int i = 1; i < keys.size(); ++i) {
            for (int j = i; j > 0 && byName(keys[j], keys[j - 1]); --j)
                std::swap(keys[j], keys[j - 1]);
        }
    }
    // Keep the last of each run of one name.
    int out = 0;
    for (int i = 0; i < keys.size(); ++i) {
        if (i + 1 < keys.size() && keys[i + 1].first == keys[i].first)
            continue;
        if (out != i)
            keys[out] = keys[i];
        ++out;
    }
    keys.resize(out);
    return keys;
}

// Child elements that are nodes of their own, named by path segment ("NAME", "NAME[2]", ...).
QVector<QPair<QString, const CXmlTagV2*>> nodesOf(const CXmlTagV2* tag)
{
    QVector<QPair<QString, const CXmlTagV2*>> nodes;
    if (!tag)
        return nodes;
    QHash<QString, int> seen;
    for (const CXmlTagV2* c : tag->children) {
        if (isLeaf(c))
            continue;
        const int n = ++seen[c->name];
        nodes.append({ n == 1 ? c->name : QStringLiteral("%1[%2]").arg(c->name).arg(n), c });
    }
    return nodes;
}

// The node named name in list, looked for first where the other side has it.
const CXmlTagV2* findNode(const QVector<QPair<QString, const CXmlTagV2*>>& list, int at, const QString& name)
{
    if (at < list.size() && list[at].first == name)
        return list[at].second;
    for (const auto& n : list) {
        if (n.first == name)
            return n.second;
    }
    return nullptr;
}

void difference(const QString& path, const QString& key, const QString* left, const QString* right,
    QVector<ConfigDifference>& out)
{
    ConfigDifference d;
    d.node = path;
    d.key = key;
    if (const cfg::KeyDecl* decl = cfg::findDeclaredKey(path, key))
        d.label = cfg::declaredKeyLabel(*decl);
    d.left = left ? *left : QString();
    d.right = right ? *right : QString();
    d.inLeft = left != nullptr;
    d.inRight = right != nullptr;
    out.append(d);
}

void compare(const QString& path, const CXmlTagV2* a, const CXmlTagV2* b, QVector<ConfigDifference>& out)
{
    // Both key lists are sorted by name: one merge gives every name once, in order.
    const QVector<Key> ka = keysOf(a);
    const QVector<Key> kb = keysOf(b);
    int i = 0, j = 0;
    while (i < ka.size() || j < kb.size()) {
        if (j == kb.size() || (i < ka.size() && ka[i].first < kb[j].first)) {
            difference(path, ka[i].first, &ka[i].second, nullptr, out);
            ++i;
        } else if (i == ka.size() || kb[j].first < ka[i].first) {
            difference(path, kb[j].first, nullptr, &kb[j].second, out);
            ++j;
        } else {
            if (ka[i].second != kb[j].second)
                difference(path, ka[i].first, &ka[i].second, &kb[j].second, out);
            ++i;
            ++j;
        }
    }
    const auto na = nodesOf(a);
    const auto nb = nodesOf(b);
    const QString prefix = path.isEmpty() ? QString() : path + QLatin1Char('/');
    for (int n = 0; n < na.size(); ++n)
        compare(prefix + na[n].first, na[n].second, findNode(nb, n, na[n].first), out);
    for (int n = 0; n < nb.size(); ++n) {
        if (!findNode(na, n, nb[n].first))
            compare(prefix + nb[n].first, nullptr, nb[n].second, out);
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

#include "config_model/config_document.h"

#include "config_model/serialize.h"
#include "config_model/xml_tag.h"

#include <QFileInfo>
#include <QSaveFile>
#include <QStringView>

#include <algorithm>

namespace zrk {

namespace {

constexpr char kRootName[] = "DEVICE";

ConfigLoadResult checked(std::unique_ptr<CSerialize> doc, bool loaded)
{
    ConfigLoadResult r;
    if (!loaded) {
        r.error = doc->lastError();
        if (r.error.isEmpty())
            r.error = QStringLiteral("not well-formed");
        return r;
    }
    if (!doc->root()) {
        r.error = QStringLiteral("no root element");
        return r;
    }
    if (doc->root()->name != QLatin1String(kRootName)) {
        r.error = QStringLiteral("root element \"%1\" instead of \"%2\"")
                      .arg(doc->root()->name, QLatin1String(kRootName));
        return r;
    }
    r.doc = std::move(doc);
    return r;
}

} // namespace

const QStringList& configHeaderKeys()
{
    static const QStringList keys { QStringLiteral("model"), QStringLiteral("version"),
        QStringLiteral("creator"), QStringLiteral("vendor") };
    return keys;
}

ConfigLoadResult loadConfigFile(const QString& path)
{
    // The serializer would create a missing file; opening must never leave one behind.
    const QFileInfo info(path);
    if (!info.isFile()) {
        ConfigLoadResult r;
        r.error = info.exists() ? QStringLiteral("not a file") : QStringLiteral("no such file");
        return r;
    }
    if (info.size() == 0) {
        ConfigLoadResult r;
        r.error = QStringLiteral("the file is empty");
        return r;
    }
    auto doc = std::make_unique<CSerialize>(path);
    const bool ok = doc->startSerialize();
    return checked(std::move(doc), ok);
}

ConfigLoadResult loadConfigBytes(const QByteArray& text)
{
    auto doc
        = std::make_unique<CSerialize>(text.size(), reinterpret_cast<const unsigned char*>(text.constData()));
    const bool ok = doc->startSerialize();
    return checked(std::move(doc), ok);
}

std::unique_ptr<CSerialize> copyDocument(const CXmlTagV2* root)
{
    auto doc = std::make_unique<CSerialize>(0, nullptr);
    doc->startSerialize();
    CXmlTagV2* copy = doc->createNodeV2(nullptr, root ? root->name : QLatin1String(kRootName), 0);
    if (root && copy) {
        *copy = *root;
        copy->parent = nullptr;
    }
    return doc;
}

bool writeFileWhole(const QString& path, const QByteArray& bytes, QString* error)
{
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly)) {
        if (error)
            *error = file.errorString();
        return false;
    }
    if (file.write(bytes) != bytes.size()) {
        if (error)
            *error = file.errorString();
        file.cancelWriting();
        return false;
    }
    if (!file.commit()) {
        if (error)
            *error = file.errorString();
        return false;
    }
    return true;
}

CXmlTagV2* childAt(const CXmlTagV2* tag, const QString& path)
{
    CXmlTagV2* at = const_cast<CXmlTagV2*>(tag);
    for (const QString& name : path.split(QLatin1Char('/'), Qt::SkipEmptyParts)) {
        if (!at)
            return nullptr;
        at = at->children.getTagFromName(name);
    }
    return at;
}

CXmlTagV2* nodeAt(const CXmlTagV2* tag, const QString& path)
{
    CXmlTagV2* at = const_cast<CXmlTagV2*>(tag);
    const QStringView all(path);
    for (int from = 0; from <= all.size();) {
        int slash = all.indexOf(QLatin1Char('/'), from);
        if (slash < 0)
            slash = all.size();
        QStringView name = all.mid(from, slash - from);
        from = slash + 1;
        if (name.isEmpty())
            continue;
        if (!at)
            return nullptr;
        // "NAME[n]": the n-th sibling of that name, counting from 1.
        int wanted = 1;
        const int open = name.lastIndexOf(QLatin1Char('['));
        if (open >= 0 && name.size() - open > 2 && name.endsWith(QLatin1Char(']'))) {
            const QStringView digits = name.mid(open + 1, name.size() - open - 2);
            if (std::all_of(digits.begin(), digits.end(),
                    [](QChar c) { return c >= QLatin1Char('0') && c <= QLatin1Char('9'); })) {
                wanted = digits.toString().toInt();
                name = name.left(open);
            }
        }
        CXmlTagV2* found = nullptr;
        for (CXmlTagV2* child : at->children) {
            if (child->name == name && --wanted == 0) {
                found = child;
                break;
            }
        }
        at = found;
    }
    return at;
}

QString pathOf(const CXmlTagV2* node)
{
    QStringList steps;
    for (const CXmlTagV2* at = node; at && at->parent; at = at->parent) {
        int number = 0, count = 0;
        for (const CXmlTagV2* sibling : at->parent->children) {
            if (sibling->name != at->name)
                continue;
            ++count;
            if (sibling == at)
                number = count;
        }
        steps.prepend(count > 1 ? QStringLiteral("%1[%2]").arg(at->name).arg(number) : at->name);
    }
    return steps.join(QLatin1Char('/'));
}

QString keyValue(const CXmlTagV2* tag, const QString& key, const QString& def)
{
    if (!tag)
        return def;
    const CXmlTagV2* found = nullptr;
    for (const CXmlTagV2* attr : tag->values) {
        if (attr->name == key)
            found = attr;
    }
    return found ? found->value : def;
}

void setKeyValue(CXmlTagV2* tag, const QString& key, const QString& value)
{
    if (!tag)
        return;
    bool found = false;
    for (CXmlTagV2* attr : tag->values) {
        if (attr->name == key) {
            attr->value = value;
            found = true;
        }
    }
    if (!found) {
        auto* attr = new CXmlTagV2(key, QString(), tag);
        attr->value = value; // stored as given: the value is already decoded
        tag->values.addTag(attr);
    }
}

CXmlTagV2* ensureChild(CXmlTagV2* tag, const QString& name, int type)
{
    if (!tag)
        return nullptr;
    if (CXmlTagV2* child = tag->children.getTagFromName(name))
        return child;
    auto* child = new CXmlTagV2(name, QString(), tag);
    child->type = type;
    tag->children.addTag(child);
    return child;
}

std::unique_ptr<CXmlTagV2> extractUnowned(const CXmlTagV2* root, const QStringList& ownedTopNodes)
{
    auto kept = std::make_unique<CXmlTagV2>(QLatin1String(kRootName));
    if (!root)
        return kept;
    const QStringList& header = configHeaderKeys();
    for (const CXmlTagV2* attr : root->values) {
        if (header.contains(attr->name))
            continue;
        auto* copy = new CXmlTagV2(*attr);
        copy->parent = kept.get();
        kept->values.addTag(copy);
    }
    for (const CXmlTagV2* child : root->children) {
        if (ownedTopNodes.contains(child->name))
            continue;
        auto* copy = new CXmlTagV2(*child);
        copy->parent = kept.get();
        kept->children.addTag(copy);
    }
    return kept;
}

void appendKept(CXmlTagV2* root, const CXmlTagV2* kept)
{
    if (!root || !kept)
        return;
    for (const CXmlTagV2* attr : kept->values) {
        auto* copy = new CXmlTagV2(*attr);
        copy->parent = root;
        root->values.addTag(copy);
    }
    for (const CXmlTagV2* child : kept->children) {
        auto* copy = new CXmlTagV2(*child);
        copy->parent = root;
        root->children.addTag(copy);
    }
}

QStringList topNodeNames(const CXmlTagV2* root)
{
    QStringList names;
    if (!root)
        return names;
    for (const CXmlTagV2* child : root->children) {
        if (!names.contains(child->name))
            names << child->name;
    }
    return names;
}

DeviceTitles deviceTitles(const CXmlTagV2* root)
{
    const auto names = [root](const char* branch, const char* item, int count) {
        QStringList list;
        for (int n = 1; n <= count; ++n)
            list << keyValue(
                childAt(
                    root, QStringLiteral("%1/%2%3").arg(QLatin1String(branch), QLatin1String(item)).arg(n)),
                QStringLiteral("name"));
        return list;
    };
    DeviceTitles titles;
    titles.inputs = names("INPUTS", "IN", DeviceTitles::kInputs);
    titles.outputs = names("OUTPUTS", "OUT", DeviceTitles::kOutputs);
    titles.temperatures = names("TEMPSENS", "TEMP", DeviceTitles::kTemperatures);
    return titles;
}

} // namespace zrk

// zrk-tool config: look at configuration files through the same serializer the plug-in uses.
#include "config_model/serialize.h"
#include "tools/commands.h"

#include <QFileInfo>

const char* const kConfigUsage
    = "  config check FILE               load a configuration file, count what it holds\n"
      "  config normalize IN OUT         load IN, write the same tree to OUT\n"
      "  config dump FILE                print the tree, one element a line (UTF-8)\n";

namespace {

struct Counts
{
    int elements = 0;
    int attributes = 0;
};

void count(const CXmlTagV2* tag, Counts& c)
{
    ++c.elements;
    c.attributes += tag->values.count();
    for (const CXmlTagV2* child : tag->children)
        count(child, c);
}

void dump(const CXmlTagV2* tag, int depth, QTextStream& out)
{
    out << depth << ' ' << tag->type << ' ' << jsonQuoted(tag->name);
    if (!tag->value.isEmpty())
        out << " text=" << jsonQuoted(tag->value);
    for (const CXmlTagV2* a : tag->values)
        out << ' ' << a->name << '=' << jsonQuoted(a->value);
    out << '\n';
    for (const CXmlTagV2* child : tag->children)
        dump(child, depth + 1, out);
}

// Loads an existing file. Missing files are an error here: the serializer would create them.
bool load(CSerialize& doc, const QString& sub, const QString& path, QTextStream& err)
{
    const QFileInfo info(path);
    if (!info.exists()) {
        err << "zrk-tool: config " << sub << ": " << path << ": no such file\n";
        return false;
    }
    if (!info.isFile()) {
        err << "zrk-tool: config " << sub << ": " << path << ": not a regular file\n";
        return false;
    }
    if (!doc.startSerialize()) {
        err << "zrk-tool: config " << sub << ": " << path << ": does not load: " << doc.lastError() << '\n';
        return false;
    }
    return true;
}

} // namespace

int runConfigCommand(const QString&, const QStringList& args, QTextStream& out, QTextStream& err)
{
    const QString sub = args.value(0);
    const int wanted = sub == QLatin1String("normalize") ? 3 : 2;
    if ((sub != QLatin1String("check") && sub != QLatin1String("normalize") && sub != QLatin1String("dump"))
        || args.size() != wanted) {
        err << "zrk-tool: config: expected 'check FILE', 'normalize IN OUT' or 'dump FILE' (see zrk-tool "
               "--help)\n";
        return 2;
    }
    const QString path = args.at(1);
    CSerialize doc(path);
    if (!load(doc, sub, path, err))
        return 1;

    if (sub == QLatin1String("check")) {
        if (!doc.root()) {
            out << path << ": empty document, no root element\n";
            return 0;
        }
        Counts c;
        count(doc.root(), c);
        out << "root " << doc.root()->name << ", " << c.elements << " elements, " << c.attributes
            << " attributes\n";
        return 0;
    }
    if (sub == QLatin1String("normalize")) {
        const QString target = args.at(2);
        if (!doc.saveAs(target)) {
            err << "zrk-tool: config normalize: " << target << ": cannot write\n";
            return 1;
        }
        return 0;
    }
    if (doc.root())
        dump(doc.root(), 0, out);
    return 0;
}

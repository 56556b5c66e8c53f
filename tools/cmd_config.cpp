// zrk-tool config: look at configuration files through the same serializer the plug-in uses.
#include "config_model/config_diff.h"
#include "config_model/config_keys.h"
#include "config_model/serialize.h"
#include "config_model/xml_workdata.h"
#include "tools/commands.h"

#include <QFileInfo>
#include <QSaveFile>

const char* const kConfigUsage
    = "  config check FILE               load a configuration file, count what it holds\n"
      "  config normalize IN OUT         load IN, write the same tree to OUT\n"
      "  config dump FILE                print the tree, one element a line (UTF-8)\n"
      "  config new OUT                  write a new configuration, every page at its defaults\n"
      "  config lint FILE                check the keys the pages own: one line a finding, exit 1 if any\n"
      "  config diff A B                 differences by node and key, with the keys' labels\n";

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

QString quoted(const QString& text)
{
    const QString s = substituteEach(
        text, { { "\\", "\\\\" }, { "\"", "\\\"" }, { "\n", "\\n" }, { "\r", "\\r" }, { "\t", "\\t" } });
    // Other control characters (a name read back from "_1095_" holds one) are shown by code.
    QString shown;
    for (const QChar c : s) {
        const ushort u = c.unicode();
        if (u < 0x20 || (u >= 0x7F && u < 0xA0))
            shown += QStringLiteral("\\u%1").arg(u, 4, 16, QLatin1Char('0'));
        else
            shown += c;
    }
    return QLatin1Char('"') + shown + QLatin1Char('"');
}

void dump(const CXmlTagV2* tag, int depth, QTextStream& out)
{
    out << depth << ' ' << tag->type << ' ' << quoted(tag->name);
    if (!tag->value.isEmpty())
        out << " text=" << quoted(tag->value);
    for (const CXmlTagV2* a : tag->values)
        out << ' ' << a->name << '=' << quoted(a->value);
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

int runNew(const QStringList& args, QTextStream& err)
{
    if (args.size() != 2) {
        err << "zrk-tool: config new: expected 'new OUT'\n";
        return 2;
    }
    const QByteArray bytes = zrk::cfg::renderNewConfiguration();
    QSaveFile file(args.at(1));
    if (bytes.isEmpty() || !file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size() || !file.commit()) {
        err << "zrk-tool: config new: " << args.at(1) << ": cannot write: " << file.errorString() << '\n';
        return 1;
    }
    return 0;
}

// The key's text as the user typed it: quoted only when it would not read back as one word.
QString shownValue(const QString& value)
{
    if (!value.isEmpty() && !value.contains(QLatin1Char(' ')) && !value.contains(QLatin1Char('"')))
        return value;
    return quoted(value);
}

int runLint(const QStringList& args, QTextStream& out, QTextStream& err)
{
    if (args.size() != 2) {
        err << "zrk-tool: config lint: expected 'lint FILE'\n";
        return 2;
    }
    CSerialize doc(args.at(1));
    if (!load(doc, QStringLiteral("lint"), args.at(1), err))
        return 1;
    if (!doc.root() || doc.root()->name != QLatin1String(zrk::cfg::kRootNode)) {
        err << "zrk-tool: config lint: " << args.at(1) << ": root is not " << zrk::cfg::kRootNode << '\n';
        return 1;
    }
    CXMLWorkData root(&doc, doc.root());
    const auto findings = zrk::cfg::lintConfiguration(&root);
    for (const zrk::cfg::LintFinding& f : findings) {
        out << f.node;
        if (!f.key.isEmpty())
            out << ' ' << f.key << '=' << shownValue(f.value);
        out << ": expected " << f.expected << '\n';
    }
    return findings.isEmpty() ? 0 : 1;
}

int runDiff(const QStringList& args, QTextStream& out, QTextStream& err)
{
    if (args.size() != 3) {
        err << "zrk-tool: config diff: expected 'diff A B'\n";
        return 2;
    }
    CSerialize a(args.at(1));
    CSerialize b(args.at(2));
    if (!load(a, QStringLiteral("diff"), args.at(1), err) || !load(b, QStringLiteral("diff"), args.at(2), err))
        return 1;
    const auto diffs = zrk::diffConfigs(a.root(), b.root());
    for (const zrk::ConfigDifference& d : diffs) {
        out << (d.node.isEmpty() ? QStringLiteral("(root)") : d.node) << ' ' << d.key;
        if (!d.label.isEmpty())
            out << " (" << d.label << ')';
        out << ": " << (d.inLeft ? shownValue(d.left) : QStringLiteral("-")) << " -> "
            << (d.inRight ? shownValue(d.right) : QStringLiteral("-")) << '\n';
    }
    return diffs.isEmpty() ? 0 : 1;
}

} // namespace

int runConfigCommand(const QString&, const QStringList& args, QTextStream& out, QTextStream& err)
{
    const QString sub = args.value(0);
    if (sub == QLatin1String("new"))
        return runNew(args, err);
    if (sub == QLatin1String("lint"))
        return runLint(args, out, err);
    if (sub == QLatin1String("diff"))
        return runDiff(args, out, err);
    const int wanted = sub == QLatin1String("normalize") ? 3 : 2;
    if ((sub != QLatin1String("check") && sub != QLatin1String("normalize") && sub != QLatin1String("dump"))
        || args.size() != wanted) {
        err << "zrk-tool: config: expected check, normalize, dump, new, lint or diff (see zrk-tool --help)\n";
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

// Geo-zone-sized configuration document: 10,000 records of 10 attributes (about 2 MB).
// Measures our save and load, and in the same run a libxml2 SAX parse of the same bytes as the
// reference. Also measures the same tree built from QXmlStreamReader events, to show what the
// loader would gain from that reader. Prints plain lines.
#include "config_model/serialize.h"
#include "config_model/xml_handler.h"

#include <QCoreApplication>
#include <QFile>
#include <QTemporaryDir>
#include <QXmlStreamReader>

#include <libxml/parser.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstring>
#include <functional>
#include <memory>

namespace {

constexpr int kRecords = 10000;

double bestSeconds(int runs, const std::function<void()>& f)
{
    double best = 1e30;
    for (int i = 0; i < runs; ++i) {
        const auto t0 = std::chrono::steady_clock::now();
        f();
        const auto t1 = std::chrono::steady_clock::now();
        best = std::min(best, std::chrono::duration<double>(t1 - t0).count());
    }
    return best;
}

void buildDocument(CSerialize& doc)
{
    CXmlTagV2* root = doc.createNodeV2(nullptr, QStringLiteral("AINF"), 0);
    CXmlTagV2* zones = doc.createNodeV2(root, QStringLiteral("ZONES"), 0);
    const QString names[]
        = { QString::fromUtf8("Склад №"), QStringLiteral("Depot "), QString::fromUtf8("Гараж ") };
    for (int i = 0; i < kRecords; ++i) {
        CXmlTagV2* z = doc.createNodeV2(zones, QStringLiteral("Zone"), 3);
        auto add = [z](const char* n, const QString& v) {
            z->values.addTag(new CXmlTagV2(QLatin1String(n), v, z));
        };
        add("id", QString::number(i));
        add("name", names[i % 3] + QString::number(i));
        add("lat", QString::number(55.75 + i * 1e-5, 'f', 8));
        add("lon", QString::number(37.61 + i * 1e-5, 'f', 8));
        add("comment", names[(i + 1) % 3] + QStringLiteral("- %1").arg(i * 7));
        add("radius", QString::number(50 + i % 400));
        add("type", QString::number(i % 3));
        add("speedLimit", QString::number(60 + i % 5 * 10));
        add("color", QStringLiteral("255,%1,0").arg(i % 256));
        add("flags", QStringLiteral("01101001011001101001"));
    }
}

// libxml2 SAX: count events so that the parse cannot be skipped.
struct SaxCount
{
    long elements = 0;
    long attributes = 0;
    long chars = 0;
};

void saxStart(void* ctx, const xmlChar*, const xmlChar** atts)
{
    auto* c = static_cast<SaxCount*>(ctx);
    ++c->elements;
    for (int i = 0; atts && atts[i]; i += 2)
        ++c->attributes;
}

void saxChars(void* ctx, const xmlChar*, int len)
{
    static_cast<SaxCount*>(ctx)->chars += len;
}

long libxml2Parse(const QByteArray& text)
{
    xmlSAXHandler h;
    std::memset(&h, 0, sizeof h);
    h.startElement = saxStart;
    h.characters = saxChars;
    SaxCount c;
    if (xmlSAXUserParseMemory(&h, &c, text.constData(), text.size()) != 0)
        return -1;
    return c.elements + c.attributes;
}

// The same handler fed by QXmlStreamReader instead of QXmlSimpleReader.
CXmlTagV2* streamReaderLoad(const QByteArray& text)
{
    CXmlDefaultHandler handler;
    QXmlStreamReader r(text);
    handler.startDocument();
    while (!r.atEnd()) {
        switch (r.readNext()) {
        case QXmlStreamReader::StartElement: {
            QXmlAttributes atts;
            for (const QXmlStreamAttribute& a : r.attributes())
                atts.append(a.qualifiedName().toString(), QString(), QString(), a.value().toString());
            if (!handler.startElement(QString(), QString(), r.qualifiedName().toString(), atts))
                return nullptr;
            break;
        }
        case QXmlStreamReader::EndElement:
            handler.endElement(QString(), QString(), QString());
            break;
        case QXmlStreamReader::Characters:
            handler.characters(r.text().toString());
            break;
        default:
            break;
        }
    }
    if (r.hasError())
        return nullptr;
    return handler.takeRoot();
}

// The readers alone, with no tree: what the parse itself costs.
bool simpleReaderOnly(const QByteArray& text)
{
    QXmlDefaultHandler nothing;
    QXmlSimpleReader reader;
    // Only qualified names are used: namespace processing would cost a lookup per name.
    reader.setFeature(QStringLiteral("http://xml.org/sax/features/namespaces"), false);
    reader.setFeature(QStringLiteral("http://xml.org/sax/features/namespace-prefixes"), true);
    reader.setContentHandler(&nothing);
    QXmlInputSource source;
    source.setData(text);
    return reader.parse(&source, false);
}

bool streamReaderOnly(const QByteArray& text)
{
    QXmlStreamReader r(text);
    while (!r.atEnd())
        r.readNext();
    return !r.hasError();
}

} // namespace

int main(int argc, char** argv)
{
    QCoreApplication app(argc, argv);
    const int runs = 9;

    CSerialize doc(0, nullptr);
    doc.startSerialize();
    buildDocument(doc);
    const QByteArray text = doc.render();
    const double mb = text.size() / (1024.0 * 1024.0);
    std::printf("document: %d records x 10 attributes, %d bytes (%.2f MB)\n", kRecords, text.size(), mb);

    QTemporaryDir dir;
    const QString path = dir.filePath(QStringLiteral("GeoZones.cfg"));
    CSerialize fileDoc(path);
    fileDoc.startSerialize();
    buildDocument(fileDoc);

    const double saveMem = bestSeconds(runs, [&] { doc.writeToFileV2Buf(); });
    const double saveFile = bestSeconds(runs, [&] {
        if (!fileDoc.writeToFileV2())
            std::printf("save failed\n");
    });
    // Load time is the parse and the tree; freeing the tree afterwards is not part of it.
    double loadMem = 1e30;
    double loadFile = 1e30;
    for (int i = 0; i < runs; ++i) {
        auto mem = std::make_unique<CSerialize>(
            text.size(), reinterpret_cast<const unsigned char*>(text.constData()));
        loadMem = std::min(loadMem, bestSeconds(1, [&] {
            if (!mem->startSerialize())
                std::printf("load failed\n");
        }));
        mem.reset();
        auto file = std::make_unique<CSerialize>(path);
        loadFile = std::min(loadFile, bestSeconds(1, [&] {
            if (!file->startSerialize())
                std::printf("file load failed\n");
        }));
    }
    long sink = 0;
    const double ref = bestSeconds(runs, [&] { sink += libxml2Parse(text); });
    double stream = 1e30;
    for (int i = 0; i < runs; ++i) {
        CXmlTagV2* tree = nullptr;
        stream = std::min(stream, bestSeconds(1, [&] { tree = streamReaderLoad(text); }));
        delete tree;
    }
    const double simpleOnly = bestSeconds(runs, [&] { sink += simpleReaderOnly(text); });
    const double streamOnly = bestSeconds(runs, [&] { sink += streamReaderOnly(text); });
    if (sink <= 0)
        std::printf("libxml2 parse failed\n");

    // Sanity: the alternative reader builds the same tree (same rendering).
    {
        CSerialize check(0, nullptr);
        check.startSerialize();
        CXmlTagV2* root = streamReaderLoad(text);
        CXmlTagV2* r = check.createNodeV2(nullptr, root ? root->name : QString(), 0);
        if (root)
            *r = *root;
        delete root;
        CSerialize viaSax(text.size(), reinterpret_cast<const unsigned char*>(text.constData()));
        viaSax.startSerialize();
        std::printf("stream-reader tree identical to SAX tree: %s\n",
            check.render() == viaSax.render() ? "yes" : "NO");
    }

    auto perMb = [mb](double s) { return s * 1000.0 / mb; };
    std::printf("save to memory: %.1f ms/MB\n", perMb(saveMem));
    std::printf("save to file (whole-file replace): %.1f ms/MB\n", perMb(saveFile));
    std::printf("load from memory (QXmlSimpleReader + tree): %.1f ms/MB\n", perMb(loadMem));
    std::printf("load from file (QXmlSimpleReader + tree): %.1f ms/MB\n", perMb(loadFile));
    std::printf("libxml2 SAX parse (reference): %.1f ms/MB\n", perMb(ref));
    std::printf("QXmlStreamReader + same handler + tree: %.1f ms/MB\n", perMb(stream));
    std::printf("QXmlSimpleReader alone, no tree: %.1f ms/MB\n", perMb(simpleOnly));
    std::printf("QXmlStreamReader alone, no tree: %.1f ms/MB\n", perMb(streamOnly));
    std::printf("ratio load/libxml2: %.2f (goal <= 3.00) %s\n", loadMem / ref,
        loadMem / ref <= 3.0 ? "met" : "NOT met");
    std::printf("ratio stream-reader load/libxml2: %.2f\n", stream / ref);
    std::printf(
        "ratio save/load: %.2f (goal < 1.00) %s\n", saveMem / loadMem, saveMem < loadMem ? "met" : "NOT met");
    std::printf("ratio file save/file load: %.2f\n", saveFile / loadFile);
    return 0;
}

// The node facade as the configuration pages use it, through files and memory documents.
#include "config_files.h"
#include "config_model/xml_workdata.h"

#include <QTemporaryDir>
#include <QtTest>

using namespace zrktest;

namespace {

struct Track
{
    const char* node;
    std::vector<std::pair<const char*, int>> keys;
    const char* flagKey; // the one string the group writes, if any
    const char* flagValue;
};

// The track page's groups, as its save writes them.
const std::vector<Track> kTrack = {
    { "POINTS",
        { { "useMoveSens", 1 }, { "useMaxSpeed", 0 }, { "maxSpeed", 100 }, { "angleMode", 2 }, { "angle", 5 },
            { "useDist", 1 }, { "dist", 500 }, { "useTimer", 1 }, { "moveTimer", 60 }, { "stopTimer", 600 } },
        "moveTimerSens", "0000" },
    { "LIMPOINT", { { "blockDist", 1 }, { "dist", 10 }, { "blockTimer", 0 }, { "timer", 5 } }, nullptr,
        nullptr },
    { "COORDFLT",
        { { "use", 1 }, { "minSats", 4 }, { "maxSpeed", 200 }, { "maxAccel", 25 }, { "maxDist", 100 },
            { "maxFilterCnt", 5 }, { "minAlt", -100 }, { "maxAlt", 3000 }, { "deltaNTP", 5 } },
        "maxHDOP", "2.5" },
    { "COORDAVER", { { "mode", 1 } }, "sensors", "11101" },
    { "MOVESENS", { { "mode", 1 }, { "stopTimer", 30 } }, nullptr, nullptr },
    { "GNSS", { { "angle", 1 }, { "coldRstTimer", 0 } }, "mode", "11000" },
};

// The track page's writeFormParam against a root facade.
void writeTrackPage(CXMLWorkData* root)
{
    std::unique_ptr<CXMLWorkData> track(root->createNode("TRACK", 0));
    QVERIFY(track);
    track->clearNode();
    track->writeString("page", "TRACK");
    for (const Track& group : kTrack) {
        std::unique_ptr<CXMLWorkData> node(track->createNode(group.node, 3));
        QVERIFY(node);
        node->clearNode();
        for (const auto& kv : group.keys)
            node->writeInteger(kv.first, kv.second);
        if (group.flagKey)
            node->writeString(group.flagKey, group.flagValue);
        node->writeParameters();
    }
    track->writeParameters();
}

// The configuration window's save: root "DEVICE", header keys, pages, then the file.
void saveConfiguration(const QString& path)
{
    CXMLWorkData root(path, QStringLiteral("DEVICE"));
    QVERIFY(root.serializer());
    root.clearNode();
    root.writeString("model", "Torvin K-7140");
    root.writeString("version", "3.5.8");
    root.writeString("creator", "config");
    root.writeString("vendor", "Torvin");
    writeTrackPage(&root);
    root.writeParameters();
    closeFile(root, true);
}

} // namespace

class tst_ConfigFacade : public QObject
{
    Q_OBJECT
private slots:
    void trackPageSavesAndReadsBack();
    void repeatedRecords();
    void createNodeModes();
    void listIsASnapshot();
    void writeToUnclearedNodeAppends();
    void readParametersOrderAndLimits();
    void clearNodeDepthRule();
    void textElementWriters();
    void coloursAndFonts();
    void nodesWithoutSerializer();
};

void tst_ConfigFacade::trackPageSavesAndReadsBack()
{
    QTemporaryDir dir;
    const QString path = dir.filePath(QString::fromUtf8("конфиг.xml")); // a local 8-bit path
    saveConfiguration(path);
    const QByteArray first = readFile(path);
    QCOMPARE(first, readFile(dataFile("track_page.xml")));
    // Saving over the loaded file clears each branch first: nothing is appended twice.
    saveConfiguration(path);
    QCOMPARE(readFile(path), first);

    // The page's reading sequence, with the defaults for what is not there.
    CXMLWorkData root(path, QStringLiteral("DEVICE"));
    QVERIFY(root.serializer());
    QCOMPARE(root.readString("version"), QStringLiteral("3.5.8"));
    std::unique_ptr<CXMLWorkData> track(root.createNode("TRACK", 0));
    QCOMPARE(track->readString("page"), QStringLiteral("TRACK"));
    const auto read = [&](const char* node, const char* key, int def) {
        std::unique_ptr<CXMLWorkData> group(track->createNode(node, 0));
        return group ? group->readInteger(key, def) : -999;
    };
    // The same key in another record, a negative value, a missing key, a missing record.
    QCOMPARE(QVector<int>({ read("POINTS", "maxSpeed", 1), read("COORDFLT", "maxSpeed", 1),
                 read("COORDFLT", "minAlt", 0), read("POINTS", "angleModeX", 2), read("NOSUCH", "x", 9) }),
        QVector<int>({ 100, 200, -100, 2, 9 }));
    std::unique_ptr<CXMLWorkData> flt(track->createNode("COORDFLT", 0));
    QCOMPARE(flt->readFloat("maxHDOP", 0), 2.5f);
    closeFile(root, false);
}

void tst_ConfigFacade::repeatedRecords()
{
    const auto doc = parsed();
    {
        CXMLWorkData root(doc.get(), "AINF");
        std::unique_ptr<CXMLWorkData> zones(root.createNode("ZONES", 0));
        zones->writeInteger("count", 3);
        const char* names[] = { "Склад", "Depot & yard", "Гараж <2>" };
        for (int i = 0; i < 3; ++i) {
            std::unique_ptr<CXMLWorkData> z(zones->createNode("Zone", 3));
            z->writeInteger("id", 10 + i);
            QString name = QString::fromUtf8(names[i]);
            z->writeString("name", name);
            z->writeFloat("radius", 50.5f * (i + 1));
            z->writeParameters();
        }
        zones->writeParameters();
    }
    const QByteArray text = rendered(*doc);
    QVERIFY(text.contains("\t\t<Zone id=\"10\" name=\"\xD1\xEA\xEB\xE0\xE4\" radius=\"50.500000\"/>\n"
                          "\t\t<Zone id=\"11\" name=\"Depot &amp; yard\" radius=\"101.000000\"/>\n"));

    // Read through a fresh document made from the rendered text.
    const auto reread = parsed(text);
    CXMLWorkData root(reread.get(), "AINF");
    std::unique_ptr<CXMLWorkData> zones(root.createNode("ZONES", 0));
    QCOMPARE(zones->readInteger("count", 0), 3);
    QStringList seen;
    for (CXMLWorkData* cursor = zones->getFirstNode("Zone"); cursor; zones->moveToNextNode(cursor)) {
        QString name;
        cursor->readString("name", QString(), name);
        seen << QStringLiteral("%1:%2:%3")
                    .arg(cursor->readInteger("id", 0))
                    .arg(name)
                    .arg(cursor->readDouble("radius", 0));
    }
    QCOMPARE(seen,
        QStringList({ QString::fromUtf8("10:Склад:50.5"), QStringLiteral("11:Depot & yard:101"),
            QString::fromUtf8("12:Гараж <2>:151.5") }));
}

void tst_ConfigFacade::createNodeModes()
{
    const auto doc = parsed();
    CXMLWorkData root(doc.get(), "DEVICE");
    std::unique_ptr<CXMLWorkData> p1(root.createNode("POINTS", 3));
    std::unique_ptr<CXMLWorkData> p2(root.createNode("POINTS", 3));
    QVERIFY(p1 && p2);
    QVERIFY(p1->tag() != p2->tag());
    QCOMPARE(std::unique_ptr<CXMLWorkData>(root.createNode("POINTS", 0))->tag(), p1->tag());
    std::unique_ptr<CXMLWorkData> appended(root.createNode("POINTS", 1));
    QCOMPARE(appended->tag()->type, 0);
    for (int mode : { 2, -1, 4 }) {
        QVERIFY(!root.createNode("POINTS", mode));
        QVERIFY(!root.createNode("OTHER", mode));
    }
    QCOMPARE(root.tag()->children.count(), 3);
}

void tst_ConfigFacade::listIsASnapshot()
{
    const auto doc = parsed(kDecl + "<D><N a=\"1\"/></D>");
    CXMLWorkData root(doc.get(), "D");
    std::unique_ptr<CXMLWorkData> a(root.createNode("N", 0));
    std::unique_ptr<CXMLWorkData> b(root.createNode("N", 0));
    b->writeInteger("x", 5);
    QCOMPARE(b->tag()->values.count(), 1); // not in the element until committed
    b->writeParameters();
    QCOMPARE(a->readInteger("x", 0), 0); // a still holds its old list
    a->readParameters();
    QCOMPARE(a->readInteger("x", 0), 5);
    // The parent's list knows nothing of children created after it was read.
    std::unique_ptr<CXMLWorkData> c(root.createNode("NEW", 0));
    QVERIFY(!root.getFirstNode("NEW"));
    root.readParameters();
    std::unique_ptr<CXMLWorkData> viaList(root.getFirstNode("NEW"));
    QCOMPARE(viaList->tag(), c->tag());
}

void tst_ConfigFacade::writeToUnclearedNodeAppends()
{
    const auto doc = parsed(kDecl + "<D><N a=\"1\"/><NAME>old</NAME></D>");
    CXMLWorkData root(doc.get(), "D");
    std::unique_ptr<CXMLWorkData> n(root.createNode("N", 0));
    n->writeInteger("a", 2);
    n->writeInteger("a", 3);
    QCOMPARE(n->params.count, 1);
    n->writeParameters();
    // The freshly bound list already held a="1"; it is rewritten, then appended as a second entry.
    QCOMPARE(n->tag()->values.count(), 2);
    QCOMPARE(n->tag()->values.getNumTag(0)->value, QStringLiteral("1"));
    QCOMPARE(n->tag()->values.getNumTag(1)->value, QStringLiteral("3"));
    QVERIFY(rendered(*doc).contains("<N a=\"3\">"));

    // An item that names a child element sets that child's text, taken as Latin-1.
    QString cyr = QString::fromUtf8("Щ");
    root.writeString("NAME", cyr);
    root.writeParameters();
    QCOMPARE(root.tag()->values.count(), 0);
    QCOMPARE(root.tag()->children.getNumTag(1)->value, QString::fromLatin1(cyr.toLocal8Bit()));

    // An entity in a new attribute's value is decoded once when the attribute is made.
    root.writeString("v", "a&amp;b &lt;tag&gt; wow_33_");
    root.writeParameters();
    QCOMPARE(root.tag()->values.getNumTag(0)->value, QStringLiteral("a&b <tag> wow!"));
    QVERIFY(rendered(*doc).contains("<D v=\"a&amp;b &lt;tag&gt; wow!\">"));
}

void tst_ConfigFacade::readParametersOrderAndLimits()
{
    const QByteArray longValue(300, 'v');
    const auto doc = parsed(kDecl + "<D z=\"1\" a=\"" + longValue + "\"><C>text</C><B x=\"1\"/></D>");
    CXMLWorkData root(doc.get(), "D");
    // Attributes in document order, then children; values cut to 254 bytes.
    QByteArray seen;
    for (int i = 0; i < root.params.count; ++i)
        seen += QByteArray(root.params.items[i].name) + QByteArray::number(root.params.items[i].isNode) + ' ';
    QCOMPARE(seen, QByteArray("z0 a0 C1 B1 "));
    QCOMPARE(QByteArray(root.params.items[1].value), longValue.left(254));
    QCOMPARE(QByteArray(root.params.items[2].value), QByteArray("text"));
    // An element with nothing in it leaves the list as it was.
    std::unique_ptr<CXMLWorkData> empty(root.createNode("EMPTY", 0));
    empty->writeInteger("k", 1);
    empty->readParameters();
    QCOMPARE(empty->params.count, 1);
}

void tst_ConfigFacade::clearNodeDepthRule()
{
    const auto doc = parsed(kDecl + "<D r=\"1\"><C c=\"1\"><G g=\"1\"><H/></G></C></D>");
    CXMLWorkData root(doc.get(), "D");
    std::unique_ptr<CXMLWorkData> c(root.createNode("C", 0));
    std::unique_ptr<CXMLWorkData> g(c->createNode("G", 0));
    QCOMPARE(g->params.count, 2);
    g->clearNode();
    QCOMPARE(g->params.count, 0);
    QCOMPARE(g->tag()->values.count() + g->tag()->children.count(), 2); // a grandchild's element stays
    g.reset(); // its element is about to go with its parent's clear
    c->clearNode();
    QCOMPARE(c->params.count, 0);
    QCOMPARE(c->tag()->values.count() + c->tag()->children.count(), 0);
    QCOMPARE(root.tag()->values.count(), 1);
}

void tst_ConfigFacade::textElementWriters()
{
    const auto doc = parsed();
    CXMLWorkData root(doc.get(), "D");
    root.writeStringZRK("S", QString::fromUtf8("Привет"));
    root.writeStringZRK("N", static_cast<const char*>(nullptr));
    root.writeIntegerZRK("I", -42);
    root.writeFloatZRK("F", 2.5f);
    root.writeStringZRK("S", "again"); // mode 0: the same element, new text
    root.writeIntegerZRK("U", Qt::Unchecked);
    root.writeIntegerZRK("P", Qt::PartiallyChecked);
    root.writeIntegerZRK("X", static_cast<Qt::CheckState>(3)); // no such state: nothing
    std::unique_ptr<CXMLWorkData> c(root.createNodeZRK("C", QString::fromUtf8("Ж")));
    QCOMPARE(c->tag()->type, 2);
    const QByteArray text = rendered(*doc);
    QCOMPARE(text,
        kDecl
            + "<D>\n\t<S>again</S>\n\t<N />\n\t<I>-42</I>\n\t<F>2.500000</F>\n\t<U>0</U>\n\t<P>1</P>\n"
              "\t<C>\xC6</C>\n</D>\n");
    // Text elements read back as items of their parent.
    const auto reread = parsed(text);
    CXMLWorkData r(reread.get(), "D");
    QCOMPARE(r.readInteger("I", 0), -42);
    QCOMPARE(r.readString("C"), QString::fromUtf8("Ж"));
    QCOMPARE(r.readString("N", QStringLiteral("dflt")), QString());
}

void tst_ConfigFacade::coloursAndFonts()
{
    const auto doc = parsed();
    CXMLWorkData root(doc.get(), "D");
    root.writeColor("white", QColor(255, 255, 255));
    root.writeColor("half", QColor(1, 2, 3, 128));
    root.writeString("rgb", "10,20,30");
    root.writeString("partial", "x,5");
    QCOMPARE(QByteArray(root.params.findParameter("white", 0)->value), QByteArray("-1"));
    QCOMPARE(root.readColor("white", Qt::black), QColor(255, 255, 255, 255));
    QCOMPARE(root.readColor("half", Qt::black), QColor(1, 2, 3, 255)); // alpha is not kept
    QCOMPARE(root.readColor("none", QColor(9, 8, 7)), QColor(9, 8, 7));
    QCOMPARE(root.readColorString("rgb", Qt::black), QColor(10, 20, 30, 255));
    QCOMPARE(root.readColorString("partial", Qt::black), QColor(0, 5, 0, 255));
    QCOMPARE(root.readColorString("none", QColor(1, 1, 1)), QColor(1, 1, 1));

    const auto fonts = parsed();
    CXMLWorkData froot(fonts.get(), "D");
    QFont f(QStringLiteral("Serif Test"), 13);
    f.setWeight(QFont::DemiBold);
    f.setItalic(true);
    froot.writeFont("MAPFONT", f);
    QCOMPARE(rendered(*fonts),
        kDecl
            + "<D>\n\t<MAPFONT Bold=\"1\" Family=\"Serif Test\" Italic=\"1\" Size=\"13\" Strikeout=\"0\" "
              "Underline=\"0\">\n\t</MAPFONT>\n</D>\n");
    const auto describe = [](const QFont& x) {
        return QStringLiteral("%1/%2/%3/%4%5%6")
            .arg(x.family())
            .arg(x.pointSize())
            .arg(x.weight())
            .arg(x.italic())
            .arg(x.underline())
            .arg(x.strikeOut());
    };
    QCOMPARE(describe(froot.readFont("MAPFONT", QFont())), QStringLiteral("Serif Test/13/75/100"));
    // A missing font node is created, and every field comes from the default.
    QFont def(QStringLiteral("Default Face"), 7);
    def.setStrikeOut(true);
    QCOMPARE(describe(froot.readFont("NOFONT", def)), QStringLiteral("Default Face/7/50/001"));
    QVERIFY(froot.tag()->children.exists(QStringLiteral("NOFONT")));
}

void tst_ConfigFacade::nodesWithoutSerializer()
{
    CXMLWorkData none;
    QVERIFY(!none.createNode("X", 0));
    QVERIFY(!none.createNodeZRK("X", 1));
    none.writeIntegerZRK("X", 1);
    none.writeFont("F", QFont());
    QCOMPARE(none.readFont("F", QFont(QStringLiteral("Keep"), 5)).family(), QStringLiteral("Keep"));
    none.writeInteger("k", 1);
    none.writeParameters(); // goes nowhere
    QCOMPARE(none.readInteger("k", 0), 1);
    none.clearNode();
    QCOMPARE(none.params.count + none.getCountParamsInTag(), 0);
    // Null records are ignored by every entry point.
    zrk_Create_Node(nullptr);
    coreCreateNode noSer {};
    zrk_Create_Node(&noSer);
    QVERIFY(!noSer.result);
    zrk_Get_Count_Data(nullptr, nullptr);
    zrk_Get_Data(nullptr, nullptr);
    zrk_Write_Data(nullptr, nullptr);
    zrk_Clear_Node(nullptr);
    zrk_StartSZ(nullptr);
}

QTEST_MAIN(tst_ConfigFacade)
#include "tst_config_facade.moc"

// The node facade as the configuration pages use it, through files and memory documents.
#include "config_model/serialize.h"
#include "config_model/xml_workdata.h"

#include <QFile>
#include <QTemporaryDir>
#include <QtTest>

#include <memory>

namespace {

const QByteArray kDecl = "<?xml version=\"1.0\" encoding=\"windows-1251\"?>\n";

QByteArray readFile(const QString& path)
{
    QFile f(path);
    if (!f.open(QIODevice::ReadOnly))
        return QByteArray("<cannot open ") + path.toLocal8Bit() + ">";
    return f.readAll();
}

// A memory document for one test; ends with the test.
struct MemoryDoc
{
    explicit MemoryDoc(const QByteArray& text = QByteArray())
        : bytes(text)
    {
        memo.size = bytes.size();
        memo.data = reinterpret_cast<unsigned char*>(bytes.data());
        zrk_StartSZMemo(&memo);
    }
    ~MemoryDoc()
    {
        if (memo.handle) {
            zrk_GetSZMemo(&memo);
            QByteArray sink(memo.size, '\0');
            memo.data = reinterpret_cast<unsigned char*>(sink.data());
            zrk_StopSZMemo(&memo);
        }
    }
    QByteArray render()
    {
        zrk_GetSZMemo(&memo);
        return memo.handle->outputData();
    }
    CSerialize* ser() const { return memo.handle; }

    QByteArray bytes;
    coreSzCreateMemo memo {};
};

struct Track
{
    const char* node;
    std::vector<std::pair<const char*, int>> keys;
};

// The track page's groups, as its save writes them (integers only; the flag strings below).
const std::vector<Track> kTrack = {
    { "POINTS",
        { { "useMoveSens", 1 }, { "useMaxSpeed", 0 }, { "maxSpeed", 100 }, { "angleMode", 2 }, { "angle", 5 },
            { "useDist", 1 }, { "dist", 500 }, { "useTimer", 1 }, { "moveTimer", 60 },
            { "stopTimer", 600 } } },
    { "LIMPOINT", { { "blockDist", 1 }, { "dist", 10 }, { "blockTimer", 0 }, { "timer", 5 } } },
    { "COORDFLT",
        { { "use", 1 }, { "minSats", 4 }, { "maxSpeed", 200 }, { "maxAccel", 25 }, { "maxDist", 100 },
            { "maxFilterCnt", 5 }, { "minAlt", -100 }, { "maxAlt", 3000 }, { "deltaNTP", 5 } } },
    { "COORDAVER", { { "mode", 1 } } },
    { "MOVESENS", { { "mode", 1 }, { "stopTimer", 30 } } },
    { "GNSS", { { "angle", 1 }, { "coldRstTimer", 0 } } },
};

// The track page's writeFormParam against a root facade.
void writeTrackPage(CXMLWorkData* root)
{
    CXMLWorkData* track = root->createNode("TRACK", 0);
    QVERIFY(track);
    track->clearNode();
    track->writeString("page", "TRACK");
    for (const Track& group : kTrack) {
        CXMLWorkData* node = track->createNode(group.node, 3);
        QVERIFY(node);
        node->clearNode();
        for (const auto& kv : group.keys)
            node->writeInteger(kv.first, kv.second);
        if (QByteArray(group.node) == "POINTS")
            node->writeString("moveTimerSens", "0000");
        if (QByteArray(group.node) == "COORDFLT")
            node->writeString("maxHDOP", "2.5");
        if (QByteArray(group.node) == "COORDAVER")
            node->writeString("sensors", "11101");
        if (QByteArray(group.node) == "GNSS")
            node->writeString("mode", "11000");
        node->writeParameters();
        delete node;
    }
    track->writeParameters();
    delete track;
}

// The configuration window's save: root "DEVICE", header keys, pages, then the file.
void saveConfiguration(const QString& path)
{
    auto* root = new CXMLWorkData(path, QStringLiteral("DEVICE"));
    QVERIFY(root->serializer());
    root->clearNode();
    root->writeString("model", "Torvin K-7140");
    root->writeString("version", "3.5.8");
    root->writeString("creator", "config");
    root->writeString("vendor", "Torvin");
    writeTrackPage(root);
    root->writeParameters();
    coreSzNode node {};
    root->fillNodeData(node);
    zrk_StopSZ(node.serializer, true);
    delete root; // the serializer is already gone; the facade owns only its list
}

} // namespace

class tst_ConfigFacade : public QObject
{
    Q_OBJECT
private slots:
    void trackPageSaveIsByteExact();
    void trackPageReadsBackWithDefaults_data();
    void trackPageReadsBackWithDefaults();
    void savingTwiceGivesTheSameFile();
    void repeatedRecords();
    void modesThroughTheFacade();
    void listIsASnapshot();
    void writeToUnclearedNodeAppends();
    void writeParametersSetsChildText();
    void readParametersOrderAndLimits();
    void clearNodeDepthRule();
    void entityInNewAttributeIsDecoded();
    void textElementWriters();
    void checkStateWriter_data();
    void checkStateWriter();
    void colours();
    void fonts();
    void cyrillicThroughAFile();
    void nodesWithoutSerializer();
};

void tst_ConfigFacade::trackPageSaveIsByteExact()
{
    QTemporaryDir dir;
    const QString path = dir.filePath(QStringLiteral("k7140.xml"));
    saveConfiguration(path);
    QCOMPARE(readFile(path), readFile(QStringLiteral(ZRK_TEST_DATA_DIR "/track_page.xml")));
}

void tst_ConfigFacade::trackPageReadsBackWithDefaults_data()
{
    QTest::addColumn<QByteArray>("node");
    QTest::addColumn<QByteArray>("key");
    QTest::addColumn<int>("def");
    QTest::addColumn<int>("expected");
    QTest::newRow("stored useMoveSens") << QByteArray("POINTS") << QByteArray("useMoveSens") << 0 << 1;
    QTest::newRow("stored maxSpeed") << QByteArray("POINTS") << QByteArray("maxSpeed") << 1 << 100;
    QTest::newRow("same key in another record")
        << QByteArray("COORDFLT") << QByteArray("maxSpeed") << 1 << 200;
    QTest::newRow("negative") << QByteArray("COORDFLT") << QByteArray("minAlt") << 0 << -100;
    QTest::newRow("missing key gives default") << QByteArray("POINTS") << QByteArray("angleModeX") << 2 << 2;
    QTest::newRow("missing record gives default") << QByteArray("NOSUCH") << QByteArray("x") << 9 << 9;
}

void tst_ConfigFacade::trackPageReadsBackWithDefaults()
{
    QFETCH(QByteArray, node);
    QFETCH(QByteArray, key);
    QFETCH(int, def);
    QFETCH(int, expected);
    QTemporaryDir dir;
    const QString path = dir.filePath(QStringLiteral("k7140.xml"));
    saveConfiguration(path);

    CXMLWorkData root(path, QStringLiteral("DEVICE"));
    QVERIFY(root.serializer());
    QCOMPARE(root.readString("version"), QStringLiteral("3.5.8"));
    std::unique_ptr<CXMLWorkData> track(root.createNode("TRACK", 0));
    QVERIFY(track);
    QCOMPARE(track->readString("page"), QStringLiteral("TRACK"));
    std::unique_ptr<CXMLWorkData> group(track->createNode(node.constData(), 0));
    QVERIFY(group);
    QCOMPARE(group->readInteger(key.constData(), def), expected);
    if (node == "COORDFLT")
        QCOMPARE(group->readFloat("maxHDOP", 0), 2.5f);
    coreSzNode n {};
    root.fillNodeData(n);
    zrk_StopSZ(n.serializer, false);
}

void tst_ConfigFacade::savingTwiceGivesTheSameFile()
{
    // Load the saved file, save the whole configuration over it again: every page clears its
    // branch first, so nothing is appended twice and the records are records again.
    QTemporaryDir dir;
    const QString path = dir.filePath(QStringLiteral("k7140.xml"));
    saveConfiguration(path);
    const QByteArray first = readFile(path);
    saveConfiguration(path);
    QCOMPARE(readFile(path), first);

    // Saving the page over a loaded file clears its branch first: one set of records, not
    // two; a further mode-3 creation appends a seventh record.
    auto* root = new CXMLWorkData(path, QStringLiteral("DEVICE"));
    writeTrackPage(root);
    std::unique_ptr<CXMLWorkData> track(root->createNode("TRACK", 0));
    int points = 0;
    for (const CXmlTagV2* c : track->tag()->children)
        points += c->name == QLatin1String("POINTS");
    QCOMPARE(points, 1);
    std::unique_ptr<CXMLWorkData> again(track->createNode("POINTS", 3));
    QCOMPARE(track->getCountParamsInTag(), 1 + 7);
    coreSzNode n {};
    root->fillNodeData(n);
    zrk_StopSZ(n.serializer, false);
    delete root;
}

void tst_ConfigFacade::repeatedRecords()
{
    MemoryDoc doc;
    QVERIFY(doc.ser());
    {
        CXMLWorkData root(doc.ser(), "AINF");
        std::unique_ptr<CXMLWorkData> zones(root.createNode("ZONES", 0));
        zones->clearNode();
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
    const QByteArray text = doc.render();
    QVERIFY(text.contains("\t\t<Zone id=\"11\" name=\"Depot &amp; yard\" radius=\"101.000000\"/>\n"));

    // Read through a fresh document made from the rendered text.
    MemoryDoc reread(text);
    QVERIFY(reread.ser());
    CXMLWorkData root(reread.ser(), "AINF");
    std::unique_ptr<CXMLWorkData> zones(root.createNode("ZONES", 0));
    QCOMPARE(zones->readInteger("count", 0), 3);
    QStringList seen;
    CXMLWorkData* cursor = zones->getFirstNode("Zone");
    while (cursor) {
        QString name;
        cursor->readString("name", QString(), name);
        seen << QStringLiteral("%1:%2:%3")
                    .arg(cursor->readInteger("id", 0))
                    .arg(name)
                    .arg(cursor->readDouble("radius", 0));
        zones->moveToNextNode(cursor);
    }
    QCOMPARE(seen,
        QStringList({ QString::fromUtf8("10:Склад:50.5"), QStringLiteral("11:Depot & yard:101"),
            QString::fromUtf8("12:Гараж <2>:151.5") }));
}

void tst_ConfigFacade::modesThroughTheFacade()
{
    MemoryDoc doc;
    CXMLWorkData root(doc.ser(), "DEVICE");
    std::unique_ptr<CXMLWorkData> p1(root.createNode("POINTS", 3));
    std::unique_ptr<CXMLWorkData> p2(root.createNode("POINTS", 3));
    QVERIFY(p1 && p2);
    QVERIFY(p1->tag() != p2->tag());
    std::unique_ptr<CXMLWorkData> found(root.createNode("POINTS", 0));
    QCOMPARE(found->tag(), p1->tag());
    std::unique_ptr<CXMLWorkData> appended(root.createNode("POINTS", 1));
    QCOMPARE(root.tag()->children.count(), 3);
    QCOMPARE(appended->tag()->type, 0);
    for (int mode : { 2, -1, 4 }) {
        QVERIFY(!root.createNode("POINTS", mode));
        QVERIFY(!root.createNode("OTHER", mode));
    }
    QCOMPARE(root.tag()->children.count(), 3);
    QCOMPARE(root.getCountParamsInTag(), 3);
}

void tst_ConfigFacade::listIsASnapshot()
{
    MemoryDoc doc(kDecl + "<D><N a=\"1\"/></D>");
    CXMLWorkData root(doc.ser(), "D");
    std::unique_ptr<CXMLWorkData> a(root.createNode("N", 0));
    std::unique_ptr<CXMLWorkData> b(root.createNode("N", 0));
    QCOMPARE(a->readInteger("a", 0), 1);
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
    QVERIFY(viaList);
    QCOMPARE(viaList->tag(), c->tag());
}

void tst_ConfigFacade::writeToUnclearedNodeAppends()
{
    MemoryDoc doc(kDecl + "<D><N a=\"1\"/></D>");
    CXMLWorkData root(doc.ser(), "D");
    std::unique_ptr<CXMLWorkData> n(root.createNode("N", 0));
    n->writeInteger("a", 2);
    n->writeInteger("a", 3);
    QCOMPARE(n->params.count, 1);
    n->writeParameters();
    // The freshly bound list already held a="1"; it is rewritten, then appended as a second entry.
    QCOMPARE(n->tag()->values.count(), 2);
    QCOMPARE(n->tag()->values.getNumTag(0)->value, QStringLiteral("1"));
    QCOMPARE(n->tag()->values.getNumTag(1)->value, QStringLiteral("3"));
    QVERIFY(doc.render().contains("<N a=\"3\">"));
}

void tst_ConfigFacade::writeParametersSetsChildText()
{
    MemoryDoc doc(kDecl + "<D><NAME>old</NAME></D>");
    CXMLWorkData root(doc.ser(), "D");
    root.writeString("NAME", "new");
    root.writeParameters();
    QCOMPARE(root.tag()->values.count(), 0);
    QCOMPARE(root.tag()->children.getNumTag(0)->value, QStringLiteral("new"));
    // The child's text is taken as Latin-1: local 8-bit (UTF-8 here) bytes are not decoded.
    QString cyr = QString::fromUtf8("Щ");
    root.writeString("NAME", cyr);
    root.writeParameters();
    QCOMPARE(root.tag()->children.getNumTag(0)->value, QString::fromLatin1(cyr.toLocal8Bit()));
}

void tst_ConfigFacade::readParametersOrderAndLimits()
{
    const QByteArray longValue(300, 'v');
    MemoryDoc doc(kDecl + "<D z=\"1\" a=\"" + longValue + "\"><C>text</C><B x=\"1\"/></D>");
    CXMLWorkData root(doc.ser(), "D");
    QCOMPARE(root.params.count, 4);
    QCOMPARE(QByteArray(root.params.items[0].name), QByteArray("z")); // attributes in document order
    QCOMPARE(QByteArray(root.params.items[1].value), longValue.left(254));
    QCOMPARE(root.params.items[1].isNode, 0);
    QCOMPARE(QByteArray(root.params.items[2].name), QByteArray("C")); // then children
    QCOMPARE(QByteArray(root.params.items[2].value), QByteArray("text"));
    QCOMPARE(root.params.items[2].isNode, 1);
    QCOMPARE(root.params.items[3].isNode, 1);
    QCOMPARE(root.getCountParamsInTag(), 4);
    // An element with nothing in it leaves the list as it was.
    std::unique_ptr<CXMLWorkData> empty(root.createNode("EMPTY", 0));
    empty->writeInteger("k", 1);
    empty->readParameters();
    QCOMPARE(empty->params.count, 1);
}

void tst_ConfigFacade::clearNodeDepthRule()
{
    MemoryDoc doc(kDecl + "<D r=\"1\"><C c=\"1\"><G g=\"1\"><H/></G></C></D>");
    CXMLWorkData root(doc.ser(), "D");
    std::unique_ptr<CXMLWorkData> c(root.createNode("C", 0));
    std::unique_ptr<CXMLWorkData> g(c->createNode("G", 0));
    QCOMPARE(g->params.count, 2);
    g->clearNode();
    QCOMPARE(g->params.count, 0);
    QCOMPARE(g->tag()->values.count(), 1); // a grandchild's element is left alone
    QCOMPARE(g->tag()->children.count(), 1);
    g.reset(); // its element is about to go with its parent's clear
    c->clearNode();
    QCOMPARE(c->params.count, 0);
    QCOMPARE(c->tag()->values.count(), 0);
    QCOMPARE(c->tag()->children.count(), 0);
    root.clearNode();
    QCOMPARE(root.tag()->children.count(), 0);
    QCOMPARE(root.tag()->values.count(), 0);
}

void tst_ConfigFacade::entityInNewAttributeIsDecoded()
{
    MemoryDoc doc;
    CXMLWorkData root(doc.ser(), "D");
    root.writeString("v", "a&amp;b &lt;tag&gt; wow_33_");
    root.writeParameters();
    QCOMPARE(root.tag()->values.getNumTag(0)->value, QStringLiteral("a&b <tag> wow!"));
    QVERIFY(doc.render().contains("v=\"a&amp;b &lt;tag&gt; wow!\""));
}

void tst_ConfigFacade::textElementWriters()
{
    MemoryDoc doc;
    CXMLWorkData root(doc.ser(), "D");
    root.writeStringZRK("S", QString::fromUtf8("Привет"));
    root.writeStringZRK("N", static_cast<const char*>(nullptr));
    root.writeIntegerZRK("I", -42);
    root.writeFloatZRK("F", 2.5f);
    root.writeStringZRK("S", "again"); // mode 0: the same element, new text
    QCOMPARE(doc.render(),
        kDecl
            + "<D>\n\t<S>again</S>\n\t<N />\n\t<I>-42</I>\n\t<F>2.500000</F>\n"
              "</D>\n");
    std::unique_ptr<CXMLWorkData> s(root.createNodeZRK("C", QString::fromUtf8("Ж")));
    QVERIFY(s);
    QCOMPARE(s->tag()->type, 2);
    QVERIFY(doc.render().contains("\t<C>\xC6</C>\n"));
    // Text elements read back as items of their parent.
    MemoryDoc reread(doc.render());
    CXMLWorkData r(reread.ser(), "D");
    QCOMPARE(r.readInteger("I", 0), -42);
    QCOMPARE(r.readFloat("F", 0), 2.5f);
    QCOMPARE(r.readString("C"), QString::fromUtf8("Ж"));
    QCOMPARE(r.readString("N", QStringLiteral("dflt")), QString());
}

void tst_ConfigFacade::checkStateWriter_data()
{
    QTest::addColumn<int>("state");
    QTest::addColumn<QByteArray>("written");
    QTest::newRow("unchecked") << int(Qt::Unchecked) << QByteArray("\t<E>0</E>\n");
    QTest::newRow("partially checked") << int(Qt::PartiallyChecked) << QByteArray("\t<E>1</E>\n");
    QTest::newRow("checked") << int(Qt::Checked) << QByteArray("\t<E>1</E>\n");
    QTest::newRow("no such state writes nothing") << 3 << QByteArray();
}

void tst_ConfigFacade::checkStateWriter()
{
    QFETCH(int, state);
    QFETCH(QByteArray, written);
    MemoryDoc doc;
    CXMLWorkData root(doc.ser(), "D");
    root.writeIntegerZRK("E", static_cast<Qt::CheckState>(state));
    QCOMPARE(doc.render(), kDecl + "<D>\n" + written + "</D>\n");
}

void tst_ConfigFacade::colours()
{
    MemoryDoc doc;
    CXMLWorkData root(doc.ser(), "D");
    root.writeColor("white", QColor(255, 255, 255));
    root.writeColor("half", QColor(1, 2, 3, 128));
    QCOMPARE(QByteArray(root.params.findParameter("white", 0)->value), QByteArray("-1"));
    QCOMPARE(root.readColor("white", Qt::black), QColor(255, 255, 255, 255));
    // Alpha is not kept on reading.
    QCOMPARE(root.readColor("half", Qt::black), QColor(1, 2, 3, 255));
    QCOMPARE(root.readColor("none", QColor(9, 8, 7)), QColor(9, 8, 7));

    root.writeString("rgb", "10,20,30");
    root.writeString("partial", "x,5");
    root.writeString("empty", "");
    QCOMPARE(root.readColorString("rgb", Qt::black), QColor(10, 20, 30, 255));
    QCOMPARE(root.readColorString("partial", Qt::black), QColor(0, 5, 0, 255));
    QCOMPARE(root.readColorString("empty", QColor(1, 1, 1)), QColor(1, 1, 1));
    QCOMPARE(root.readColorString("none", QColor(1, 1, 1)), QColor(1, 1, 1));
}

void tst_ConfigFacade::fonts()
{
    MemoryDoc doc;
    CXMLWorkData root(doc.ser(), "D");
    QFont f(QStringLiteral("Serif Test"), 13);
    f.setWeight(QFont::DemiBold);
    f.setItalic(true);
    f.setUnderline(true);
    root.writeFont("MAPFONT", f);
    QCOMPARE(doc.render(),
        kDecl
            + "<D>\n\t<MAPFONT Bold=\"1\" Family=\"Serif Test\" Italic=\"1\" Size=\"13\" "
              "Strikeout=\"0\" Underline=\"1\">\n\t</MAPFONT>\n</D>\n");
    const QFont back = root.readFont("MAPFONT", QFont());
    QCOMPARE(back.family(), QStringLiteral("Serif Test"));
    QCOMPARE(back.pointSize(), 13);
    QCOMPARE(back.weight(), int(QFont::Bold));
    QCOMPARE(back.style(), QFont::StyleItalic);
    QVERIFY(back.underline());
    QVERIFY(!back.strikeOut());

    // A missing font node is created, and every field comes from the default.
    QFont def(QStringLiteral("Default Face"), 7);
    def.setStrikeOut(true);
    const QFont d = root.readFont("NOFONT", def);
    QCOMPARE(d.family(), QStringLiteral("Default Face"));
    QCOMPARE(d.pointSize(), 7);
    QCOMPARE(d.weight(), int(QFont::Normal));
    QVERIFY(d.strikeOut());
    QVERIFY(root.tag()->children.exists(QStringLiteral("NOFONT")));
}

void tst_ConfigFacade::cyrillicThroughAFile()
{
    QTemporaryDir dir;
    const QString path = dir.filePath(QString::fromUtf8("конфиг.xml"));
    {
        auto* root = new CXMLWorkData(path, QStringLiteral("DEVICE"));
        QVERIFY(root->serializer());
        QString driver = QString::fromUtf8("Иванов И.И. — №5");
        root->writeString("driver", driver);
        root->writeParameters();
        coreSzNode n {};
        root->fillNodeData(n);
        delete root; // destroying the facade leaves the serializer open
        zrk_StopSZ(n.serializer, true);
    }
    const QByteArray bytes = readFile(path);
    QCOMPARE(bytes,
        kDecl
            + "<DEVICE driver=\"\xC8\xE2\xE0\xED\xEE\xE2 \xC8.\xC8. \x97 \xB9"
              "5\">\n</DEVICE>\n");
    CXMLWorkData root(path, QStringLiteral("DEVICE"));
    QCOMPARE(root.readString("driver"), QString::fromUtf8("Иванов И.И. — №5"));
    coreSzNode n {};
    root.fillNodeData(n);
    zrk_StopSZ(n.serializer, false);
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
    QCOMPARE(none.params.count, 0);
    QCOMPARE(none.getCountParamsInTag(), 0);
    QVERIFY(!none.getFirstNode("k"));
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

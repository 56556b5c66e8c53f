// The file format: exact text, escapes, the name table, encoding, loading and hostile input.
#include "config_files.h"
#include "config_model/cp1251.h"
#include "config_model/serialize.h"
#include "config_model/xml_workdata.h"

#include <QDir>
#include <QTemporaryDir>
#include <QtTest>

#include <csignal>
#include <sys/resource.h>

using namespace zrktest;

namespace {

// Renders a tree built in code.
QByteArray render(CXmlTagV2* root)
{
    const auto s = parsed();
    *s->createNodeV2(nullptr, root->name, 0) = *root;
    return rendered(*s);
}

CXmlTagV2* addChild(CXmlTagV2* parent, const QString& name, int type, const QString& text = QString())
{
    auto* t = new CXmlTagV2(name, QString(), parent);
    t->type = type;
    t->value = text;
    parent->children.addTag(t);
    return t;
}

void addAttr(CXmlTagV2* tag, const QString& name, const QString& value)
{
    tag->values.addTag(new CXmlTagV2(name, value, tag));
}

} // namespace

class tst_ConfigXml : public QObject
{
    Q_OBJECT
private slots:
    void layoutOfEveryKind();
    void nameTable_data();
    void nameTable();
    void windows1251AndEscapes();
    void roundTripGolden();
    void loadFileCases();
    void parseFailureLeavesFileAndNoDocument();
    void memoryFunctions();
    void encodings();
    void hostileInput_data();
    void hostileInput();
    void everyTruncationFailsCleanly();
    void externalEntityIsNotRead();
    void saveIsWholeOrNothing();
    void rootRules();
};

void tst_ConfigXml::layoutOfEveryKind()
{
    CXmlTagV2 root(QStringLiteral("DEVICE"));
    // Attributes are written sorted by name, and the last entry of a name wins.
    for (const char* kv : { "b2", "a1", "Bu", "b3" })
        addAttr(&root, QString(QLatin1Char(kv[0])), QString(QLatin1Char(kv[1])));
    CXmlTagV2* open = addChild(&root, QStringLiteral("A"), CXmlTagV2::Ordinary);
    addAttr(open, QStringLiteral("x"), QStringLiteral("1"));
    CXmlTagV2* inner = addChild(open, QStringLiteral("B"), CXmlTagV2::WithAttributes);
    addChild(inner, QStringLiteral("R"), CXmlTagV2::Record);
    CXmlTagV2* text = addChild(&root, QStringLiteral("T"), CXmlTagV2::Text, QStringLiteral("hello"));
    addAttr(text, QStringLiteral("lost"), QStringLiteral("1")); // not written for text elements
    addChild(text, QStringLiteral("U"), CXmlTagV2::Text); // follows at the same depth
    CXmlTagV2* rec = addChild(&root, QStringLiteral("REC"), CXmlTagV2::Record);
    addAttr(rec, QStringLiteral("k"), QStringLiteral("v"));
    addChild(rec, QStringLiteral("HIDDEN"), CXmlTagV2::Record); // not written under a record
    QCOMPARE(render(&root),
        kDecl
            + "<DEVICE B=\"u\" a=\"1\" b=\"3\">\n\t<A x=\"1\">\n\t\t<B>\n\t\t\t<R/>\n\t\t</B>\n\t</A>\n"
              "\t<T>hello</T>\n\t<U />\n\t<REC k=\"v\"/>\n</DEVICE>\n");

    // The root is written as a pair whatever its type.
    rec->children.freeList();
    QCOMPARE(render(rec), kDecl + "<REC k=\"v\">\n</REC>\n");
}

void tst_ConfigXml::nameTable_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QByteArray>("written");
    QTest::addColumn<QString>("readBack");
    QTest::newRow("space") << "a b" << QByteArray("a_32_b") << "a b";
    QTest::newRow("several") << "a&b-c" << QByteArray("a_38_b_45_c") << "a&b-c";
    // Underscores are not escaped, so a name holding an escape reads back as another name.
    QTest::newRow("hyphen escape in a name") << "x_45_y" << QByteArray("x_45_y") << "x-y";
    QTest::newRow("unknown code stays") << "a_99_" << QByteArray("a_99_") << "a_99_";
    // The Cyrillic rows look for the letter's UTF-8 bytes read as Latin-1, not the letter.
    QTest::newRow("che as latin-1 pair")
        << QString::fromLatin1("\xD1\x87") << QByteArray("_1095_") << QString::fromLatin1("\xD1\x87");
    QTest::newRow("capital che as latin-1 pair")
        << QString::fromLatin1("\xD0\xA7") << QByteArray("_1063_") << QString::fromLatin1("\xD0\xA7");
    QTest::newRow("real che passes") << QString::fromUtf8("чЧ") << QByteArray("\xF7\xD7")
                                     << QString::fromUtf8("чЧ");
}

void tst_ConfigXml::nameTable()
{
    QFETCH(QString, name);
    QFETCH(QByteArray, written);
    QFETCH(QString, readBack);
    CXmlTagV2 root(name);
    addChild(&root, name, CXmlTagV2::Text, QStringLiteral("t"));
    addChild(&root, name, CXmlTagV2::Text);
    addChild(&root, name, CXmlTagV2::Record); // the record form keeps its name
    const QByteArray w = written;
    QCOMPARE(render(&root),
        kDecl + "<" + w + ">\n\t<" + w + ">t</" + w + ">\n\t<" + w + " />\n\t<" + zrk::toWindows1251(name)
            + "/>\n</" + w + ">\n");
    const auto s = parsed(kDecl + "<D><" + w + " k=\"1\"/></D>");
    QVERIFY(s);
    QCOMPARE(s->root()->children.getNumTag(0)->name, readBack);
}

void tst_ConfigXml::windows1251AndEscapes()
{
    CXmlTagV2 root(QStringLiteral("D"));
    CXmlTagV2* r = addChild(&root, QStringLiteral("R"), CXmlTagV2::Record);
    const QString values[] = { QString::fromUtf8("Зона №1 €"), QString::fromUtf8("中x"),
        QStringLiteral("a&b<c"), QStringLiteral("&><\"'") };
    for (const QString& v : values) {
        addAttr(r, QStringLiteral("v") + QString::number(r->values.count()), QString());
        r->values.getNumTag(r->values.count() - 1)->value = v; // past the decoding pass
    }
    addChild(&root, QStringLiteral("T"), CXmlTagV2::Text, QString::fromUtf8("ёЁ"));
    const QByteArray out = render(&root);
    QCOMPARE(out,
        kDecl
            + "<D>\n\t<R v0=\"\xC7\xEE\xED\xE0 \xB9"
              "1 \x88\" v1=\"_x\" v2=\"a&amp;b&lt;c\" "
              "v3=\"&amp;&gt;&lt;&quot;&apos;\"/>\n\t<T>\xB8\xA8</T>\n</D>\n");
    // Read back: single bytes become the letters again; the lost character stays "_".
    const auto s = parsed(out);
    QVERIFY(s);
    const CXmlTagV2* rr = s->root()->children.getNumTag(0);
    for (int i = 0; i < 4; ++i)
        QCOMPARE(rr->values.getNumTag(i)->value, i == 1 ? QStringLiteral("_x") : values[i]);
    QCOMPARE(s->root()->children.getNumTag(1)->value, QString::fromUtf8("ёЁ"));
}

void tst_ConfigXml::roundTripGolden()
{
    // File -> tree -> file: the differences are the format's own and are kept (a self-closing
    // record reads back as type 1 and is written as a pair, an empty element or one with text or
    // attributes and plain children reads back as type 2, text is trimmed, blank text ignored).
    const QByteArray expected = readFile(dataFile("roundtrip_out.xml"));
    QCOMPARE(normalize(readFile(dataFile("roundtrip_in.xml"))), expected);
    QCOMPARE(normalize(expected), expected); // stable from then on
    // Text is written unescaped, so markup in it does not load again.
    const QByteArray out = normalize(kDecl + "<D><T>a &lt; b</T></D>");
    QCOMPARE(out, kDecl + "<D>\n\t<T>a < b</T>\n</D>\n");
    QVERIFY(normalize(out).isNull());
}

void tst_ConfigXml::loadFileCases()
{
    QTemporaryDir dir;
    // A missing file is created empty and loads as an empty document; so does it again.
    const QString missing = dir.filePath(QStringLiteral("new.xml"));
    for (int pass = 0; pass < 2; ++pass) {
        CSerialize s(missing);
        QVERIFY(s.startSerialize());
        QVERIFY(!s.root());
        QCOMPARE(readFile(missing), QByteArray(""));
    }
    QVERIFY(!CSerialize(dir.path()).startSerialize()); // a directory is not a file
    // The facade over a file that does not load has no serializer.
    const QString bad = dir.filePath(QStringLiteral("bad.xml"));
    writeFile(bad, "<D><unclosed></D>");
    CXMLWorkData root(bad, QStringLiteral("DEVICE"));
    QVERIFY(!root.serializer());
    // A path too long for the record is not opened rather than cut to another name.
    QVERIFY(!CXMLWorkData(dir.filePath(QString(300, QLatin1Char('p'))), QStringLiteral("D")).serializer());
}

void tst_ConfigXml::parseFailureLeavesFileAndNoDocument()
{
    QTemporaryDir dir;
    const QString path = dir.filePath(QStringLiteral("broken.xml"));
    const QByteArray broken = kDecl + "<DEVICE><A x=\"1\"></DEVICE>";
    writeFile(path, broken);
    coreSzCreate create {};
    qstrncpy(create.fileName, path.toLocal8Bit().constData(), sizeof create.fileName);
    create.handle = reinterpret_cast<CSerialize*>(1);
    zrk_StartSZ(&create);
    QVERIFY(!create.handle);
    QCOMPARE(readFile(path), broken);

    CSerialize s(path);
    QVERIFY(!s.startSerialize());
    QVERIFY(!s.root());
    QVERIFY(!s.lastError().isEmpty());
    // What did not load is never saved over the file.
    QVERIFY(!s.writeToFileV2());
    QCOMPARE(readFile(path), broken);
}

void tst_ConfigXml::memoryFunctions()
{
    QByteArray text = kDecl + "<DEVICE b=\"2\" a=\"1\"><R x=\"&amp;\"/></DEVICE>";
    coreSzCreateMemo memo { text.size(), reinterpret_cast<unsigned char*>(text.data()), nullptr };
    zrk_StartSZMemo(&memo);
    QVERIFY(memo.handle);
    text.fill('#'); // the serializer holds its own copy
    zrk_GetSZMemo(&memo);
    const QByteArray expected = kDecl + "<DEVICE a=\"1\" b=\"2\">\n\t<R x=\"&amp;\">\n\t</R>\n</DEVICE>\n";
    QCOMPARE(memo.size, expected.size());
    QByteArray out(memo.size + 8, '\xAA');
    memo.data = reinterpret_cast<unsigned char*>(out.data());
    zrk_StopSZMemo(&memo);
    QVERIFY(!memo.handle);
    QCOMPARE(out, expected + QByteArray(8, '\xAA')); // nothing written past size

    // A caller whose buffer is smaller than the text gets only what fits.
    coreSzCreateMemo small { expected.size(), reinterpret_cast<unsigned char*>(out.data()), nullptr };
    zrk_StartSZMemo(&small);
    QVERIFY(small.handle);
    zrk_GetSZMemo(&small);
    QByteArray shortBuf(12, '\xAA');
    small.size = 4;
    small.data = reinterpret_cast<unsigned char*>(shortBuf.data());
    zrk_StopSZMemo(&small);
    QCOMPARE(small.size, 4);
    QCOMPARE(shortBuf, expected.left(4) + QByteArray(8, '\xAA'));

    // Unparsable input, a size without data or a negative size: no handle.
    QByteArray junk("<a><b></a>");
    for (coreSzCreateMemo bad :
        { coreSzCreateMemo { junk.size(), reinterpret_cast<unsigned char*>(junk.data()), nullptr },
            coreSzCreateMemo { 10, nullptr, nullptr },
            coreSzCreateMemo { -1, reinterpret_cast<unsigned char*>(junk.data()), nullptr } }) {
        zrk_StartSZMemo(&bad);
        QVERIFY(!bad.handle);
    }
    zrk_StartSZMemo(nullptr);
    zrk_GetSZMemo(nullptr);
    zrk_StopSZMemo(nullptr);
    zrk_StopSZ(nullptr, true);
}

void tst_ConfigXml::encodings()
{
    // The declared encoding is used; without one the bytes are read as UTF-8.
    const QByteArray cp = "<?xml version=\"1.0\" encoding=\"windows-1251\"?><D v=\"\xC6\"/>";
    const QByteArray utf = "<?xml version=\"1.0\" encoding=\"UTF-8\"?><D v=\"\xD0\x96\"/>";
    const QByteArray none = "<D v=\"\xC6\"/>";
    QStringList got;
    for (const QByteArray& text : { cp, utf, none }) {
        const auto s = parsed(text);
        got << (s ? s->root()->values.getNumTag(0)->value : QStringLiteral("not loaded"));
    }
    QCOMPARE(got, QStringList({ QString::fromUtf8("Ж"), QString::fromUtf8("Ж"), QString(QChar(0xFFFD)) }));
}

void tst_ConfigXml::hostileInput_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<bool>("loads");
    const auto nest
        = [](int depth) { return QByteArray("<a>").repeated(depth) + QByteArray("</a>").repeated(depth); };
    QTest::newRow("nesting at the limit") << nest(kMaxXmlDepth) << true;
    QTest::newRow("nesting past the limit") << nest(kMaxXmlDepth + 1) << false;
    QTest::newRow("very deep nesting") << nest(100000) << false;
    QByteArray laughs = "<?xml version=\"1.0\"?><!DOCTYPE l [<!ENTITY l0 \"hahahahahahahahahaha\">";
    for (int i = 1; i < 10; ++i)
        laughs += "<!ENTITY l" + QByteArray::number(i) + " \""
            + ("&l" + QByteArray::number(i - 1) + ';').repeated(10) + "\">";
    QTest::newRow("entity expansion") << laughs + "]><D v=\"&l9;\">&l9;</D>" << false;
    QTest::newRow("recursive entity")
        << QByteArray("<!DOCTYPE d [<!ENTITY a \"&b;\"><!ENTITY b \"&a;\">]><D v=\"&a;\"/>") << false;
    // The reader is lenient where a non-validating reader may be: it skips an undefined entity,
    // keeps a repeated attribute (the later entry wins on output) and passes a NUL through.
    QTest::newRow("undefined entity") << QByteArray("<D v=\"&nope;\"/>") << true;
    QTest::newRow("huge attribute") << (QByteArray("<D v=\"") + QByteArray(4 << 20, 'x') + "\"/>") << true;
    QTest::newRow("duplicate attribute") << QByteArray("<D a=\"1\" a=\"2\"/>") << true;
    QTest::newRow("NUL inside") << QByteArray("<D>\0</D>", 8) << true;
    QTest::newRow("unknown encoding")
        << QByteArray("<?xml version=\"1.0\" encoding=\"x-none\"?><D/>") << true;
    QTest::newRow("two roots") << QByteArray("<D/><E/>") << false;
    QTest::newRow("declaration only") << kDecl << false;
}

void tst_ConfigXml::hostileInput()
{
    QFETCH(QByteArray, text);
    QFETCH(bool, loads);
    const auto s = parsed(text);
    QCOMPARE(s != nullptr, loads);
    if (loads) {
        // Whatever loaded can be written and its parameters read through the facade.
        QVERIFY(s->root());
        QVERIFY(s->writeToFileV2Buf() > kDecl.size());
        CXMLWorkData node(s.get(), static_cast<void*>(s->root()));
        for (int i = 0; i < node.params.count; ++i)
            QVERIFY(qstrlen(node.params.items[i].value) <= 254);
    }
}

void tst_ConfigXml::everyTruncationFailsCleanly()
{
    const QByteArray full = readFile(dataFile("roundtrip_in.xml"));
    QVERIFY(full.size() > 100);
    // Cut right after the root's closing tag, nothing more is needed.
    const int complete = full.lastIndexOf('>') + 1;
    for (int n = 1; n < full.size(); ++n) {
        // A copy of exactly n bytes, so that reading past it is caught by the sanitizers.
        QByteArray part(full.constData(), n);
        part.detach();
        CSerialize s(n, reinterpret_cast<const unsigned char*>(part.constData()));
        if (s.startSerialize() != (n >= complete))
            QFAIL(qPrintable(QStringLiteral("prefix of %1 bytes loads wrongly").arg(n)));
    }
}

void tst_ConfigXml::externalEntityIsNotRead()
{
    QTemporaryDir dir;
    const QString secret = dir.filePath(QStringLiteral("secret.txt"));
    writeFile(secret, "TOPSECRET");
    const QByteArray out = normalize("<?xml version=\"1.0\"?><!DOCTYPE D [<!ENTITY s SYSTEM \"file://"
        + secret.toLocal8Bit() + "\">]><D><T>&s;</T></D>");
    QVERIFY(!out.contains("TOPSECRET"));
}

void tst_ConfigXml::saveIsWholeOrNothing()
{
    QTemporaryDir dir;
    const QString path = dir.filePath(QStringLiteral("config.xml"));
    const QByteArray previous = kDecl + "<DEVICE version=\"old\">\n</DEVICE>\n";
    writeFile(path, previous);
    CSerialize s(path);
    QVERIFY(s.startSerialize());
    for (int i = 0; i < 5000; ++i)
        addAttr(
            s.createNodeV2(s.root(), QStringLiteral("Zone"), 3), QStringLiteral("id"), QString::number(i));
    // A file system that refuses the bytes half-way (a file size limit): the write fails and
    // the previous file is still there, complete, with no temporary file left behind.
    struct rlimit old;
    QCOMPARE(getrlimit(RLIMIT_FSIZE, &old), 0);
    struct rlimit small = old;
    small.rlim_cur = 4096;
    const auto oldHandler = std::signal(SIGXFSZ, SIG_IGN);
    QCOMPARE(setrlimit(RLIMIT_FSIZE, &small), 0);
    const bool saved = s.writeToFileV2();
    setrlimit(RLIMIT_FSIZE, &old);
    std::signal(SIGXFSZ, oldHandler);
    QVERIFY(!saved);
    QCOMPARE(readFile(path), previous);
    QCOMPARE(QDir(dir.path()).entryList(QDir::Files), QStringList { QStringLiteral("config.xml") });

    // With room to write, the whole document lands.
    QVERIFY(s.writeToFileV2());
    QVERIFY(readFile(path).endsWith("\t<Zone id=\"4999\"/>\n</DEVICE>\n"));
}

void tst_ConfigXml::rootRules()
{
    // What the facade cannot reach: the root's own rules.
    const auto s = parsed();
    for (int mode : { -1, 2, 4 })
        QVERIFY(!s->createNodeV2(nullptr, QStringLiteral("DEVICE"), mode));
    QVERIFY(!s->root());
    CXmlTagV2* root = s->createNodeV2(nullptr, QStringLiteral("DEVICE"), 0);
    QCOMPARE(s->createNodeV2(nullptr, QStringLiteral("DEVICE"), 1), root);
    s->createNodeV2(root, QStringLiteral("A"), 1);
    // Another root name replaces the document's root.
    CXmlTagV2* other = s->createNodeV2(nullptr, QStringLiteral("AINF"), 0);
    QCOMPARE(s->root(), other);
    QCOMPARE(other->children.count(), 0);
}

QTEST_APPLESS_MAIN(tst_ConfigXml)
#include "tst_config_xml.moc"

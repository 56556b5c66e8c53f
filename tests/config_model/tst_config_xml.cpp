// The file format: exact text, escapes, the name table, encoding, loading and hostile input.
#include "config_model/cp1251.h"
#include "config_model/serialize.h"
#include "config_model/xml_workdata.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QtTest>

#include <csignal>
#include <sys/resource.h>

namespace {

const QByteArray kDecl = "<?xml version=\"1.0\" encoding=\"windows-1251\"?>\n";

QByteArray readFile(const QString& path)
{
    QFile f(path);
    if (!f.open(QIODevice::ReadOnly))
        return QByteArray("<cannot open ") + path.toLocal8Bit() + ">";
    return f.readAll();
}

void writeFile(const QString& path, const QByteArray& bytes)
{
    QFile f(path);
    QVERIFY(f.open(QIODevice::WriteOnly | QIODevice::Truncate));
    QCOMPARE(f.write(bytes), qint64(bytes.size()));
}

// Loads text from memory and renders it again; a null array when it does not load.
QByteArray normalize(const QByteArray& text)
{
    CSerialize s(text.size(), reinterpret_cast<const unsigned char*>(text.constData()));
    if (!s.startSerialize())
        return QByteArray();
    s.writeToFileV2Buf();
    return s.outputData();
}

// Renders a tree built in code.
QByteArray render(CXmlTagV2* root)
{
    CSerialize s(0, nullptr);
    s.startSerialize();
    CXmlTagV2* r = s.createNodeV2(nullptr, root->name, 0);
    *r = *root;
    s.writeToFileV2Buf();
    return s.outputData();
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
    void goldenDeviceWithOneRecord();
    void layoutOfEveryKind();
    void attributeOrderAndLastEntryWins();
    void valueEscapes_data();
    void valueEscapes();
    void nameTableWriting_data();
    void nameTableWriting();
    void nameTableRoundTrip_data();
    void nameTableRoundTrip();
    void windows1251Output();
    void roundTripGolden();
    void readBackTypes_data();
    void readBackTypes();
    void attributeValuesDecodedTwice_data();
    void attributeValuesDecodedTwice();
    void textWithMarkupBreaksTheNextLoad();
    void loadFileCases();
    void parseFailureLeavesFileAndNoDocument();
    void emptyDocumentSavesDeclarationOnly();
    void memoryFunctions();
    void encodings_data();
    void encodings();
    void hostileInput_data();
    void hostileInput();
    void everyTruncationFailsCleanly();
    void externalEntityIsNotRead();
    void saveIsWholeOrNothing();
    void createNodeModes();
};

void tst_ConfigXml::goldenDeviceWithOneRecord()
{
    QTemporaryDir dir;
    const QString path = dir.filePath(QStringLiteral("device.xml"));
    {
        CXMLWorkData root(path, QStringLiteral("DEVICE"));
        QVERIFY(root.serializer());
        root.clearNode();
        root.writeString("model", "K-7140");
        CXMLWorkData* rec = root.createNode("POINTS", 3);
        QVERIFY(rec);
        rec->writeInteger("maxSpeed", 100);
        rec->writeParameters();
        delete rec;
        root.writeParameters();
        coreSzNode node {};
        root.fillNodeData(node);
        zrk_StopSZ(node.serializer, true);
    }
    QCOMPARE(readFile(path), readFile(QStringLiteral(ZRK_TEST_DATA_DIR "/device_one_record.xml")));
}

void tst_ConfigXml::layoutOfEveryKind()
{
    CXmlTagV2 root(QStringLiteral("DEVICE"));
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
            + "<DEVICE>\n"
              "\t<A x=\"1\">\n"
              "\t\t<B>\n"
              "\t\t\t<R/>\n"
              "\t\t</B>\n"
              "\t</A>\n"
              "\t<T>hello</T>\n"
              "\t<U />\n"
              "\t<REC k=\"v\"/>\n"
              "</DEVICE>\n");

    // The root is written as a pair whatever its type.
    CXmlTagV2 rec2(QStringLiteral("R"));
    rec2.type = CXmlTagV2::Record;
    addAttr(&rec2, QStringLiteral("a"), QStringLiteral("1"));
    QCOMPARE(render(&rec2), kDecl + "<R a=\"1\">\n</R>\n");
}

void tst_ConfigXml::attributeOrderAndLastEntryWins()
{
    CXmlTagV2 root(QStringLiteral("D"));
    addAttr(&root, QStringLiteral("b"), QStringLiteral("2"));
    addAttr(&root, QStringLiteral("a"), QStringLiteral("1"));
    addAttr(&root, QStringLiteral("B"), QStringLiteral("upper"));
    addAttr(&root, QStringLiteral("b"), QStringLiteral("3"));
    QCOMPARE(render(&root), kDecl + "<D B=\"upper\" a=\"1\" b=\"3\">\n</D>\n");
}

void tst_ConfigXml::valueEscapes_data()
{
    QTest::addColumn<QString>("value");
    QTest::addColumn<QByteArray>("written");
    QTest::newRow("ampersand and less-than") << "a&b<c" << QByteArray("a&amp;b&lt;c");
    QTest::newRow("all five") << "&><\"'" << QByteArray("&amp;&gt;&lt;&quot;&apos;");
    QTest::newRow("ampersand first, so no double escape") << ">" << QByteArray("&gt;");
    QTest::newRow("plain") << "abc 123" << QByteArray("abc 123");
}

void tst_ConfigXml::valueEscapes()
{
    QFETCH(QString, value);
    QFETCH(QByteArray, written);
    CXmlTagV2 root(QStringLiteral("D"));
    CXmlTagV2* r = addChild(&root, QStringLiteral("R"), CXmlTagV2::Record);
    r->values.addTag(new CXmlTagV2(QStringLiteral("v"), QString(), r));
    r->values.getNumTag(0)->value = value;
    const QByteArray out = render(&root);
    QCOMPARE(out, kDecl + "<D>\n\t<R v=\"" + written + "\"/>\n</D>\n");
    // And the parser gives the value back (the decoding pass then leaves these alone).
    CSerialize s(out.size(), reinterpret_cast<const unsigned char*>(out.constData()));
    QVERIFY(s.startSerialize());
    QCOMPARE(s.root()->children.getNumTag(0)->values.getNumTag(0)->value, value);
}

void tst_ConfigXml::nameTableWriting_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QByteArray>("protected_");
    const struct
    {
        const char* ch;
        const char* esc;
    } rows[] = { { " ", "_32_" }, { "&", "_38_" }, { ">", "_62_" }, { "<", "_60_" }, { "\"", "_34_" },
        { "'", "_39_" }, { "!", "_33_" }, { ":", "_58_" }, { ";", "_59_" }, { "%", "_37_" }, { "`", "_96_" },
        { "~", "_126_" }, { "@", "_64_" }, { "#", "_35_" }, { "$", "_36_" }, { "^", "_94_" }, { "*", "_42_" },
        { "(", "_40_" }, { ")", "_41_" }, { "-", "_45_" }, { "+", "_43_" }, { "=", "_61_" }, { "|", "_124_" },
        { "\\", "_92_" }, { ",", "_44_" }, { "/", "_47_" } };
    for (const auto& r : rows)
        QTest::newRow(r.esc) << (QStringLiteral("a") + QLatin1String(r.ch) + QStringLiteral("b"))
                             << (QByteArray("a") + r.esc + "b");
    // The Cyrillic rows look for the letter's UTF-8 bytes read as Latin-1, not the letter.
    QTest::newRow("che as latin-1 pair") << QString::fromLatin1("\xD1\x87") << QByteArray("_1095_");
    QTest::newRow("capital che as latin-1 pair") << QString::fromLatin1("\xD0\xA7") << QByteArray("_1063_");
    QTest::newRow("real che passes") << QString::fromUtf8("ч") << QByteArray("\xF7");
    QTest::newRow("real capital che passes") << QString::fromUtf8("Ч") << QByteArray("\xD7");
    QTest::newRow("underscore is not escaped") << "a_b" << QByteArray("a_b");
    QTest::newRow("several") << "a b-c" << QByteArray("a_32_b_45_c");
}

void tst_ConfigXml::nameTableWriting()
{
    QFETCH(QString, name);
    QFETCH(QByteArray, protected_);
    CXmlTagV2 root(name);
    addChild(&root, name, CXmlTagV2::Text, QStringLiteral("t"));
    addChild(&root, name, CXmlTagV2::Text);
    addChild(&root, name, CXmlTagV2::Record); // the record form keeps its name
    const QByteArray raw = zrk::toWindows1251(name);
    QCOMPARE(render(&root),
        kDecl + "<" + protected_ + ">\n\t<" + protected_ + ">t</" + protected_ + ">\n\t<" + protected_
            + " />\n\t<" + raw + "/>\n</" + protected_ + ">\n");
}

void tst_ConfigXml::nameTableRoundTrip_data()
{
    QTest::addColumn<QByteArray>("inFile");
    QTest::addColumn<QString>("readName");
    QTest::newRow("space") << QByteArray("a_32_b") << "a b";
    QTest::newRow("hyphen from a name that had an underscore sequence") << QByteArray("x_45_y") << "x-y";
    QTest::newRow("exclamation") << QByteArray("hi_33_") << "hi!";
    QTest::newRow("che reads as latin-1 pair") << QByteArray("_1095_") << QString::fromLatin1("\xD1\x87");
    QTest::newRow("capital che reads as latin-1 pair")
        << QByteArray("_1063_") << QString::fromLatin1("\xD0\xA7");
    QTest::newRow("real che in cp1251") << QByteArray("\xF7\xD7") << QString::fromUtf8("чЧ");
    QTest::newRow("unknown code stays") << QByteArray("a_99_") << "a_99_";
}

void tst_ConfigXml::nameTableRoundTrip()
{
    QFETCH(QByteArray, inFile);
    QFETCH(QString, readName);
    const QByteArray text = kDecl + "<D><" + inFile + " k=\"1\"/></D>";
    CSerialize s(text.size(), reinterpret_cast<const unsigned char*>(text.constData()));
    QVERIFY(s.startSerialize());
    QCOMPARE(s.root()->children.getNumTag(0)->name, readName);
}

void tst_ConfigXml::windows1251Output()
{
    CXmlTagV2 root(QStringLiteral("D"));
    CXmlTagV2* r = addChild(&root, QStringLiteral("R"), CXmlTagV2::Record);
    addAttr(r, QStringLiteral("name"), QString::fromUtf8("Зона №1 €"));
    addAttr(r, QStringLiteral("other"), QString::fromUtf8("中x"));
    addChild(&root, QStringLiteral("T"), CXmlTagV2::Text, QString::fromUtf8("ёЁ"));
    const QByteArray out = render(&root);
    QCOMPARE(out,
        kDecl
            + "<D>\n\t<R name=\"\xC7\xEE\xED\xE0 \xB9"
              "1 \x88\" other=\"_x\"/>\n\t<T>\xB8\xA8</T>\n</D>\n");
    // Read back: single bytes become the letters again; the lost character stays "_".
    CSerialize s(out.size(), reinterpret_cast<const unsigned char*>(out.constData()));
    QVERIFY(s.startSerialize());
    const CXmlTagV2* rr = s.root()->children.getNumTag(0);
    QCOMPARE(rr->values.getNumTag(0)->value, QString::fromUtf8("Зона №1 €"));
    QCOMPARE(rr->values.getNumTag(1)->value, QStringLiteral("_x"));
    QCOMPARE(s.root()->children.getNumTag(1)->value, QString::fromUtf8("ёЁ"));
}

void tst_ConfigXml::roundTripGolden()
{
    // File -> tree -> file: the differences are the format's own and are kept.
    const QByteArray in = readFile(QStringLiteral(ZRK_TEST_DATA_DIR "/roundtrip_in.xml"));
    const QByteArray expected = readFile(QStringLiteral(ZRK_TEST_DATA_DIR "/roundtrip_out.xml"));
    const QByteArray out = normalize(in);
    QCOMPARE(out, expected);
    // The written form is stable from then on.
    QCOMPARE(normalize(out), expected);
}

void tst_ConfigXml::readBackTypes_data()
{
    QTest::addColumn<QByteArray>("body");
    QTest::addColumn<QString>("types"); // type of each element, depth first
    QTest::newRow("self-closing record reads as 1") << QByteArray("<D><R a=\"1\"/></D>") << "0 1";
    QTest::newRow("empty element without attributes reads as 2") << QByteArray("<D><E/></D>") << "2 2";
    QTest::newRow("text element") << QByteArray("<D><T>x</T></D>") << "2 2";
    QTest::newRow("whitespace text is ignored") << QByteArray("<D a=\"1\">\n\t \n</D>") << "1";
    QTest::newRow("text is trimmed, attributes keep 2") << QByteArray("<D a=\"1\"> x </D>") << "2";
    QTest::newRow("attributes then plain child") << QByteArray("<D><A x=\"1\"><B/></A></D>") << "2 2 2";
    QTest::newRow("plain then attributed child") << QByteArray("<D><A><B x=\"1\"/></A></D>") << "0 0 1";
}

void tst_ConfigXml::readBackTypes()
{
    QFETCH(QByteArray, body);
    QFETCH(QString, types);
    const QByteArray text = kDecl + body;
    CSerialize s(text.size(), reinterpret_cast<const unsigned char*>(text.constData()));
    QVERIFY(s.startSerialize());
    QStringList got;
    std::function<void(const CXmlTagV2*)> walk = [&](const CXmlTagV2* t) {
        got << QString::number(t->type);
        for (const CXmlTagV2* c : t->children)
            walk(c);
    };
    walk(s.root());
    QCOMPARE(got.join(QLatin1Char(' ')), types);
}

void tst_ConfigXml::attributeValuesDecodedTwice_data()
{
    QTest::addColumn<QByteArray>("inValue");
    QTest::addColumn<QString>("readValue");
    QTest::newRow("escaped entity decodes twice") << QByteArray("&amp;lt;") << "<";
    QTest::newRow("escaped nbsp") << QByteArray("a&amp;nbsp;b") << "a b";
    QTest::newRow("exclamation escape in a value") << QByteArray("go_33_") << "go!";
    QTest::newRow("character reference") << QByteArray("&#1046;") << QString::fromUtf8("Ж");
    QTest::newRow("plain entity once") << QByteArray("a&amp;b") << "a&b";
}

void tst_ConfigXml::attributeValuesDecodedTwice()
{
    QFETCH(QByteArray, inValue);
    QFETCH(QString, readValue);
    const QByteArray text = kDecl + "<D v=\"" + inValue + "\"/>";
    CSerialize s(text.size(), reinterpret_cast<const unsigned char*>(text.constData()));
    QVERIFY(s.startSerialize());
    QCOMPARE(s.root()->values.getNumTag(0)->value, readValue);
}

void tst_ConfigXml::textWithMarkupBreaksTheNextLoad()
{
    const QByteArray text = kDecl + "<D><T>a &lt; b</T></D>";
    const QByteArray out = normalize(text);
    QCOMPARE(out, kDecl + "<D>\n\t<T>a < b</T>\n</D>\n");
    QVERIFY(normalize(out).isNull());
}

void tst_ConfigXml::loadFileCases()
{
    QTemporaryDir dir;
    // A missing file is created empty and loads as an empty document.
    const QString missing = dir.filePath(QStringLiteral("new.xml"));
    {
        CSerialize s(missing);
        QVERIFY(s.startSerialize());
        QVERIFY(!s.root());
    }
    QVERIFY(QFile::exists(missing));
    QCOMPARE(QFileInfo(missing).size(), qint64(0));
    // An empty file loads as an empty document and stays as it is.
    {
        CSerialize s(missing);
        QVERIFY(s.startSerialize());
        QVERIFY(!s.root());
    }
    // A directory is not a file.
    {
        CSerialize s(dir.path());
        QVERIFY(!s.startSerialize());
    }
    // The facade over a file that does not load has no serializer and is inert.
    const QString bad = dir.filePath(QStringLiteral("bad.xml"));
    writeFile(bad, "<D><unclosed></D>");
    CXMLWorkData root(bad, QStringLiteral("DEVICE"));
    QVERIFY(!root.serializer());
    QVERIFY(!root.createNode("TRACK", 0));
    QCOMPARE(root.readInteger("x", 5), 5);
    root.writeInteger("x", 1);
    root.writeParameters();
    QCOMPARE(root.getCountParamsInTag(), 0);
    // A path too long for the record is not opened rather than cut to another name.
    CXMLWorkData longPath(dir.filePath(QString(300, QLatin1Char('p'))), QStringLiteral("DEVICE"));
    QVERIFY(!longPath.serializer());
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
}

void tst_ConfigXml::emptyDocumentSavesDeclarationOnly()
{
    QTemporaryDir dir;
    const QString path = dir.filePath(QStringLiteral("e.xml"));
    writeFile(path, "old content");
    CSerialize s(path);
    // Loading fails (not XML) but the serializer can still write its empty document.
    QVERIFY(!s.startSerialize());
    QCOMPARE(readFile(path), QByteArray("old content"));
    QVERIFY(s.writeToFileV2());
    QCOMPARE(readFile(path), kDecl);
}

void tst_ConfigXml::memoryFunctions()
{
    QByteArray text = kDecl + "<DEVICE b=\"2\" a=\"1\"><R x=\"&amp;\"/></DEVICE>";
    coreSzCreateMemo memo {};
    memo.size = text.size();
    memo.data = reinterpret_cast<unsigned char*>(text.data());
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
    QCOMPARE(out.left(expected.size()), expected);
    QCOMPARE(out.mid(expected.size()), QByteArray(8, '\xAA')); // nothing written past size

    // Empty input: an empty document, rendered as the declaration alone.
    coreSzCreateMemo empty {};
    zrk_StartSZMemo(&empty);
    QVERIFY(empty.handle);
    zrk_GetSZMemo(&empty);
    QCOMPARE(empty.size, kDecl.size());
    QByteArray buf(empty.size, '\0');
    empty.data = reinterpret_cast<unsigned char*>(buf.data());
    zrk_StopSZMemo(&empty);
    QCOMPARE(buf, kDecl);

    // Unparsable input, or a size without data: no handle.
    QByteArray junk("<a><b></a>");
    coreSzCreateMemo bad { junk.size(), reinterpret_cast<unsigned char*>(junk.data()), nullptr };
    zrk_StartSZMemo(&bad);
    QVERIFY(!bad.handle);
    coreSzCreateMemo noData { 10, nullptr, nullptr };
    zrk_StartSZMemo(&noData);
    QVERIFY(!noData.handle);
    coreSzCreateMemo negative { -1, reinterpret_cast<unsigned char*>(junk.data()), nullptr };
    zrk_StartSZMemo(&negative);
    QVERIFY(!negative.handle);
    zrk_StartSZMemo(nullptr);
    zrk_GetSZMemo(nullptr);
    zrk_StopSZMemo(nullptr);
    zrk_StopSZ(nullptr, true);
}

void tst_ConfigXml::encodings_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<bool>("loads");
    QTest::addColumn<QString>("value");
    QTest::newRow("declared windows-1251")
        << QByteArray("<?xml version=\"1.0\" encoding=\"windows-1251\"?><D v=\"\xC6\"/>") << true
        << QString::fromUtf8("Ж");
    QTest::newRow("declared utf-8") << QByteArray(
        "<?xml version=\"1.0\" encoding=\"UTF-8\"?><D v=\"\xD0\x96\"/>")
                                    << true << QString::fromUtf8("Ж");
    QTest::newRow("no declaration: read as utf-8, bad bytes replaced")
        << QByteArray("<D v=\"\xC6\"/>") << true << QString(QChar(0xFFFD));
    QTest::newRow("declared utf-8 but cp1251 bytes")
        << QByteArray("<?xml version=\"1.0\" encoding=\"UTF-8\"?><D v=\"\xC6\"/>") << true
        << QString(QChar(0xFFFD));
}

void tst_ConfigXml::encodings()
{
    QFETCH(QByteArray, text);
    QFETCH(bool, loads);
    QFETCH(QString, value);
    CSerialize s(text.size(), reinterpret_cast<const unsigned char*>(text.constData()));
    QCOMPARE(s.startSerialize(), loads);
    if (loads)
        QCOMPARE(s.root()->values.getNumTag(0)->value, value);
}

void tst_ConfigXml::hostileInput_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<bool>("loads");
    const auto nest = [](int depth) {
        QByteArray t;
        for (int i = 0; i < depth; ++i)
            t += "<a>";
        for (int i = 0; i < depth; ++i)
            t += "</a>";
        return t;
    };
    QTest::newRow("nesting at the limit") << nest(kMaxXmlDepth) << true;
    QTest::newRow("nesting past the limit") << nest(kMaxXmlDepth + 1) << false;
    QTest::newRow("very deep nesting") << nest(100000) << false;
    QByteArray laughs = "<?xml version=\"1.0\"?><!DOCTYPE l [<!ENTITY l0 \"hahahahahahahahahaha\">";
    for (int i = 1; i < 10; ++i)
        laughs += QByteArray("<!ENTITY l") + QByteArray::number(i) + " \""
            + QByteArray("&l").append(QByteArray::number(i - 1)).append(';').repeated(10) + "\">";
    laughs += "]><D v=\"&l9;\">&l9;</D>";
    QTest::newRow("entity expansion") << laughs << false;
    QTest::newRow("recursive entity")
        << QByteArray("<!DOCTYPE d [<!ENTITY a \"&b;\"><!ENTITY b \"&a;\">]><D v=\"&a;\"/>") << false;
    // The reader is lenient where a non-validating reader may be: it skips an undefined entity,
    // keeps a repeated attribute (the later entry wins on output) and passes a NUL through.
    QTest::newRow("undefined entity") << QByteArray("<D v=\"&nope;\"/>") << true;
    QTest::newRow("huge attribute") << (QByteArray("<D v=\"") + QByteArray(4 << 20, 'x') + "\"/>") << true;
    QTest::newRow("many attributes") << [] {
        QByteArray t = "<D";
        for (int i = 0; i < 20000; ++i)
            t += " a" + QByteArray::number(i) + "=\"1\"";
        return t + "/>";
    }() << true;
    QTest::newRow("duplicate attribute") << QByteArray("<D a=\"1\" a=\"2\"/>") << true;
    QTest::newRow("two roots") << QByteArray("<D/><E/>") << false;
    QTest::newRow("declaration only") << kDecl << false;
    QTest::newRow("text only") << QByteArray("hello") << false;
    QTest::newRow("NUL inside") << QByteArray("<D>\0</D>", 8) << true;
    QTest::newRow("unknown encoding")
        << QByteArray("<?xml version=\"1.0\" encoding=\"x-none\"?><D/>") << true;
    QTest::newRow("binary") << QByteArray("\x00\x01\x02\xFF\xFE\x80", 6) << false;
    QTest::newRow("lone BOM") << QByteArray("\xEF\xBB\xBF") << false;
    QTest::newRow("unterminated attribute") << QByteArray("<D a=\"") << false;
    QTest::newRow("CDATA") << QByteArray("<D><![CDATA[<x>]]></D>") << true;
}

void tst_ConfigXml::hostileInput()
{
    QFETCH(QByteArray, text);
    QFETCH(bool, loads);
    CSerialize s(text.size(), reinterpret_cast<const unsigned char*>(text.constData()));
    QCOMPARE(s.startSerialize(), loads);
    QCOMPARE(s.root() != nullptr, loads);
    if (loads) {
        // Whatever loaded can be written and its parameters read through the facade.
        QVERIFY(s.writeToFileV2Buf() > kDecl.size());
        CXMLWorkData node(&s, static_cast<void*>(s.root()));
        for (int i = 0; i < node.params.count; ++i)
            QVERIFY(qstrlen(node.params.items[i].value) <= 254);
    }
}

void tst_ConfigXml::everyTruncationFailsCleanly()
{
    const QByteArray full = readFile(QStringLiteral(ZRK_TEST_DATA_DIR "/roundtrip_in.xml"));
    QVERIFY(full.size() > 100);
    // Cut right after the root's closing tag, nothing more is needed.
    const int complete = full.lastIndexOf('>') + 1;
    for (int n = 1; n < full.size(); ++n) {
        // A copy of exactly n bytes, so that reading past it is caught by the sanitizers.
        QByteArray part(full.constData(), n);
        part.detach();
        CSerialize s(n, reinterpret_cast<const unsigned char*>(part.constData()));
        const bool ok = s.startSerialize();
        if (ok != (n >= complete))
            QFAIL(qPrintable(QStringLiteral("prefix of %1 bytes: load %2").arg(n).arg(ok)));
    }
}

void tst_ConfigXml::externalEntityIsNotRead()
{
    QTemporaryDir dir;
    const QString secret = dir.filePath(QStringLiteral("secret.txt"));
    writeFile(secret, "TOPSECRET");
    const QByteArray text = "<?xml version=\"1.0\"?><!DOCTYPE D [<!ENTITY s SYSTEM \"file://"
        + secret.toLocal8Bit() + "\">]><D><T>&s;</T></D>";
    CSerialize s(text.size(), reinterpret_cast<const unsigned char*>(text.constData()));
    if (s.startSerialize()) {
        s.writeToFileV2Buf();
        QVERIFY(!s.outputData().contains("TOPSECRET"));
    }
}

void tst_ConfigXml::saveIsWholeOrNothing()
{
    QTemporaryDir dir;
    const QString path = dir.filePath(QStringLiteral("config.xml"));
    const QByteArray previous = kDecl + "<DEVICE version=\"old\">\n</DEVICE>\n";
    writeFile(path, previous);
    CSerialize s(path);
    QVERIFY(s.startSerialize());
    CXmlTagV2* root = s.root();
    for (int i = 0; i < 5000; ++i) {
        CXmlTagV2* r = s.createNodeV2(root, QStringLiteral("Zone"), 3);
        addAttr(r, QStringLiteral("id"), QString::number(i));
    }
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

    // A path in a directory that does not exist is not written, and nothing is created.
    CSerialize other(dir.filePath(QStringLiteral("no/such/dir/c.xml")));
    QVERIFY(other.startSerialize());
    QVERIFY(!other.writeToFileV2());
    QVERIFY(!QFile::exists(dir.filePath(QStringLiteral("no"))));

    // With room to write, the whole document lands.
    QVERIFY(s.writeToFileV2());
    QVERIFY(readFile(path).endsWith("\t<Zone id=\"4999\"/>\n</DEVICE>\n"));
}

void tst_ConfigXml::createNodeModes()
{
    // What the facade cannot reach: the root's own rules and removal of one element.
    CSerialize s(0, nullptr);
    QVERIFY(s.startSerialize());
    for (int mode : { -1, 2, 4 })
        QVERIFY(!s.createNodeV2(nullptr, QStringLiteral("DEVICE"), mode));
    QVERIFY(!s.root());
    CXmlTagV2* root = s.createNodeV2(nullptr, QStringLiteral("DEVICE"), 0);
    QCOMPARE(s.createNodeV2(nullptr, QStringLiteral("DEVICE"), 1), root);
    CXmlTagV2* a = s.createNodeV2(root, QStringLiteral("A"), 1);
    CXmlTagV2* b = s.createNodeV2(root, QStringLiteral("B"), 3);
    QVERIFY(s.deleteTagV2(a));
    QCOMPARE(root->children.count(), 1);
    QCOMPARE(root->children.getNumTag(0), b);
    // Another root name replaces the document's root.
    CXmlTagV2* other = s.createNodeV2(nullptr, QStringLiteral("AINF"), 0);
    QCOMPARE(s.root(), other);
    QCOMPARE(other->children.count(), 0);
}

QTEST_APPLESS_MAIN(tst_ConfigXml)
#include "tst_config_xml.moc"

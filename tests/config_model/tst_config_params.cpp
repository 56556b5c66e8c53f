// Parameter lists, parameters and the element's own rules (decoding pass, owning lists).
#include "config_model/parameters.h"
#include "config_model/xml_tag.h"

#include <QtTest>

#include <cmath>
#include <cstdlib>
#include <cstring>

namespace {

// A list holding exactly one item of that name and value, as if read from an attribute.
void storeOne(CListParameters& list, const char* name, const QByteArray& value)
{
    COneParameter p;
    p.setName(name);
    p.setValue(value.constData());
    list.addData(&p, 1);
}

} // namespace

class tst_ConfigParams : public QObject
{
    Q_OBJECT
private slots:
    void readInteger_data();
    void readInteger();
    void readBool_data();
    void readBool();
    void readFloatDouble_data();
    void readFloatDouble();
    void readStringIntoBuffer_data();
    void readStringIntoBuffer();
    void readQStringDecodesLocal();
    void onlyFirstItemIsRead();
    void writeRewritesFirstOrAppends();
    void writeFormats();
    void textLimits();
    void scanWithGetFirstAndGetNext();
    void addDataCopiesWholeRecords();
    void parameterBasics();
    void decodingPass_data();
    void decodingPass();
    void tagListOwnsAndCopies();
};

void tst_ConfigParams::readInteger_data()
{
    QTest::addColumn<bool>("present");
    QTest::addColumn<QByteArray>("stored");
    QTest::addColumn<int>("expected");
    QTest::newRow("missing key gives default") << false << QByteArray() << 7;
    QTest::newRow("empty value gives default") << true << QByteArray("") << 7;
    QTest::newRow("letters parse as 0") << true << QByteArray("abc") << 0;
    QTest::newRow("leading digits") << true << QByteArray("12abc") << 12;
    QTest::newRow("negative") << true << QByteArray("-45") << -45;
    QTest::newRow("leading blanks") << true << QByteArray("  9") << 9;
    QTest::newRow("base 10 only") << true << QByteArray("0x1F") << 0;
    QTest::newRow("leading zero is not octal") << true << QByteArray("010") << 10;
    QTest::newRow("int max") << true << QByteArray("2147483647") << 2147483647;
    QTest::newRow("opaque white as written") << true << QByteArray("-1") << -1;
}

void tst_ConfigParams::readInteger()
{
    QFETCH(bool, present);
    QFETCH(QByteArray, stored);
    QFETCH(int, expected);
    CListParameters list;
    storeOne(list, "other", "99");
    if (present)
        storeOne(list, "key", stored);
    QCOMPARE(list.readInteger("key", 7), expected);
}

void tst_ConfigParams::readBool_data()
{
    QTest::addColumn<QByteArray>("stored");
    QTest::addColumn<bool>("def");
    QTest::addColumn<bool>("expected");
    QTest::newRow("word true is not a number") << QByteArray("true") << true << false;
    QTest::newRow("digit 2") << QByteArray("2") << false << true;
    QTest::newRow("digit 0") << QByteArray("0") << true << false;
    QTest::newRow("negative") << QByteArray("-1") << false << true;
    QTest::newRow("empty keeps default true") << QByteArray("") << true << true;
    QTest::newRow("empty keeps default false") << QByteArray("") << false << false;
}

void tst_ConfigParams::readBool()
{
    QFETCH(QByteArray, stored);
    QFETCH(bool, def);
    QFETCH(bool, expected);
    CListParameters list;
    storeOne(list, "b", stored);
    QCOMPARE(list.readBool("b", def), expected);
    QCOMPARE(list.readBool("missing", def), def);
}

void tst_ConfigParams::readFloatDouble_data()
{
    QTest::addColumn<QByteArray>("stored");
    QTest::addColumn<double>("expected");
    QTest::newRow("fixed") << QByteArray("2.500000") << 2.5;
    QTest::newRow("exponent") << QByteArray("1e3") << 1000.0;
    QTest::newRow("letters") << QByteArray("x1.5") << 0.0;
    QTest::newRow("trailing junk") << QByteArray("-0.25km") << -0.25;
    QTest::newRow("empty gives default") << QByteArray("") << 3.5;
}

void tst_ConfigParams::readFloatDouble()
{
    QFETCH(QByteArray, stored);
    QFETCH(double, expected);
    CListParameters list;
    storeOne(list, "f", stored);
    QCOMPARE(list.readDouble("f", 3.5), expected);
    QCOMPARE(list.readFloat("f", 3.5f), static_cast<float>(expected));
}

void tst_ConfigParams::readStringIntoBuffer_data()
{
    QTest::addColumn<bool>("present");
    QTest::addColumn<QByteArray>("stored");
    QTest::addColumn<int>("len");
    QTest::addColumn<QByteArray>("expected");
    QTest::newRow("missing: default cut to len-1") << false << QByteArray() << 4 << QByteArray("dfl");
    QTest::newRow("missing: default fits") << false << QByteArray() << 10 << QByteArray("dflt");
    QTest::newRow("stored value cut") << true << QByteArray("abcdef") << 4 << QByteArray("abc");
    QTest::newRow("stored empty stays empty") << true << QByteArray("") << 10 << QByteArray("");
    QTest::newRow("length 1 holds only the end") << true << QByteArray("abc") << 1 << QByteArray("");
}

void tst_ConfigParams::readStringIntoBuffer()
{
    QFETCH(bool, present);
    QFETCH(QByteArray, stored);
    QFETCH(int, len);
    QFETCH(QByteArray, expected);
    CListParameters list;
    if (present)
        storeOne(list, "s", stored);
    char buf[16];
    std::memset(buf, 'X', sizeof buf);
    QCOMPARE(list.readString("s", "dflt", buf, len), buf);
    QCOMPARE(QByteArray(buf), expected);
    // Nothing beyond len bytes is touched.
    for (int i = len; i < int(sizeof buf); ++i)
        QCOMPARE(buf[i], 'X');
    QVERIFY(list.readString("s", "dflt", nullptr, len) == nullptr);
}

void tst_ConfigParams::readQStringDecodesLocal()
{
    CListParameters list;
    storeOne(list, "name", QString::fromUtf8("Зона 1").toLocal8Bit());
    QString out;
    QCOMPARE(list.readString("name", QStringLiteral("x"), out), QString::fromUtf8("Зона 1"));
    QCOMPARE(list.readString("none", QStringLiteral("x"), out), QStringLiteral("x"));
    storeOne(list, "empty", "");
    QCOMPARE(list.readString("empty", QStringLiteral("x"), out), QString());
}

void tst_ConfigParams::onlyFirstItemIsRead()
{
    CListParameters list;
    storeOne(list, "k", "");
    storeOne(list, "k", "5");
    // The first item is empty, so the default wins even though a later one has a value.
    QCOMPARE(list.readInteger("k", 7), 7);
    list.writeInteger("k", 1);
    QCOMPARE(list.count, 2);
    QCOMPARE(QByteArray(list.items[0].value), QByteArray("1"));
    QCOMPARE(QByteArray(list.items[1].value), QByteArray("5"));
}

void tst_ConfigParams::writeRewritesFirstOrAppends()
{
    CListParameters list;
    list.writeInteger("maxSpeed", 100);
    list.writeInteger("maxSpeed", 120);
    QCOMPARE(list.count, 1);
    QCOMPARE(list.readInteger("maxSpeed", 0), 120);

    // A child-element item rewritten by a typed write becomes an attribute item.
    COneParameter node("TRACK");
    list.addData(&node, 1);
    QCOMPARE(list.items[1].isNode, 1);
    list.writeString("TRACK", "x");
    QCOMPARE(list.count, 2);
    QCOMPARE(list.items[1].isNode, 0);
    QCOMPARE(QByteArray(list.items[1].value), QByteArray("x"));

    list.writeTag("GNSS");
    QCOMPARE(list.count, 3);
    QCOMPARE(list.items[2].isNode, 1);
    list.writeTag("maxSpeed");
    QCOMPARE(QByteArray(list.items[0].value), QByteArray("maxSpeed"));
    QCOMPARE(list.items[0].isNode, 1);
}

void tst_ConfigParams::writeFormats()
{
    CListParameters list;
    list.writeFloat("hdop", 2.5f);
    list.writeBool("on", true);
    list.writeBool("off", false);
    list.writeString("null", static_cast<const char*>(nullptr));
    QString cyr = QString::fromUtf8("Привет");
    list.writeString("cyr", cyr);
    list.writeInteger("neg", -7);
    QCOMPARE(QByteArray(list.findParameter("hdop", 0)->value), QByteArray("2.500000"));
    QCOMPARE(QByteArray(list.findParameter("on", 0)->value), QByteArray("1"));
    QCOMPARE(QByteArray(list.findParameter("off", 0)->value), QByteArray("0"));
    QCOMPARE(QByteArray(list.findParameter("null", 0)->value), QByteArray(""));
    QCOMPARE(QByteArray(list.findParameter("cyr", 0)->value), cyr.toLocal8Bit());
    QCOMPARE(QByteArray(list.findParameter("neg", 0)->value), QByteArray("-7"));
    for (int i = 0; i < list.count; ++i) {
        QCOMPARE(list.items[i].isNode, 0);
        QVERIFY(list.items[i].tag == nullptr);
    }
    // Rewrites use the same formats.
    list.writeFloat("hdop", -1.0f);
    list.writeBool("on", false);
    QCOMPARE(QByteArray(list.findParameter("hdop", 0)->value), QByteArray("-1.000000"));
    QCOMPARE(QByteArray(list.findParameter("on", 0)->value), QByteArray("0"));
}

void tst_ConfigParams::textLimits()
{
    const QByteArray longName(300, 'n');
    const QByteArray longValue(300, 'v');
    CListParameters list;
    list.writeString(longName.constData(), longValue.constData());
    QCOMPARE(list.count, 1);
    QCOMPARE(QByteArray(list.items[0].name), longName.left(254));
    QCOMPARE(QByteArray(list.items[0].value), longValue.left(254));
    // The stored name is shorter than the one asked for, so it never matches again.
    list.writeString(longName.constData(), "2");
    QCOMPARE(list.count, 2);
    // A name of exactly 254 bytes is kept whole and matches.
    const QByteArray name254(254, 'k');
    list.writeInteger(name254.constData(), 1);
    list.writeInteger(name254.constData(), 2);
    QCOMPARE(list.count, 3);
    QCOMPARE(list.readInteger(name254.constData(), 0), 2);

    // A huge float is cut to the field rather than overflowing it.
    list.writeFloat("big", 3.0e38f);
    QCOMPARE(int(std::strlen(list.findParameter("big", 0)->value)), 46);
    QCOMPARE(list.readFloat("big", 0), 3.0e38f);

    // A value longer than float's range saturates.
    storeOne(list, "huge", "1e300");
    QVERIFY(std::isinf(list.readFloat("huge", 0)));
    QCOMPARE(list.readDouble("huge", 0), 1e300);
}

void tst_ConfigParams::scanWithGetFirstAndGetNext()
{
    CListParameters list;
    storeOne(list, "Zone", "1");
    storeOne(list, "count", "2");
    storeOne(list, "Zone", "2");
    storeOne(list, "Zone", "3");
    QByteArray seen;
    for (COneParameter* p = list.getFirst("Zone"); p; p = list.getNext())
        seen += p->value;
    QCOMPARE(seen, QByteArray("123"));
    QCOMPARE(list.findIndex, 4);
    // A miss leaves the resume point where it was.
    QVERIFY(!list.getNext());
    QCOMPARE(list.findIndex, 4);
    QVERIFY(!list.getFirst("none"));
    QCOMPARE(list.findIndex, 0);
    QVERIFY(list.findParameter("Zone", 3));
    QVERIFY(!list.findParameter("Zone", 4));
    QVERIFY(!list.findParameter("Zone", 100));
    QVERIFY(!list.findParameter(nullptr, 0));
}

void tst_ConfigParams::addDataCopiesWholeRecords()
{
    CXmlTagV2 tag(QStringLiteral("t"));
    coreSzItem items[2];
    std::memset(items, 0, sizeof items);
    std::strcpy(items[0].name, "a");
    std::strcpy(items[0].value, "1");
    items[0].isNode = 1;
    items[0].tag = &tag;
    std::strcpy(items[1].name, "b");
    CListParameters list(items, 2);
    QCOMPARE(list.count, 2);
    QCOMPARE(list.items[0].isNode, 1);
    QVERIFY(list.items[0].tag == &tag);
    QCOMPARE(list.addData(nullptr, 3), 0);
    QCOMPARE(list.addData(items, 0), 0);
    QCOMPARE(list.addData(items, -1), 0);
    QCOMPARE(list.count, 2);
    list.addData(items, 2);
    QCOMPARE(list.count, 4);
    QCOMPARE(QByteArray(list.items[3].name), QByteArray("b"));

    // A record without terminators is cut at its field's end, never read beyond it.
    coreSzItem raw;
    std::memset(&raw, 'z', sizeof raw);
    raw.tag = nullptr;
    list.addData(&raw, 1);
    QCOMPARE(int(std::strlen(list.items[4].name)), 254);
    QCOMPARE(int(std::strlen(list.items[4].value)), 254);

    list.inicParameters();
    QCOMPARE(list.count, 0);
    QVERIFY(list.items == nullptr);
}

void tst_ConfigParams::parameterBasics()
{
    COneParameter empty;
    int i = 5;
    QVERIFY(!empty.asInt(i));
    QCOMPARE(i, 5);
    char buf[4];
    QVERIFY(empty.asString(buf, sizeof buf)); // true even for an empty value
    QVERIFY(!empty.asString(nullptr, 4));
    QVERIFY(!empty.asString(buf, 0));

    COneParameter node("POINTS");
    QCOMPARE(node.isNode, 1);
    for (int k = 6; k < 255; ++k)
        QCOMPARE(node.name[k], '\0');
    QVERIFY(node == "POINTS");
    QVERIFY(!(node == "points")); // case-sensitive
    QVERIFY(!(node == nullptr));
}

void tst_ConfigParams::decodingPass_data()
{
    QTest::addColumn<QString>("stored");
    QTest::addColumn<QString>("expected");
    QTest::newRow("plain") << "abc"
                           << "abc";
    QTest::newRow("ampersand entity") << "a&amp;b"
                                      << "a&b";
    QTest::newRow("amp then lt decodes twice") << "&amp;lt;"
                                               << "<";
    QTest::newRow("double amp once") << "&amp;amp;"
                                     << "&amp;";
    QTest::newRow("nbsp") << "a&nbsp;b"
                          << "a b";
    QTest::newRow("all five") << "&gt;&lt;&quot;&apos;"
                              << "><\"'";
    QTest::newRow("exclamation escape") << "hi_33_"
                                        << "hi!";
    QTest::newRow("other escapes stay") << "a_32_b_45_"
                                        << "a_32_b_45_";
    QTest::newRow("unknown entity stays") << "&copy;"
                                          << "&copy;";
}

void tst_ConfigParams::decodingPass()
{
    QFETCH(QString, stored);
    QFETCH(QString, expected);
    const CXmlTagV2 tag(QStringLiteral("n"), stored);
    QCOMPARE(tag.value, expected);
    // Later assignments are stored as they are.
    CXmlTagV2 t2(QStringLiteral("n"));
    t2.value = stored;
    QCOMPARE(t2.value, stored);
}

void tst_ConfigParams::tagListOwnsAndCopies()
{
    auto* root = new CXmlTagV2(QStringLiteral("ROOT"));
    auto* a = new CXmlTagV2(QStringLiteral("A"), QString(), root);
    auto* b = new CXmlTagV2(QStringLiteral("B"), QString(), root);
    auto* a2 = new CXmlTagV2(QStringLiteral("A"), QStringLiteral("second"), root);
    root->children.addTag(a);
    root->children.addTag(b);
    root->children.addTag(a2);
    root->children.addTag(nullptr);
    a->values.addTag(new CXmlTagV2(QStringLiteral("k"), QStringLiteral("v"), a));
    QCOMPARE(root->children.count(), 3);
    QCOMPARE(root->children.getTagFromName(QStringLiteral("A")), a);
    QCOMPARE(root->children.getNumTag(2), a2);
    QVERIFY(!root->children.getNumTag(3));
    QVERIFY(!root->children.getNumTag(-1));
    QVERIFY(root->children.exists(QStringLiteral("B")));
    QVERIFY(!root->children.exists(QStringLiteral("b")));
    QVERIFY(root->children.isGoodTag(b));

    // Unlinking keeps the tag alive; the caller now owns it.
    QVERIFY(root->children.deleteTag(b));
    QVERIFY(!root->children.deleteTag(b));
    QCOMPARE(root->children.count(), 2);
    QCOMPARE(root->children.getNumTag(1), a2);
    QCOMPARE(b->name, QStringLiteral("B"));
    delete b;

    CXmlTagV2 copy(*root);
    QCOMPARE(copy.children.count(), 2);
    QVERIFY(copy.children.getNumTag(0) != a);
    QCOMPARE(copy.children.getNumTag(0)->parent, &copy);
    QCOMPARE(copy.children.getNumTag(0)->values.getNumTag(0)->value, QStringLiteral("v"));
    QCOMPARE(copy.children.getNumTag(1)->value, QStringLiteral("second"));

    CFxXmListlTag other;
    other = root->children;
    other.setParent(nullptr);
    QCOMPARE(other.count(), 2);
    QVERIFY(other.getNumTag(0)->parent == nullptr);
    QVERIFY(a->parent == root);
    other.freeList();
    QCOMPARE(other.count(), 0);
    delete root;
}

QTEST_APPLESS_MAIN(tst_ConfigParams)
#include "tst_config_params.moc"

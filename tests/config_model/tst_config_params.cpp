// Parameter lists, parameters and the element's own rules (decoding pass, owning lists).
#include "config_model/parameters.h"
#include "config_model/serialize.h"
#include "config_model/xml_tag.h"
#include "config_model/xml_workdata.h"

#include <QtTest>

#include <clocale>
#include <cmath>
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
    void commaLocaleIsInEffect();
    void decimalsUsePoint_data();
    void decimalsUsePoint();
    void typedReads_data();
    void typedReads();
    void treeReadsMatchTheList_data();
    void treeReadsMatchTheList();
    void readStringIntoBuffer_data();
    void readStringIntoBuffer();
    void writesRewriteTheFirstItem();
    void textLimits();
    void addDataCutsUnterminatedRecords();
    void decodingPass_data();
    void decodingPass();
    void tagListOwnsAndCopies();
};

// The second run of this test (tst_config_params_ru) must really have a comma-decimal locale.
void tst_ConfigParams::commaLocaleIsInEffect()
{
    if (!qEnvironmentVariableIsSet("ZRK_COMMA_LOCALE"))
        QSKIP("only the ru_RU.UTF-8 run checks its locale");
    // Without an application object nothing has taken the locale from the environment yet.
    std::setlocale(LC_ALL, "");
    char text[16];
    std::snprintf(text, sizeof text, "%.1f", 2.5);
    QCOMPARE(QByteArray(text), QByteArray("2,5"));
}

// Whatever the desktop's locale, files read and write decimals with a point.
void tst_ConfigParams::decimalsUsePoint_data()
{
    QTest::addColumn<float>("value");
    QTest::addColumn<QByteArray>("text");
    QTest::newRow("filter HDOP") << 2.5f << QByteArray("2.500000");
    QTest::newRow("negative fraction") << -0.25f << QByteArray("-0.250000");
    QTest::newRow("whole") << 10.0f << QByteArray("10.000000");
}

void tst_ConfigParams::decimalsUsePoint()
{
    QFETCH(float, value);
    QFETCH(QByteArray, text);
    CListParameters list;
    list.writeFloat("v", value);
    QCOMPARE(QByteArray(list.findParameter("v", 0)->value), text);
    QCOMPARE(list.readFloat("v", 0), value);
    // A comma is not a decimal separator in a file: the number ends before it.
    storeOne(list, "comma", "2,5");
    QCOMPARE(list.readDouble("comma", 0), 2.0);
}

void tst_ConfigParams::typedReads_data()
{
    // A null stored value: no item of that name at all.
    QTest::addColumn<QByteArray>("stored");
    QTest::addColumn<int>("asInt"); // readInteger with default 7
    QTest::addColumn<bool>("asBool"); // readBool with default true
    QTest::addColumn<double>("asDouble"); // readDouble with default 3.5
    QTest::newRow("missing key gives defaults") << QByteArray() << 7 << true << 3.5;
    QTest::newRow("empty value gives defaults") << QByteArray("") << 7 << true << 3.5;
    QTest::newRow("letters parse as 0") << QByteArray("abc") << 0 << false << 0.0;
    QTest::newRow("word true is not a number") << QByteArray("true") << 0 << false << 0.0;
    QTest::newRow("leading digits") << QByteArray("12abc") << 12 << true << 12.0;
    QTest::newRow("any non-zero is true") << QByteArray("2") << 2 << true << 2.0;
    QTest::newRow("base 10 only") << QByteArray("0x1F") << 0 << false << 31.0;
    QTest::newRow("leading zero is not octal") << QByteArray("010") << 10 << true << 10.0;
    QTest::newRow("fraction with unit") << QByteArray("-0.25km") << 0 << false << -0.25;
}

void tst_ConfigParams::typedReads()
{
    QFETCH(QByteArray, stored);
    QFETCH(int, asInt);
    QFETCH(bool, asBool);
    QFETCH(double, asDouble);
    CListParameters list;
    storeOne(list, "other", "99");
    if (!stored.isNull())
        storeOne(list, "key", stored);
    QCOMPARE(list.readInteger("key", 7), asInt);
    QCOMPARE(list.readBool("key", true), asBool);
    QCOMPARE(list.readDouble("key", 3.5), asDouble);
    QCOMPARE(list.readFloat("key", 3.5f), static_cast<float>(asDouble));
}

// Reading an element straight from the tree gives what its parameter list gives: the first entry
// of a name, attributes before child elements, an empty first entry read as the default, values
// cut to the record's field.
void tst_ConfigParams::treeReadsMatchTheList_data()
{
    QTest::addColumn<QByteArray>("element"); // the root's only child is read
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("asInt"); // default 7
    QTest::addColumn<QString>("asString"); // default "d"
    const QByteArray spaces(260, ' ');
    QTest::newRow("attribute") << QByteArray("<N k=\"12abc\"/>") << "k" << 12 << "12abc";
    QTest::newRow("missing") << QByteArray("<N j=\"1\"/>") << "k" << 7 << "d";
    QTest::newRow("child element text") << QByteArray("<N j=\"1\"><k>5</k></N>") << "k" << 5 << "5";
    QTest::newRow("attribute before child")
        << QByteArray("<N k=\"1\"><k>5</k><x k=\"3\"/></N>") << "k" << 1 << "1";
    QTest::newRow("empty first entry") << QByteArray("<N k=\"\"><k>5</k></N>") << "k" << 7 << "";
    QTest::newRow("number after the field's end") << "<N k=\"" + spaces + "42\"/>"
                                                  << "k" << 0 << QString(254, QLatin1Char(' '));
    QTest::newRow("long text cut to the field") << QByteArray("<N k=\"") + QByteArray(300, 'x') + "\"/>"
                                                << "k" << 0 << QString(254, QLatin1Char('x'));
    QTest::newRow("non-Latin text") << QByteArray("<N k=\"\xD0\x96-1\"/>") << "k" << 0
                                    << QStringLiteral("Ж-1");
}

void tst_ConfigParams::treeReadsMatchTheList()
{
    QFETCH(QByteArray, element);
    QFETCH(QString, name);
    QFETCH(int, asInt);
    QFETCH(QString, asString);
    const QByteArray text = "<?xml version=\"1.0\" encoding=\"UTF-8\"?><R>" + element + "</R>";
    CSerialize doc(text.size(), reinterpret_cast<const unsigned char*>(text.constData()));
    QVERIFY(doc.startSerialize());
    CXmlTagV2* tag = doc.root()->children.getNumTag(0);
    QVERIFY(tag);
    const CTagParameters tree(tag);
    const CXMLWorkData list(&doc, static_cast<void*>(tag));
    const QByteArray key = name.toLatin1();
    QCOMPARE(tree.readInteger(name, 7), asInt);
    QCOMPARE(list.readInteger(key.constData(), 7), asInt);
    QCOMPARE(tree.readString(name, QStringLiteral("d")), asString);
    QCOMPARE(list.readString(key.constData(), QStringLiteral("d")), asString);
    QCOMPARE(tree.readBool(name, true), list.readBool(key.constData(), true));
    QCOMPARE(tree.readFloat(name, 2.5f), list.readFloat(key.constData(), 2.5f));
}

void tst_ConfigParams::readStringIntoBuffer_data()
{
    QTest::addColumn<QByteArray>("stored");
    QTest::addColumn<int>("len");
    QTest::addColumn<QByteArray>("expected");
    QTest::newRow("missing: default cut to len-1") << QByteArray() << 4 << QByteArray("dfl");
    QTest::newRow("stored value cut") << QByteArray("abcdef") << 4 << QByteArray("abc");
    QTest::newRow("stored empty is not the default") << QByteArray("") << 10 << QByteArray("");
    QTest::newRow("length 1 holds only the end") << QByteArray("abc") << 1 << QByteArray("");
}

void tst_ConfigParams::readStringIntoBuffer()
{
    QFETCH(QByteArray, stored);
    QFETCH(int, len);
    QFETCH(QByteArray, expected);
    CListParameters list;
    if (!stored.isNull())
        storeOne(list, "s", stored);
    char buf[16];
    std::memset(buf, 'X', sizeof buf);
    QCOMPARE(list.readString("s", "dflt", buf, len), buf);
    QCOMPARE(QByteArray(buf), expected);
    QCOMPARE(QByteArray(buf + len, int(sizeof buf) - len), QByteArray(int(sizeof buf) - len, 'X'));
    QVERIFY(list.readString("s", "dflt", nullptr, len) == nullptr);
}

void tst_ConfigParams::writesRewriteTheFirstItem()
{
    CListParameters list;
    storeOne(list, "k", "");
    storeOne(list, "k", "5");
    // Only the first item of a name counts: it is empty, so the default wins.
    QCOMPARE(list.readInteger("k", 7), 7);
    list.writeInteger("k", 1);
    list.writeInteger("k", 2);
    QCOMPARE(list.count, 2);
    QCOMPARE(QByteArray(list.items[0].value), QByteArray("2"));
    QCOMPARE(QByteArray(list.items[1].value), QByteArray("5"));

    // A child-element item rewritten by a typed write becomes an attribute item, and back.
    COneParameter node("TRACK");
    list.addData(&node, 1);
    list.writeString("TRACK", "x");
    QCOMPARE(list.items[2].isNode, 0);
    QCOMPARE(QByteArray(list.items[2].value), QByteArray("x"));
    list.writeTag("TRACK");
    QCOMPARE(list.count, 3);
    QCOMPARE(list.items[2].isNode, 1);
    QCOMPARE(QByteArray(list.items[2].value), QByteArray("TRACK"));

    list.writeBool("on", true);
    list.writeBool("off", false);
    list.writeString("null", static_cast<const char*>(nullptr));
    QCOMPARE(
        QByteArray(list.items[3].value).append(list.items[4].value).append(list.items[5].value).append('.'),
        QByteArray("10."));
}

void tst_ConfigParams::textLimits()
{
    const QByteArray longName(300, 'n');
    const QByteArray longValue(300, 'v');
    CListParameters list;
    list.writeString(longName.constData(), longValue.constData());
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

    // A huge float is written whole within the field, and a double beyond float's range saturates.
    list.writeFloat("big", 3.0e38f);
    QCOMPARE(int(std::strlen(list.findParameter("big", 0)->value)), 46);
    QCOMPARE(list.readFloat("big", 0), 3.0e38f);
    storeOne(list, "huge", "1e300");
    QVERIFY(std::isinf(list.readFloat("huge", 0)));
    QCOMPARE(list.readDouble("huge", 0), 1e300);
}

void tst_ConfigParams::addDataCutsUnterminatedRecords()
{
    CListParameters list;
    QCOMPARE(list.addData(nullptr, 3), 0);
    coreSzItem raw;
    QCOMPARE(list.addData(&raw, -1), 0);
    // A record without terminators is cut at its field's end, never read beyond it.
    std::memset(&raw, 'z', sizeof raw);
    raw.tag = nullptr;
    list.addData(&raw, 1);
    QCOMPARE(int(std::strlen(list.items[0].name)), 254);
    QCOMPARE(int(std::strlen(list.items[0].value)), 254);
    list.inicParameters();
    QCOMPARE(list.count, 0);
    QVERIFY(list.items == nullptr);
}

void tst_ConfigParams::decodingPass_data()
{
    QTest::addColumn<QString>("stored");
    QTest::addColumn<QString>("expected");
    QTest::newRow("amp, then lt") << QStringLiteral("&amp;lt;") << "<";
    QTest::newRow("amp once") << QStringLiteral("&amp;amp;") << "&amp;";
    QTest::newRow("the others") << QStringLiteral("&gt;&lt;&quot;&apos;a&nbsp;b") << "><\"'a b";
    QTest::newRow("exclamation") << QStringLiteral("hi_33_") << "hi!";
    QTest::newRow("name escapes stay") << QStringLiteral("a_32_b_45_") << "a_32_b_45_";
    QTest::newRow("unknown entity") << QStringLiteral("&copy;") << "&copy;";
}

void tst_ConfigParams::decodingPass()
{
    QFETCH(QString, stored);
    QFETCH(QString, expected);
    QCOMPARE(CXmlTagV2(QStringLiteral("n"), stored).value, expected);
    // Later assignments are stored as they are.
    CXmlTagV2 t2(QStringLiteral("n"));
    t2.value = stored;
    QCOMPARE(t2.value, stored);
}

void tst_ConfigParams::tagListOwnsAndCopies()
{
    CXmlTagV2 root(QStringLiteral("ROOT"));
    for (const char* n : { "A", "B", "A" })
        root.children.addTag(new CXmlTagV2(QLatin1String(n), QLatin1String(n) + QStringLiteral("v"), &root));
    root.children.addTag(nullptr);
    CXmlTagV2* a = root.children.getNumTag(0);
    CXmlTagV2* b = root.children.getNumTag(1);
    a->values.addTag(new CXmlTagV2(QStringLiteral("k"), QStringLiteral("v"), a));
    QVERIFY(!root.children.getNumTag(3)); // the null tag was not added
    // Unlinking keeps the tag alive; the caller now owns it.
    QVERIFY(root.children.deleteTag(b));
    QVERIFY(!root.children.deleteTag(b));
    QCOMPARE(root.children.getNumTag(1)->value, QStringLiteral("Av"));
    QCOMPARE(b->name, QStringLiteral("B"));
    delete b;
    // A copy is deep and its tags have the copy for parent.
    const CXmlTagV2 copy(root);
    QVERIFY(copy.children.getNumTag(0) != a);
    QCOMPARE(copy.children.getNumTag(0)->parent, &copy);
    QCOMPARE(copy.children.getNumTag(0)->values.getNumTag(0)->value, QStringLiteral("v"));
    QVERIFY(a->parent == &root);
}

QTEST_APPLESS_MAIN(tst_ConfigParams)
#include "tst_config_params.moc"

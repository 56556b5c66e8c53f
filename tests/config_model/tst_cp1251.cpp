#include "config_model/cp1251.h"

#include <QTextCodec>
#include <QtTest>

class tst_Cp1251 : public QObject
{
    Q_OBJECT
private slots:
    void everyUnitMatchesQtCodec();
    void upperHalfRoundTrips();
    void appendKeepsWhatIsThere();
    void examples_data();
    void examples();
};

// Every one of the 65,536 UTF-16 units: the byte Qt's own codec gives when it can represent the
// unit (the unit survives a round trip), "_" when it cannot.
void tst_Cp1251::everyUnitMatchesQtCodec()
{
    QTextCodec* codec = QTextCodec::codecForName("windows-1251");
    QVERIFY(codec);
    int mismatches = 0;
    for (int u = 0; u <= 0xFFFF; ++u) {
        const QChar c(static_cast<ushort>(u));
        QByteArray expected;
        if (!c.isSurrogate()) {
            QTextCodec::ConverterState state(QTextCodec::ConvertInvalidToNull);
            const QByteArray qt = codec->fromUnicode(&c, 1, &state);
            if (state.invalidChars == 0 && qt.size() == 1 && codec->toUnicode(qt) == QString(c))
                expected = qt;
        }
        if (expected.isEmpty())
            expected = "_";
        const char got = zrk::windows1251Byte(static_cast<char16_t>(u));
        if (got != expected.at(0) && ++mismatches < 10)
            qWarning("U+%04X: got 0x%02X, expected 0x%02X", u, uchar(got), uchar(expected.at(0)));
    }
    QCOMPARE(mismatches, 0);
}

void tst_Cp1251::upperHalfRoundTrips()
{
    QTextCodec* codec = QTextCodec::codecForName("windows-1251");
    for (int b = 0; b < 256; ++b) {
        const QChar c = zrk::fromWindows1251Byte(static_cast<unsigned char>(b));
        QCOMPARE(QString(c), codec->toUnicode(QByteArray(1, char(b))));
        QCOMPARE(uchar(zrk::windows1251Byte(c.unicode())), uchar(b));
    }
}

void tst_Cp1251::appendKeepsWhatIsThere()
{
    QByteArray out("@ZRK");
    zrk::appendWindows1251(out, QString::fromUtf8("*>PASS:Пароль€"));
    QCOMPARE(out, QByteArray("@ZRK*>PASS:\xCF\xE0\xF0\xEE\xEB\xFC\x88"));
}

void tst_Cp1251::examples_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("ascii") << QStringLiteral("*?PING 1") << QByteArray("*?PING 1");
    QTest::newRow("yo") << QString::fromUtf8("Ёё") << QByteArray("\xA8\xB8");
    QTest::newRow("numero") << QString::fromUtf8("№") << QByteArray("\xB9");
    QTest::newRow("not in code page") << QString::fromUtf8("日ä") << QByteArray("__");
    QTest::newRow("surrogate pair is two units") << QString::fromUtf8("😀") << QByteArray("__");
    QTest::newRow("empty") << QString() << QByteArray();
}

void tst_Cp1251::examples()
{
    QFETCH(QString, text);
    QFETCH(QByteArray, bytes);
    QCOMPARE(zrk::toWindows1251(text), bytes);
}

QTEST_APPLESS_MAIN(tst_Cp1251)
#include "tst_cp1251.moc"

#pragma once

// Records assembled the way a terminal writes them: the test names fields and their values, the
// builder sets their mask bits and lays their bytes out in field order at the table's widths.
// Nothing here uses the decoder.

#include "telemetry/orba_record.h"

#include <QByteArray>
#include <QMap>

#include <vector>

namespace orbatest {

inline QByteArray le(quint64 v, int width)
{
    QByteArray b;
    for (int i = 0; i < width; ++i)
        b.append(char((v >> (8 * i)) & 0xFF));
    return b;
}

inline int widthOf(int no)
{
    return orba::kFields[no - 1].width;
}

// A recognisable byte pattern for field no, different for every field and byte.
inline QByteArray pattern(int no)
{
    QByteArray b;
    for (int i = 0; i < widthOf(no); ++i)
        b.append(char((no * 37 + i * 11 + 1) & 0xFF));
    return b;
}

class RecordBuilder
{
public:
    RecordBuilder& set(int no, const QByteArray& bytes)
    {
        Q_ASSERT(bytes.size() == widthOf(no));
        m_values[no] = bytes;
        return *this;
    }
    RecordBuilder& setNumber(int no, quint64 v) { return set(no, le(v, widthOf(no))); }
    RecordBuilder& setPattern(int no) { return set(no, pattern(no)); }
    QByteArray mask() const
    {
        QByteArray m(orba::kMaskBytes, '\0');
        auto mark = [&](int no) { m[(no - 1) / 8] = char(m[(no - 1) / 8] | (0x80 >> ((no - 1) % 8))); };
        for (auto it = m_values.begin(); it != m_values.end(); ++it)
            mark(it.key());
        return m;
    }
    QByteArray body() const
    {
        QByteArray b;
        for (auto it = m_values.begin(); it != m_values.end(); ++it)
            b += it.value();
        return b;
    }
    QByteArray record(int version = 3) const
    {
        QByteArray r;
        r.append(char(orba::kKindCurrent));
        r.append(char(orba::kVersionByte[version]));
        return r + mask() + body();
    }
    // The all-fields structure a correct decoder fills from the record with cut bytes missing at
    // its end: each field of the version at its place, from the body in field order.
    QByteArray expectedStructure(int version, int cut = 0) const
    {
        QByteArray s(orba::recordSize(version), '\0'), b = body();
        b = b.left(b.size() - cut) + QByteArray(cut, '\0');
        int at = 0;
        for (auto it = m_values.begin(); it != m_values.end(); at += it.value().size(), ++it) {
            if (it.key() <= orba::kLastField[version])
                s.replace(orba::kOffsets[it.key()], it.value().size(), b.mid(at, it.value().size()));
        }
        return s;
    }

private:
    QMap<int, QByteArray> m_values; // ordered by field number, as the record is
};

// An extended record laid out as the terminal writes it: kind, DataSize, the visible part with its
// version (1) and size, the hidden part with its version (2) and size, the dynamic data. NumPage
// 12, Code 0x0102, Time 1700000000, StateNGauge 3, LastTime 1699999990, Latitude 33456789,
// Longitude -22200001, Altitude -15, Speed 12.5, Course 270, Run -1.5; State 0x99 (TypeWork 1,
// Guard 3, AccelCalibr 1), StateOut1 0x81, StateIn_Imp1 100000, StateIn_Imp2 7, Motochas 3600.
inline QByteArray extRecord(const QByteArray& dynamic = {})
{
    const QByteArray after = QByteArray::fromHex("0125" // visible part
                                                 "0c000000020100f1536503f6f053659582fe013f41adfe"
                                                 "f1ffffff000048410e010000c0bf"
                                                 "020e" // hidden part
                                                 "9981a086010007000000100e0000")
        + dynamic;
    return QByteArray(1, char(orba::kKindExtended)) + le(after.size(), 2) + after;
}

inline QByteArray item(int type, int size, const QByteArray& value)
{
    return QByteArray(1, char(type)) + QByteArray(1, char(size)) + value;
}

// An exactly sized heap copy, so that a sanitizer sees any read past the end.
struct ExactBuffer
{
    explicit ExactBuffer(const QByteArray& b)
        : bytes(b.begin(), b.end())
    {
    }
    const unsigned char* data() const { return bytes.empty() ? nullptr : bytes.data(); }
    int size() const { return int(bytes.size()); }
    std::vector<unsigned char> bytes;
};

inline QByteArray structureBytes(const void* p, int size)
{
    return QByteArray(reinterpret_cast<const char*>(p), size);
}

} // namespace orbatest

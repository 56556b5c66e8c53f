#include "config_model/orba_fieldset.h"

#include "config_model/xml_workdata.h"
#include "telemetry/orba_record.h"

#include <memory>

namespace zrk::fieldset {

namespace {

// Positions the default masks select, in order; each generation's mask is cut at its span end.
constexpr int kDefaultOn[] = { 0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 18, 19, 28, 30, 36, 70, 122,
    123, 124, 138, 199, 205 };

QString defaultMaskOf(int length)
{
    QString mask(length, QLatin1Char('0'));
    for (int pos : kDefaultOn) {
        if (pos < length)
            mask[pos] = QLatin1Char('1');
    }
    return mask;
}

std::unique_ptr<CXMLWorkData> child(CXMLWorkData* parent, const char* name, int mode)
{
    return std::unique_ptr<CXMLWorkData>(parent ? parent->createNode(name, mode) : nullptr);
}

} // namespace

const QString const_qsDef_Orba1 = defaultMaskOf(kSpanEnd[1]);
const QString const_qsDef_Orba2 = defaultMaskOf(kSpanEnd[2]);
const QString const_qsDef_Orba3 = defaultMaskOf(kSpanEnd[3]);

int generationIndex(const QString& format)
{
    for (int i = 0; i < 3; ++i) {
        if (format == QLatin1String(kFormatTexts[i]))
            return i;
    }
    return 1;
}

QString generationText(int index)
{
    return QLatin1String(kFormatTexts[index >= 0 && index < 3 ? index : 1]);
}

const QVector<ProtocolKey>& protocolKeys()
{
    static const QVector<ProtocolKey> keys = {
        { kOrbaNode, kFormatKey, 0 },
        { kOrbaNode, kMaskKey, kMaskLength },
    };
    return keys;
}

QString defaultMask(bool useState2, bool useReserv)
{
    QString mask = const_qsDef_Orba3;
    mask[kPosState2] = QLatin1Char(useState2 ? '1' : '0');
    if (!useReserv)
        mask[kPosReserv] = QLatin1Char('0');
    return mask;
}

QString sanitizedMask(const QString& text)
{
    QString mask(kMaskLength, QLatin1Char('0'));
    const int n = qMin(text.size(), kMaskLength);
    for (int i = 0; i < n; ++i) {
        const QChar c = text.at(i);
        if (c != QLatin1Char('0') && c != QLatin1Char('1'))
            break;
        mask[i] = c;
    }
    return mask;
}

int positionWidth(int pos)
{
    return pos >= 0 && pos < orba::kFieldCount ? orba::kFields[pos].width : 0;
}

int positionGeneration(int pos)
{
    for (int g = 1; g <= 3; ++g) {
        if (pos >= kSpanEnd[g - 1] && pos < kSpanEnd[g])
            return g;
    }
    return 0;
}

int maskRecordSize(const QString& mask, int generation)
{
    const int end = qMin(mask.size(), kSpanEnd[qBound(0, generation, 2) + 1]);
    int size = 0;
    for (int pos = 0; pos < end; ++pos) {
        if (mask.at(pos) == QLatin1Char('1'))
            size += positionWidth(pos);
    }
    return size;
}

QStringList checkMask(const QString& mask, int generation)
{
    QStringList faults;
    if (mask.size() != kMaskLength)
        faults << QStringLiteral("mask has %1 characters, expected %2").arg(mask.size()).arg(kMaskLength);
    for (int i = 0; i < mask.size(); ++i) {
        if (mask.at(i) != QLatin1Char('0') && mask.at(i) != QLatin1Char('1')) {
            faults << QStringLiteral("mask character %1 is not 0 or 1").arg(i);
            break;
        }
    }
    if (!mask.startsWith(QLatin1String("111")))
        faults << QStringLiteral("mask does not start with 111");
    const int size = maskRecordSize(sanitizedMask(mask), generation);
    if (size > kSizeLimit)
        faults << QStringLiteral("record of %1 bytes is over %2").arg(size).arg(kSizeLimit);
    return faults;
}

FieldSetChoice readFieldSet(CXMLWorkData* root, bool useState2)
{
    FieldSetChoice choice { QLatin1String(kFormatReadDefault), defaultMask(useState2) };
    auto protocol = child(root, kProtocolNode, 0);
    auto orbaNode = child(protocol.get(), kOrbaNode, 0);
    if (!orbaNode)
        return choice;
    choice.format = orbaNode->readString(kFormatKey, choice.format);
    choice.mask = sanitizedMask(orbaNode->readString(kMaskKey, choice.mask));
    return choice;
}

void writeFieldSet(CXMLWorkData* root, const FieldSetChoice& choice)
{
    auto top = child(root, kProtocolNode, 0);
    if (!top)
        return;
    top->clearNode();
    top->writeString(kPageKey, kProtocolNode);
    if (auto orbaNode = child(top.get(), kOrbaNode, 3)) {
        orbaNode->clearNode();
        orbaNode->writeString(kFormatKey, choice.format);
        orbaNode->writeString(kMaskKey, choice.mask);
        orbaNode->writeParameters();
    }
    top->writeParameters();
}

bool readMaskFromFile(const QString& path, QString* mask, QString* format)
{
    CXMLWorkData root(path, QStringLiteral("DEVICE"));
    if (!root.serializer())
        return false;
    bool found = false;
    if (std::unique_ptr<CXMLWorkData> top { root.getFirstNode(kProtocolNode) }) {
        if (std::unique_ptr<CXMLWorkData> orbaNode { top->getFirstNode(kOrbaNode) }) {
            const QString text = orbaNode->readString(kMaskKey, QString());
            found = !text.isEmpty();
            if (found && mask)
                *mask = sanitizedMask(text);
            if (format)
                *format = orbaNode->readString(kFormatKey, QLatin1String(kFormatReadDefault));
        }
    }
    coreSzNode node {};
    root.fillNodeData(node);
    zrk_StopSZ(node.serializer, false);
    return found;
}

// ---- User parameters -------------------------------------------------------------------------

QString userGroupNode(int group)
{
    return QStringLiteral("PARAM%1").arg(kUserWidths[qBound(0, group, 3)]);
}

int userTypeCount(int group)
{
    return kUserWidths[qBound(0, group, 3)] >= 4 ? 4 : 3;
}

UserParams defaultUserParams()
{
    UserParams params;
    for (int g = 0; g < 4; ++g) {
        for (int i = 0; i < kUserCounts[g]; ++i)
            params.names[g] << QString();
        params.types[g] = QString(kUserCounts[g], QLatin1Char('0'));
    }
    return params;
}

UserParams readUserParams(CXMLWorkData* root)
{
    UserParams params = defaultUserParams();
    auto top = child(root, kUserNode, 0);
    if (!top)
        return params;
    for (int g = 0; g < 4; ++g) {
        auto node = child(top.get(), userGroupNode(g).toLatin1().constData(), 0);
        if (!node)
            continue;
        const QString types = node->readString(kUserTypeKey, QString());
        for (int i = 0; i < kUserCounts[g]; ++i) {
            const int type = i < types.size() ? types.at(i).digitValue() : 0;
            // An unknown digit (or a float on a narrow parameter) reads as unsigned.
            if (type > 0 && type < userTypeCount(g))
                params.types[g][i] = QChar(QLatin1Char('0').unicode() + type);
            params.names[g][i]
                = node->readString(QByteArray("name" + QByteArray::number(i + 1)).constData(), QString());
        }
    }
    return params;
}

void writeUserParams(CXMLWorkData* root, const UserParams& params)
{
    auto top = child(root, kUserNode, 0);
    if (!top)
        return;
    top->clearNode();
    top->writeString(kPageKey, kUserNode);
    for (int g = 0; g < 4; ++g) {
        auto node = child(top.get(), userGroupNode(g).toLatin1().constData(), 3);
        if (!node)
            continue;
        node->clearNode();
        node->writeString(
            kUserTypeKey, params.types[g].leftJustified(kUserCounts[g], QLatin1Char('0'), true));
        for (int i = 0; i < kUserCounts[g]; ++i)
            node->writeString(
                QByteArray("name" + QByteArray::number(i + 1)).constData(), params.names[g].value(i));
        node->writeParameters();
    }
    top->writeParameters();
}

QStringList userParamTypes(CXMLWorkData* root)
{
    const UserParams params = readUserParams(root);
    return { params.types[0], params.types[1], params.types[2], params.types[3] };
}

} // namespace zrk::fieldset

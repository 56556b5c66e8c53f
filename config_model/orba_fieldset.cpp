#include "config_model/orba_fieldset.h"

#include "config_model/config_keys.h"
#include "config_model/xml_tag.h"
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

// Each fault reads as what was expected, the way lint prints it.
QStringList checkMask(const QString& mask, int generation)
{
    QStringList faults;
    if (mask.size() != kMaskLength)
        faults << QStringLiteral("%1 characters (found %2)").arg(kMaskLength).arg(mask.size());
    for (int i = 0; i < mask.size(); ++i) {
        if (mask.at(i) != QLatin1Char('0') && mask.at(i) != QLatin1Char('1')) {
            faults << QStringLiteral("only 0 and 1 (position %1 is not)").arg(i);
            break;
        }
    }
    if (!mask.startsWith(QLatin1String("111")))
        faults << QStringLiteral("111 first: number, event code and time are in every record");
    const int size = maskRecordSize(sanitizedMask(mask), generation);
    if (size > kSizeLimit)
        faults << QStringLiteral("a record of at most %1 bytes (this one has %2)").arg(kSizeLimit).arg(size);
    return faults;
}

FieldSetChoice readFieldSet(CXMLWorkData* root, bool useState2)
{
    const cfg::BranchDecl branch = cfg::protocolBranch(useState2);
    const cfg::Values values = cfg::readBranch(root, branch);
    const int format = branch.indexOf(QLatin1String(kOrbaNode), QLatin1String(kFormatKey));
    const int mask = branch.indexOf(QLatin1String(kOrbaNode), QLatin1String(kMaskKey));
    return { values.value(format), sanitizedMask(values.value(mask)) };
}

void writeFieldSet(CXMLWorkData* root, const FieldSetChoice& choice)
{
    const cfg::BranchDecl branch = cfg::protocolBranch(kProfileState2);
    cfg::Values values = cfg::resetValues(branch);
    values[branch.indexOf(QLatin1String(kOrbaNode), QLatin1String(kFormatKey))] = choice.format;
    values[branch.indexOf(QLatin1String(kOrbaNode), QLatin1String(kMaskKey))] = choice.mask;
    cfg::writeBranch(root, branch, values);
}

bool readStoredFieldSet(CXMLWorkData* root, QString* mask, QString* format)
{
    std::unique_ptr<CXMLWorkData> top(root ? root->getFirstNode(kProtocolNode) : nullptr);
    std::unique_ptr<CXMLWorkData> orbaNode(top ? top->getFirstNode(kOrbaNode) : nullptr);
    if (!orbaNode || !orbaNode->tag() || !orbaNode->tag()->values.exists(QLatin1String(kMaskKey)))
        return false;
    if (mask)
        *mask = cfg::readWholeValue(orbaNode.get(), QLatin1String(kMaskKey), QString());
    if (format)
        *format = orbaNode->readString(kFormatKey, QLatin1String(kFormatReadDefault));
    return true;
}

bool readMaskFromFile(const QString& path, QString* mask, QString* format)
{
    CXMLWorkData root(path, QStringLiteral("DEVICE"));
    if (!root.serializer())
        return false;
    QString stored;
    const bool found = readStoredFieldSet(&root, &stored, format);
    if (found && mask)
        *mask = sanitizedMask(stored);
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

UserParams readUserParams(const CXmlTagV2* root)
{
    UserParams params = defaultUserParams();
    const CXmlTagV2* top = root ? root->children.getTagFromName(QLatin1String(kUserNode)) : nullptr;
    if (!top)
        return params;
    for (int g = 0; g < 4; ++g) {
        const CXmlTagV2* node = top->children.getTagFromName(userGroupNode(g));
        if (!node)
            continue;
        const CTagParameters list(node);
        const QString types = list.readString(QLatin1String(kUserTypeKey));
        for (int i = 0; i < kUserCounts[g]; ++i) {
            const int type = i < types.size() ? types.at(i).digitValue() : 0;
            // An unknown digit (or a float on a narrow parameter) reads as unsigned.
            if (type > 0 && type < userTypeCount(g))
                params.types[g][i] = QChar(QLatin1Char('0').unicode() + type);
            params.names[g][i] = list.readString(QStringLiteral("name%1").arg(i + 1));
        }
    }
    return params;
}

UserParams readUserParams(CXMLWorkData* root)
{
    // Every page's reading makes the branch's missing nodes.
    auto top = child(root, kUserNode, NodeFindOrCreate);
    if (!top)
        return defaultUserParams();
    for (int g = 0; g < 4; ++g)
        child(top.get(), userGroupNode(g).toLatin1().constData(), NodeFindOrCreate);
    return readUserParams(root->tag());
}

void writeUserParams(CXMLWorkData* root, const UserParams& params)
{
    auto top = child(root, kUserNode, NodeFindOrCreate);
    if (!top)
        return;
    top->clearNode();
    top->writeString(cfg::kPageKey, kUserNode);
    for (int g = 0; g < 4; ++g) {
        auto node = child(top.get(), userGroupNode(g).toLatin1().constData(), NodeRecord);
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

QStringList userParamTypes(const UserParams& params)
{
    return { params.types[0], params.types[1], params.types[2], params.types[3] };
}

QStringList userParamTypes(CXMLWorkData* root)
{
    return userParamTypes(readUserParams(root));
}

} // namespace zrk::fieldset

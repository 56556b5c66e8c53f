#include "config_model/parameters.h"

#include <algorithm>
#include <cfloat>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <locale.h>

namespace {

// The "C" numeric convention, made once; the process locale is never touched.
locale_t cNumericLocale()
{
    static const locale_t c = newlocale(LC_NUMERIC_MASK, "C", static_cast<locale_t>(nullptr));
    return c;
}

// Copies at most kParamTextMax bytes and zero-fills the rest of the field.
void copyField(char (&field)[kParamFieldSize], const char* text)
{
    std::strncpy(field, text ? text : "", kParamTextMax);
    field[kParamTextMax] = '\0';
}

long parseLong(const char* text)
{
    return std::strtol(text, nullptr, 10);
}

} // namespace

// ---- COneParameter -------------------------------------------------------------------------

COneParameter::COneParameter()
{
    std::memset(static_cast<coreSzItem*>(this), 0, sizeof(coreSzItem));
}

COneParameter::COneParameter(coreSzItem& item)
{
    inicParam(item);
}

COneParameter::COneParameter(const char* name)
    : COneParameter()
{
    setName(name);
    isNode = 1;
}

COneParameter::COneParameter(const char* name, int value)
    : COneParameter()
{
    setName(name);
    setValueInt(value);
}

COneParameter::COneParameter(const char* name, bool value)
    : COneParameter()
{
    setName(name);
    setValue(value ? "1" : "0");
}

COneParameter::COneParameter(const char* name, float value)
    : COneParameter()
{
    setName(name);
    setValueFloat(value);
}

COneParameter::COneParameter(const char* name, const char* text, int)
    : COneParameter()
{
    setName(name);
    setValue(text);
}

COneParameter::COneParameter(const char* name, QString& text)
    : COneParameter()
{
    setName(name);
    setValue(text.toLocal8Bit().constData());
}

void COneParameter::inicParam(const coreSzItem& item)
{
    std::memcpy(static_cast<coreSzItem*>(this), &item, sizeof(coreSzItem));
    // A record from outside may lack its terminators; never read past the fields.
    name[kParamTextMax] = '\0';
    value[kParamTextMax] = '\0';
}

bool COneParameter::operator==(const char* otherName) const
{
    return otherName && std::strcmp(name, otherName) == 0;
}

void COneParameter::setName(const char* text)
{
    copyField(name, text);
}

void COneParameter::setValue(const char* text)
{
    std::snprintf(value, sizeof value, "%s", text ? text : "");
}

void COneParameter::setValueInt(int v)
{
    std::snprintf(value, sizeof value, "%d", v);
}

void COneParameter::setValueFloat(float v)
{
    // "%f" of a huge float is longer than the field; snprintf cuts it at 254 bytes.
    formatFixedDecimal(value, sizeof value, static_cast<double>(v));
}

bool COneParameter::asInt(int& out) const
{
    if (value[0] == '\0')
        return false;
    out = static_cast<int>(parseLong(value));
    return true;
}

bool COneParameter::asBool(bool& out) const
{
    if (value[0] == '\0')
        return false;
    out = parseLong(value) != 0;
    return true;
}

bool COneParameter::asFloat(float& out) const
{
    double d = 0;
    if (!asDouble(d))
        return false;
    // A double beyond the float range has no float value; saturate instead of overflowing.
    if (std::isnan(d))
        out = static_cast<float>(d);
    else if (d > FLT_MAX)
        out = HUGE_VALF;
    else if (d < -FLT_MAX)
        out = -HUGE_VALF;
    else
        out = static_cast<float>(d);
    return true;
}

bool COneParameter::asDouble(double& out) const
{
    if (value[0] == '\0')
        return false;
    out = parseDecimalPrefix(value);
    return true;
}

bool COneParameter::asString(char* buf, int len) const
{
    if (!buf || len <= 0)
        return false;
    const size_t n = std::min(strnlen(value, sizeof value), static_cast<size_t>(len));
    std::memcpy(buf, value, n);
    if (n < static_cast<size_t>(len))
        buf[n] = '\0';
    buf[len - 1] = '\0';
    return true;
}

bool COneParameter::asQString(QString& out) const
{
    char buf[kParamFieldSize];
    asString(buf, sizeof buf);
    out = QString::fromLocal8Bit(buf);
    return true;
}

// ---- CListParameters -----------------------------------------------------------------------

CListParameters::CListParameters()
{
    std::memset(findName, 0, sizeof findName);
}

CListParameters::CListParameters(coreSzItem* data, int n)
    : CListParameters()
{
    addData(data, n);
}

CListParameters::~CListParameters()
{
    std::free(items);
}

void CListParameters::inicParameters()
{
    std::free(items);
    items = nullptr;
    count = 0;
}

int CListParameters::addData(const coreSzItem* data, int n)
{
    if (!data || n < 1)
        return 0;
    const size_t newCount = static_cast<size_t>(count) + static_cast<size_t>(n);
    void* grown = std::realloc(items, newCount * sizeof(COneParameter));
    if (!grown) {
        // Nothing is kept rather than a list whose count no longer matches its array.
        std::free(items);
        items = nullptr;
        count = 0;
        return 0;
    }
    items = static_cast<COneParameter*>(grown);
    for (int i = 0; i < n; ++i)
        items[count + i].inicParam(data[i]);
    count = static_cast<int>(newCount);
    return 0;
}

COneParameter* CListParameters::findParameter(const char* name, int from) const
{
    if (!name || from < 0)
        return nullptr;
    for (int i = from; i < count; ++i) {
        if (items[i] == name)
            return &items[i];
    }
    return nullptr;
}

COneParameter* CListParameters::getFirst(const char* name)
{
    copyField(findName, name);
    findIndex = 0;
    return getNext();
}

COneParameter* CListParameters::getNext()
{
    COneParameter* hit = findParameter(findName, findIndex);
    if (hit)
        findIndex = static_cast<int>(hit - items) + 1;
    return hit;
}

const COneParameter* CListParameters::valued(const char* name) const
{
    const COneParameter* p = findParameter(name, 0);
    return (p && p->value[0] != '\0') ? p : nullptr;
}

template <typename T>
T CListParameters::readValued(const char* name, T def, bool (COneParameter::*as)(T&) const) const
{
    if (const COneParameter* p = valued(name))
        (p->*as)(def);
    return def;
}

int CListParameters::readInteger(const char* name, int def) const
{
    return readValued(name, def, &COneParameter::asInt);
}

bool CListParameters::readBool(const char* name, bool def) const
{
    return readValued(name, def, &COneParameter::asBool);
}

float CListParameters::readFloat(const char* name, float def) const
{
    return readValued(name, def, &COneParameter::asFloat);
}

double CListParameters::readDouble(const char* name, double def) const
{
    return readValued(name, def, &COneParameter::asDouble);
}

char* CListParameters::readString(const char* name, const char* def, char* buf, int len) const
{
    const COneParameter* p = findParameter(name, 0);
    if (p) {
        p->asString(buf, len);
    } else if (buf && def && len > 0) {
        std::strncpy(buf, def, static_cast<size_t>(len - 1));
        buf[len - 1] = '\0';
    }
    return buf;
}

QString& CListParameters::readString(const char* name, const QString& def, QString& out) const
{
    out = def;
    if (const COneParameter* p = findParameter(name, 0))
        p->asQString(out);
    return out;
}

int CListParameters::append(const COneParameter& item)
{
    return addData(&item, 1);
}

int CListParameters::store(const char* name, const COneParameter& fresh)
{
    // Looked up by the name as asked for, not as cut to the field: an over-long name never
    // matches its stored form, so every such write appends.
    if (COneParameter* p = findParameter(name, 0)) {
        std::memcpy(p->value, fresh.value, sizeof p->value);
        p->isNode = fresh.isNode;
        return 0;
    }
    return append(fresh);
}

int CListParameters::writeInteger(const char* name, int value)
{
    return store(name, COneParameter(name, value));
}

int CListParameters::writeFloat(const char* name, float value)
{
    return store(name, COneParameter(name, value));
}

int CListParameters::writeBool(const char* name, bool value)
{
    return store(name, COneParameter(name, value));
}

int CListParameters::writeString(const char* name, const char* text)
{
    return store(name, COneParameter(name, text ? text : "", 0));
}

int CListParameters::writeString(const char* name, QString& text)
{
    const QByteArray local = text.toLocal8Bit();
    return writeString(name, local.constData());
}

int CListParameters::writeTag(const char* name)
{
    if (COneParameter* p = findParameter(name, 0)) {
        p->setValue(name);
        p->isNode = 1;
        return 0;
    }
    return append(COneParameter(name));
}

coreSzArrayItem* CListParameters::createOutPutData() const
{
    if (count < 1)
        return nullptr;
    auto* out = static_cast<coreSzArrayItem*>(std::calloc(1, sizeof(coreSzArrayItem)));
    if (!out)
        return nullptr;
    out->items = static_cast<coreSzItem*>(std::calloc(static_cast<size_t>(count), sizeof(coreSzItem)));
    if (!out->items)
        return out;
    out->count = count;
    std::memcpy(out->items, items, static_cast<size_t>(count) * sizeof(coreSzItem));
    return out;
}

void formatFixedDecimal(char* buf, int size, double value)
{
    if (!buf || size <= 0)
        return;
    // uselocale switches this thread only, and only for the one call.
    const locale_t previous = uselocale(cNumericLocale());
    std::snprintf(buf, static_cast<size_t>(size), "%f", value);
    uselocale(previous);
}

double parseDecimalPrefix(const char* text)
{
    return text ? strtod_l(text, nullptr, cNumericLocale()) : 0.0;
}

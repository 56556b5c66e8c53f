#include "config_ui/zrk_config_binding.h"

#include <QAbstractButton>
#include <QAbstractSpinBox>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QGroupBox>
#include <QLineEdit>
#include <QRegularExpression>
#include <QSpinBox>
#include <QVariant>
#include <QWidget>

#include <algorithm>

namespace {

// The value a widget of that kind shows.
QByteArray usualProperty(const QWidget* w)
{
    if (qobject_cast<const QAbstractButton*>(w) || qobject_cast<const QGroupBox*>(w))
        return "checked";
    if (qobject_cast<const QAbstractSpinBox*>(w))
        return "value";
    if (qobject_cast<const QLineEdit*>(w))
        return "text";
    if (qobject_cast<const QComboBox*>(w))
        return "currentIndex";
    return QByteArray();
}

// Whether the property is the one that class itself declares (a subclass may declare another).
bool declaredBy(const QMetaProperty& property, const QMetaObject& owner)
{
    return property.enclosingMetaObject() == &owner;
}

} // namespace

ZRK_Config_Binding::ZRK_Config_Binding(QWidget* form, const zrk::cfg::KeyDecl& decl)
{
    static const QRegularExpression pattern(QStringLiteral("^(\\w+)(?:([.:])(\\w+)(?:\\[(\\d+)\\])?)?$"));
    const QRegularExpressionMatch m = pattern.match(decl.widget);
    if (!form || !m.hasMatch())
        return;
    m_widget = form->findChild<QWidget*>(m.captured(1));
    if (!m_widget)
        return;
    m_byRule = m.captured(2) == QLatin1String(":");
    m_holder = m_byRule ? static_cast<QObject*>(form) : static_cast<QObject*>(m_widget.data());
    m_property = m.captured(3).isEmpty() ? usualProperty(m_widget) : m.captured(3).toLatin1();
    m_index = m.captured(4).isEmpty() ? -1 : m.captured(4).toInt();
    m_decimal = decl.type == zrk::cfg::KeyType::Decimal;
    const int index = m_holder->metaObject()->indexOfProperty(m_property.constData());
    if (index < 0) {
        m_holder = nullptr;
        return;
    }
    // Found once here rather than by name on every read and write.
    m_meta = m_holder->metaObject()->property(index);
    // The usual value of the usual widgets is read and written straight through the widget; a
    // page's rule or another property goes through the property system.
    QWidget* w = m_widget;
    if (m_byRule || m_index >= 0 || m_property != usualProperty(w))
        return;
    if (qobject_cast<QAbstractButton*>(w) && declaredBy(m_meta, QAbstractButton::staticMetaObject))
        m_kind = Kind::Button;
    else if (qobject_cast<QGroupBox*>(w) && declaredBy(m_meta, QGroupBox::staticMetaObject))
        m_kind = Kind::Group;
    else if (qobject_cast<QSpinBox*>(w) && declaredBy(m_meta, QSpinBox::staticMetaObject))
        m_kind = Kind::Spin;
    else if (qobject_cast<QDoubleSpinBox*>(w) && declaredBy(m_meta, QDoubleSpinBox::staticMetaObject))
        m_kind = Kind::DoubleSpin;
    else if (qobject_cast<QLineEdit*>(w) && declaredBy(m_meta, QLineEdit::staticMetaObject))
        m_kind = Kind::Line;
    else if (qobject_cast<QComboBox*>(w) && declaredBy(m_meta, QComboBox::staticMetaObject))
        m_kind = Kind::Combo;
}

QString ZRK_Config_Binding::get() const
{
    if (!isValid())
        return QString();
    switch (m_kind) {
    case Kind::Button:
        return static_cast<QAbstractButton*>(m_widget.data())->isChecked() ? QStringLiteral("1")
                                                                           : QStringLiteral("0");
    case Kind::Group:
        return static_cast<QGroupBox*>(m_widget.data())->isChecked() ? QStringLiteral("1")
                                                                     : QStringLiteral("0");
    case Kind::Spin:
        return QString::number(static_cast<QSpinBox*>(m_widget.data())->value());
    case Kind::DoubleSpin:
        return QString::number(
            static_cast<QDoubleSpinBox*>(m_widget.data())->value(), 'f', m_decimal ? 1 : 6);
    case Kind::Line:
        return static_cast<QLineEdit*>(m_widget.data())->text();
    case Kind::Combo:
        // A list without a choice counts as its first entry.
        return QString::number(qMax(0, static_cast<QComboBox*>(m_widget.data())->currentIndex()));
    case Kind::Property:
        break;
    }
    const QVariant v = m_meta.read(m_holder);
    if (m_index >= 0)
        return v.toStringList().value(m_index);
    return textOf(v);
}

QString ZRK_Config_Binding::textOf(const QVariant& v) const
{
    switch (v.userType()) {
    case QMetaType::Bool:
        return v.toBool() ? QStringLiteral("1") : QStringLiteral("0");
    case QMetaType::Double:
        return QString::number(v.toDouble(), 'f', m_decimal ? 1 : 6);
    case QMetaType::Int:
        // A list without a choice counts as its first entry.
        return QString::number(m_property == "currentIndex" ? qMax(0, v.toInt()) : v.toInt());
    default:
        return v.toString();
    }
}

zrk::cfg::Values ZRK_Config_Binding::getAll(const QVector<ZRK_Config_Binding>& bindings)
{
    // Elements of one list property are taken from one reading of the list.
    struct List
    {
        const QObject* holder;
        int property;
        QStringList rows;
    };
    QVector<List> lists;
    zrk::cfg::Values values;
    values.reserve(bindings.size());
    for (const ZRK_Config_Binding& b : bindings) {
        if (!b.isValid() || b.m_index < 0) {
            values << b.get();
            continue;
        }
        const int property = b.m_meta.propertyIndex();
        auto it = std::find_if(lists.begin(), lists.end(),
            [&b, property](const List& l) { return l.holder == b.m_holder && l.property == property; });
        if (it == lists.end())
            it = lists.insert(
                lists.end(), { b.m_holder, property, b.m_meta.read(b.m_holder).toStringList() });
        values << it->rows.value(b.m_index);
    }
    return values;
}

void ZRK_Config_Binding::set(const QString& value) const
{
    if (!isValid())
        return;
    switch (m_kind) {
    case Kind::Button:
        static_cast<QAbstractButton*>(m_widget.data())->setChecked(value.toInt() != 0);
        return;
    case Kind::Group:
        static_cast<QGroupBox*>(m_widget.data())->setChecked(value.toInt() != 0);
        return;
    case Kind::Spin:
        static_cast<QSpinBox*>(m_widget.data())->setValue(value.toInt());
        return;
    case Kind::DoubleSpin:
        static_cast<QDoubleSpinBox*>(m_widget.data())->setValue(value.toDouble());
        return;
    case Kind::Line:
        static_cast<QLineEdit*>(m_widget.data())->setText(value);
        return;
    case Kind::Combo:
        static_cast<QComboBox*>(m_widget.data())->setCurrentIndex(value.toInt());
        return;
    case Kind::Property:
        break;
    }
    const QVariant current = m_meta.read(m_holder);
    if (m_index >= 0) {
        QStringList list = current.toStringList();
        while (list.size() <= m_index)
            list << QString();
        list[m_index] = value;
        m_meta.write(m_holder, list);
        return;
    }
    switch (current.userType()) {
    case QMetaType::Bool:
        m_meta.write(m_holder, value.toInt() != 0);
        break;
    case QMetaType::Double:
        m_meta.write(m_holder, value.toDouble());
        break;
    case QMetaType::Int:
        m_meta.write(m_holder, value.toInt());
        break;
    default:
        m_meta.write(m_holder, value);
        break;
    }
}

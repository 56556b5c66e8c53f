#include "config_ui/zrk_config_binding.h"

#include <QAbstractButton>
#include <QAbstractSpinBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLineEdit>
#include <QRegularExpression>
#include <QVariant>
#include <QWidget>

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
    if (m_holder->metaObject()->indexOfProperty(m_property.constData()) < 0)
        m_holder = nullptr;
}

QString ZRK_Config_Binding::get() const
{
    if (!isValid())
        return QString();
    const QVariant v = m_holder->property(m_property.constData());
    if (m_index >= 0)
        return v.toStringList().value(m_index);
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

void ZRK_Config_Binding::set(const QString& value) const
{
    if (!isValid())
        return;
    const QVariant current = m_holder->property(m_property.constData());
    if (m_index >= 0) {
        QStringList list = current.toStringList();
        while (list.size() <= m_index)
            list << QString();
        list[m_index] = value;
        m_holder->setProperty(m_property.constData(), list);
        return;
    }
    switch (current.userType()) {
    case QMetaType::Bool:
        m_holder->setProperty(m_property.constData(), value.toInt() != 0);
        break;
    case QMetaType::Double:
        m_holder->setProperty(m_property.constData(), value.toDouble());
        break;
    case QMetaType::Int:
        m_holder->setProperty(m_property.constData(), value.toInt());
        break;
    default:
        m_holder->setProperty(m_property.constData(), value);
        break;
    }
}

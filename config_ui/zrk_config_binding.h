#pragma once

#include "config_model/config_keys.h"

#include <QByteArray>
#include <QMetaProperty>
#include <QPointer>
#include <QString>
#include <QVector>

class QObject;
class QVariant;
class QWidget;

// How a declared key meets a form: the widget its declaration names shows it, and its text form is
// read and written through a property (the widget's usual value, one of its properties, or a
// property of the page when a rule of the page applies). See zrk::cfg::KeyDecl::widget.
class ZRK_Config_Binding
{
public:
    ZRK_Config_Binding() = default;
    // Null widget when the form has no widget or property of that name.
    ZRK_Config_Binding(QWidget* form, const zrk::cfg::KeyDecl& decl);

    bool isValid() const { return m_holder && !m_property.isEmpty(); }
    QWidget* widget() const { return m_widget; }
    // Whether a rule of the page reads and writes the key (its widget alone does not).
    bool byRule() const { return m_byRule; }
    QString get() const;
    void set(const QString& value) const;
    // What get() gives for each, with a list property read once for all of its elements.
    static zrk::cfg::Values getAll(const QVector<ZRK_Config_Binding>& bindings);

private:
    QString textOf(const QVariant& value) const;

    enum class Kind
    {
        Property, // through the property system
        Button,
        Group,
        Spin,
        DoubleSpin,
        Line,
        Combo,
    };

    QPointer<QWidget> m_widget;
    QPointer<QObject> m_holder;
    QByteArray m_property;
    int m_index = -1;
    bool m_byRule = false;
    bool m_decimal = false;
    QMetaProperty m_meta;
    Kind m_kind = Kind::Property;
};

#pragma once

#include <QVector>
#include <QWidget>

#include <memory>

class OrbaPage;
class QLabel;
namespace Ui {
class ZRK_Designer_Form_TMI_Production;
}

// The compact form of the production line (configurator modes 1 and 2): power, inputs, outputs,
// satellites and fix, GSM level and temperatures in large type, readable from a step away.
class ZRK_Form_TMI_Production : public QWidget
{
    Q_OBJECT

public:
    explicit ZRK_Form_TMI_Production(QWidget* parent = nullptr);
    ~ZRK_Form_TMI_Production() override;

    void setPage(const OrbaPage& page);
    void translateForm();
    // The shown value of row i, for tests.
    QString valueText(int i) const;
    int rowCount() const { return m_values.size(); }

private:
    std::unique_ptr<Ui::ZRK_Designer_Form_TMI_Production> ui;
    QVector<QLabel*> m_names;
    QVector<QLabel*> m_values;
};

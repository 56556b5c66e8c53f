#pragma once

#include <QWidget>

#include <memory>

class TmiPage_Orba3;
namespace Ui {
class ZRK_Designer_Form_TMI_Ext;
}

// The extended record: its head fields, its dynamic items, and the record as XML page text.
class ZRK_Form_TMI_Ext : public QWidget
{
    Q_OBJECT

public:
    explicit ZRK_Form_TMI_Ext(QWidget* parent = nullptr);
    ~ZRK_Form_TMI_Ext() override;

    void setPage(const TmiPage_Orba3& page);
    QString xmlText() const;
    int dynamicCount() const;

private:
    std::unique_ptr<Ui::ZRK_Designer_Form_TMI_Ext> ui;
};

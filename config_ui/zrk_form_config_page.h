#pragma once

#include "config_model/config_keys.h"

#include <QString>
#include <QVector>
#include <QWidget>

class CXMLWorkData;

// The contract every page of the configuration editor keeps. The window calls the pages only
// through it, so one loop resets, reads, translates or connects them all.
//
// Besides the contract, a page that shows declared branches says which ones and exchanges their
// values (in declaration order, their text form) with the window, which keeps them in the open
// configuration: the page shows what the configuration holds, and the window turns what the user
// changed into undoable edits.
class ZRK_Form_Config_Page : public QWidget
{
    Q_OBJECT

public:
    using QWidget::QWidget;

    virtual void applyCaps() = 0;
    virtual void translateForm() = 0;
    virtual void initForm() = 0;
    virtual QString getTabTitle() const = 0;
    virtual void setDefaultParam() = 0;
    virtual void readFormParam(CXMLWorkData* root) = 0;
    virtual void writeFormParam(CXMLWorkData* root) = 0;
    virtual void deviceConnect() = 0;
    virtual void deviceDisconnect() = 0;
    virtual void setFormEnabled(bool enabled) = 0;
    void setTabIndex(int index) { m_tabIndex = index; }
    int getTabIndex() const { return m_tabIndex; }

    // The declared branches the page shows, and their values as the widgets hold them.
    virtual QVector<zrk::cfg::BranchDecl> shownBranches() const { return {}; }
    virtual zrk::cfg::Values shownValues(int branch) const
    {
        Q_UNUSED(branch)
        return {};
    }
    virtual void showValues(int branch, const zrk::cfg::Values& values)
    {
        Q_UNUSED(branch)
        Q_UNUSED(values)
    }

private:
    int m_tabIndex = -1;
};

#pragma once

#include "config_model/config_session.h"

#include <QObject>
#include <QPair>
#include <QUndoStack>

#include <functional>

// The open configuration and the undo history of its edits: every view changes the configuration
// through here, so that each change is one step that Ctrl+Z takes back (a typed word, a ticked box,
// a page's several keys at once, loading, "new", defaults).
class ZRK_Config_Editing : public QObject
{
    Q_OBJECT

public:
    explicit ZRK_Config_Editing(QObject* parent = nullptr);
    ~ZRK_Config_Editing() override;

    zrk::ConfigSession& session() { return m_session; }
    const zrk::ConfigSession& session() const { return m_session; }
    QUndoStack& undoStack() { return m_stack; }

    struct Change
    {
        QString node;
        QString key;
        QString value;
    };
    // One undoable step of one or more values; values already held are skipped, and a step that
    // changes nothing is not kept. Successive changes of the same single value merge into one step.
    void setValues(const QVector<Change>& changes);
    void setValue(const QString& node, const QString& key, const QString& value);
    // Runs a change of the whole document as one undoable step (it already happened when this
    // returns); a change that fails (returns false) leaves no step.
    bool documentStep(const QString& text, const std::function<bool()>& change);
    // Forgets the history (a configuration closed for good).
    void clearHistory();

private:
    zrk::ConfigSession m_session;
    QUndoStack m_stack;
};

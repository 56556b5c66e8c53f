#include "config_ui/zrk_config_editing.h"

#include <QUndoCommand>

namespace {

constexpr int kValueCommandId = 0x7a6b;

// Edits of values. Applied when pushed; undoing restores the values and the state they left.
class ValueCommand : public QUndoCommand
{
public:
    ValueCommand(zrk::ConfigSession& session, QVector<zrk::ConfigSession::Edit> edits)
        : m_session(session)
        , m_edits(std::move(edits))
    {
    }
    int id() const override { return kValueCommandId; }
    void undo() override
    {
        for (int i = m_edits.size() - 1; i >= 0; --i)
            m_session.undoEdit(m_edits[i]);
    }
    void redo() override
    {
        if (m_applied) {
            m_applied = false; // pushed: it already happened
            return;
        }
        for (const auto& e : qAsConst(m_edits))
            m_session.redoEdit(e);
    }
    bool mergeWith(const QUndoCommand* other) override
    {
        const auto* next = static_cast<const ValueCommand*>(other);
        if (m_edits.size() != 1 || next->m_edits.size() != 1)
            return false;
        auto& mine = m_edits.first();
        const auto& theirs = next->m_edits.first();
        if (mine.node != theirs.node || mine.key != theirs.key || mine.stateAfter != theirs.stateBefore)
            return false;
        mine.after = theirs.after;
        mine.stateAfter = theirs.stateAfter;
        return true;
    }

private:
    zrk::ConfigSession& m_session;
    QVector<zrk::ConfigSession::Edit> m_edits;
    bool m_applied = true;
};

// A whole-document step: the document before and after.
class DocumentCommand : public QUndoCommand
{
public:
    DocumentCommand(zrk::ConfigSession& session, std::shared_ptr<const zrk::ConfigSession::Snapshot> before,
        std::shared_ptr<const zrk::ConfigSession::Snapshot> after, const QString& text)
        : QUndoCommand(text)
        , m_session(session)
        , m_before(std::move(before))
        , m_after(std::move(after))
    {
    }
    void undo() override { m_session.restore(*m_before); }
    void redo() override
    {
        if (m_applied) {
            m_applied = false;
            return;
        }
        m_session.restore(*m_after);
    }

private:
    zrk::ConfigSession& m_session;
    std::shared_ptr<const zrk::ConfigSession::Snapshot> m_before;
    std::shared_ptr<const zrk::ConfigSession::Snapshot> m_after;
    bool m_applied = true;
};

} // namespace

ZRK_Config_Editing::ZRK_Config_Editing(QObject* parent)
    : QObject(parent)
{
}

ZRK_Config_Editing::~ZRK_Config_Editing()
{
    // The commands refer to the session; they go first.
    m_stack.clear();
}

void ZRK_Config_Editing::setValues(const QVector<Change>& changes)
{
    QVector<zrk::ConfigSession::Edit> edits;
    for (const Change& c : changes) {
        zrk::ConfigSession::Edit e;
        if (m_session.setValue(c.node, c.key, c.value, &e))
            edits << e;
    }
    if (!edits.isEmpty())
        m_stack.push(new ValueCommand(m_session, std::move(edits)));
}

void ZRK_Config_Editing::setValue(const QString& node, const QString& key, const QString& value)
{
    setValues({ { node, key, value } });
}

bool ZRK_Config_Editing::documentStep(const QString& text, const std::function<bool()>& change)
{
    const bool had = m_session.hasDocument();
    auto before = m_session.snapshot();
    if (!change())
        return false;
    // The first document has nothing before it to go back to.
    if (had)
        m_stack.push(new DocumentCommand(m_session, std::move(before), m_session.snapshot(), text));
    return true;
}

void ZRK_Config_Editing::clearHistory()
{
    m_stack.clear();
}

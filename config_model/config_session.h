#pragma once

#include "config_model/config_diff.h"
#include "config_model/config_document.h"
#include "config_model/config_keys.h"

#include <QByteArray>
#include <QDateTime>
#include <QHash>
#include <QObject>
#include <QString>
#include <QStringList>

#include <memory>

class CSerialize;
class CXmlTagV2;

namespace zrk {

// Where the open configuration came from.
enum class ConfigSource
{
    None, // nothing opened yet
    New,
    File,
    Terminal,
};

// The open configuration: the one document the editor's views show and edit, and that saving,
// compare, the review before a write and the saved-telemetry header read. No widgets.
//
// The document is kept in the form it is saved in: the header, the pages' branches in write order
// with every declared key present, the branches no page owns as they were read, and the user
// parameters last; saving renders it as it stands. Values are addressed by node path and key
// ("TRACK/POINTS", "maxSpeed"; a repeated node by its number, "ZONE[2]"; "" is the root).
//
// Every whole-document change (load, new, defaults) starts a new document state; edits of values
// are tracked by key against the saved values, so a value set back, by hand or by undo, is no
// longer an unsaved change, and the mark costs nothing per keystroke.
class ConfigSession : public QObject
{
    Q_OBJECT

public:
    explicit ConfigSession(QObject* parent = nullptr);
    ~ConfigSession() override;

    // ---- the document ---------------------------------------------------------------------------
    bool hasDocument() const { return m_source != ConfigSource::None; }
    ConfigSource source() const { return m_source; }
    QString filePath() const { return m_path; } // the file opened or saved; empty otherwise
    // Valid until the next change of the document.
    const CXmlTagV2* root() const;
    quint64 revision() const { return m_revision; } // grows with every change, undo included
    // Differs from what was last opened or saved; an edit set back by hand counts as undone.
    bool isModified() const
    {
        return hasDocument() && (m_docState != m_savedDocState || !m_editedSinceSave.isEmpty());
    }

    // What the root's header says (model, "%d.%d.%d" version, vendor); not an edit.
    void setHeader(const QString& model, const QString& version, const QString& vendor);

    // Every page's key at its reset value, the user parameters at their defaults, nothing kept.
    void newDocument();
    // The pages' keys and the user parameters back to their reset values; kept branches stay.
    void resetToDefaults();
    // Takes a configuration text or file; on failure nothing changes and error holds the reason.
    bool loadBytes(
        const QByteArray& text, ConfigSource source, const QString& path, QString* error = nullptr);
    bool loadFile(const QString& path, ConfigSource source, QString* error = nullptr);
    // The configuration as it is saved and written to the terminal.
    QByteArray render() const;
    // Writes the file whole or not at all; then the document counts as saved under that path.
    bool saveFile(const QString& path, QString* error = nullptr);
    void markSaved();

    // ---- values ---------------------------------------------------------------------------------
    // An attribute of the node (the last of a name, as it is written) or a text element under it.
    QString value(const QString& node, const QString& key) const;
    bool hasValue(const QString& node, const QString& key) const;

    struct Edit
    {
        QString node;
        QString key;
        QString before;
        QString after;
        quint64 stateBefore = 0;
        quint64 stateAfter = 0;
    };
    // Sets one existing value; false (no edit) when it is missing or already holds the text.
    bool setValue(const QString& node, const QString& key, const QString& value, Edit* edit = nullptr);
    void undoEdit(const Edit& edit);
    void redoEdit(const Edit& edit);
    // Sets a value as part of the current state: what a view shows of a value it cannot hold (a
    // range clamp, a rule of the page) right after the document was taken.
    void absorbValue(const QString& node, const QString& key, const QString& value);

    // The values of a declared branch in declaration order (read defaults where a key is missing).
    cfg::Values branchValues(const cfg::BranchDecl& branch) const;
    // The top-level branches the pages own: their values are declared.
    static QStringList ownedTopNodes();

    // ---- whole-document steps (load, new, defaults), kept for undo -------------------------------
    // A snapshot shares the document until the next edit, which then works on a copy.
    class Snapshot;
    std::shared_ptr<const Snapshot> snapshot() const;
    void restore(const Snapshot& snapshot);

    // ---- what others ask -----------------------------------------------------------------------
    QStringList keptBranchNames() const;
    // Differences from this document (left) to another configuration (right).
    QVector<ConfigDifference> differencesTo(const CXmlTagV2* other) const;
    // For the head of a saved telemetry file: names of inputs, outputs and temperature sensors and
    // the user-parameter types (1-, 2-, 4-, 8-byte); false, nothing set, before anything was opened.
    bool telemetryTitles(DeviceTitles* titles, QStringList* userParamTypes) const;

    // The configuration last read from a terminal, as it came, and which terminal it was (IMEI).
    void setLastRead(const QByteArray& text, const QString& terminal);
    bool hasLastReadFrom(const QString& terminal) const;
    // What writing would change on that terminal: from the configuration last read from it, or,
    // when none was, from a fresh configuration's defaults (left), to this document (right).
    QVector<ConfigDifference> pendingWrite(const QString& terminal) const;

signals:
    void valueChanged(const QString& node, const QString& key);
    // The whole document was replaced (load, new, defaults, a restored snapshot).
    void documentReplaced();
    void modifiedChanged(bool modified);
    void sourceChanged();

private:
    void replaceDocument(std::unique_ptr<CSerialize> doc, ConfigSource source, const QString& path);
    void writeHeader(CXmlTagV2* root) const;
    // Writes the header into the document unless it already holds it.
    void updateHeader();
    // The document's root for a write: a document a snapshot still shares is copied first.
    CXmlTagV2* editableRoot();
    void notifyModified(bool wasModified);
    void storeValue(const QString& node, const QString& key, const QString& value);
    void trackEdit(const QString& node, const QString& key, const QString& before, const QString& after);
    // Sets a value back or forth along its edit and returns to the state it had then.
    void replayEdit(const Edit& edit, const QString& from, const QString& to, quint64 state);

    std::shared_ptr<CSerialize> m_doc;
    std::unique_ptr<CSerialize> m_lastRead;
    QString m_lastReadTerminal;
    ConfigSource m_source = ConfigSource::None;
    QString m_path;
    QString m_model;
    QString m_version;
    QString m_vendor;
    quint64 m_revision = 0;
    quint64 m_state = 0; // of the values: consecutive edits of one value merge only in sequence
    quint64 m_nextState = 0;
    quint64 m_docState = 0;
    quint64 m_savedDocState = 0;
    QHash<QString, QString> m_editedSinceSave; // "node\nkey" -> the saved value
};

// The dated copies of configurations read from terminals ("zrk_K7140_read_<date>.xml") in a
// folder, newest first.
struct ReadCopy
{
    QString path;
    QDateTime when;
};
QString readCopyName(const QDateTime& when, int sameSecond = 1);
QVector<ReadCopy> listReadCopies(const QString& dir);

} // namespace zrk

#pragma once

#include <QByteArray>
#include <QString>
#include <QWidget>

#include <memory>

class CSerialize;
namespace Ui {
class ZRK_Designer_Widget_Config_Light;
}

// The light editor: one form with the settings a technician changes most (point timer, distance,
// turn angle, the period while stopped, protocol generation) over a whole configuration document.
// Everything else in the document is written back as it was.
class ZRK_Widget_Config_Light : public QWidget
{
    Q_OBJECT

public:
    explicit ZRK_Widget_Config_Light(QWidget* parent = nullptr);
    ~ZRK_Widget_Config_Light() override;

    void translateForm();

    // Takes a whole configuration file; false with the parser's reason when it does not load, and
    // the editor keeps what it had.
    bool OpenFileXml(const QString& path, QString* error = nullptr);
    // The same from the text of a configuration (the full editor hands its document over this way).
    bool setDocument(const QByteArray& text, QString* error = nullptr);
    // Takes an open document (null: an empty configuration).
    void adoptDocument(std::unique_ptr<CSerialize> doc);
    // The document with the form's values in it.
    QByteArray renderDocument();
    // Writes the whole configuration with the form's values; the old file stays when it fails.
    bool saveConfigLight(const QString& path, QString* error = nullptr);

    // The form's values in their text form, by key: "moveTimer", "dist", "angle", "stopTimer",
    // "format".
    QString value(const QString& key) const;
    bool setValue(const QString& key, const QString& value);
    // The form's values as a new configuration has them; the rest of the document stays.
    void setDefaultValues();

    void setFormEnabled(bool enabled);

signals:
    // A value of the form changed.
    void contentEdited();

private:
    void takeValuesFromDocument();
    void putValuesIntoDocument();

    Ui::ZRK_Designer_Widget_Config_Light* ui;
    std::unique_ptr<CSerialize> m_doc;
};

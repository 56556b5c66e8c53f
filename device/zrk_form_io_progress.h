#pragma once

#include <QString>
#include <QWidget>

#include <memory>

class Ui_ZRK_Designer_Form_IO_Progress;

// The wait form: shown while a transfer with the terminal runs. It carries a title, a progress
// bar, a file text, the current and total value texts, a time text with its button; each part
// can be shown and hidden. Owned by the device object, which forwards its formWait_... calls here.
class ZRK_Form_IO_Progress : public QWidget
{
    Q_OBJECT

public:
    explicit ZRK_Form_IO_Progress(QWidget* parent = nullptr);
    ~ZRK_Form_IO_Progress() override;

    // The operations are invokable so that a host can drive the form through the meta-object system.
    Q_INVOKABLE void showForm();
    Q_INVOKABLE void closeForm();
    // Back to the state after construction: default title, empty texts, bar at its minimum.
    Q_INVOKABLE void clearForm();
    Q_INVOKABLE void translateForm();

    Q_INVOKABLE void setText_Title(const QString& title);
    Q_INVOKABLE void setProgress_Min(int min);
    Q_INVOKABLE void setProgress_Max(int max);
    Q_INVOKABLE void setProgress_Value(int value);
    Q_INVOKABLE void setText_FileLeft(const QString& text);
    Q_INVOKABLE void setText_Value_Cur(const QString& text);
    Q_INVOKABLE void setText_Value_All(const QString& text);
    Q_INVOKABLE void setText_Time(const QString& text);

    Q_INVOKABLE void setTextValue_Visible(bool visible);
    Q_INVOKABLE void setTextTime_Visible(bool visible);
    Q_INVOKABLE void setBtnTextTime_Visible(bool visible);
    Q_INVOKABLE void setText_Title_Visible(bool visible);
    Q_INVOKABLE void setProgress_Visible(bool visible);
    Q_INVOKABLE void setText_FileLeft_Visible(bool visible);

    // What the form shows, for its owner and for tests.
    QString title() const;
    int progressMin() const;
    int progressMax() const;
    int progressValue() const;
    QString textFileLeft() const;
    QString textValueCur() const;
    QString textValueAll() const;
    QString textTime() const;
    bool isTextValueVisible() const;
    bool isTextTimeVisible() const;
    bool isBtnTextTimeVisible() const;

signals:
    // The user pressed the button beside the time text.
    void timeButtonClicked();

private:
    void applyTitle();

    std::unique_ptr<Ui_ZRK_Designer_Form_IO_Progress> ui;
    QString m_title; // empty: the default title of the catalogue
};

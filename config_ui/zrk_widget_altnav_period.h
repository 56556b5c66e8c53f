#pragma once

#include <QWidget>

namespace Ui {
class ZRK_Designer_Widget_AltNav_Period;
}

// How often an alternative position is taken: a move timer, four move-sensor flags and an
// optional stop timer. A cleared parking box writes 0 but remembers the last value it had.
class ZRK_Widget_AltNav_Period : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(int moveTimer READ getMoveTimer WRITE setMoveTimer)
    Q_PROPERTY(QString moveSens READ getMoveSens WRITE setMoveSens)
    Q_PROPERTY(int stopTimer READ getStopTimer WRITE setStopTimer)

public:
    explicit ZRK_Widget_AltNav_Period(QWidget* parent = nullptr);
    ~ZRK_Widget_AltNav_Period() override;

    void applyCaps(int defaultMoveTimer, int minMoveTimer, int defaultStopTimer, int minStopTimer);
    void translateForm();
    int getMoveTimer() const;
    void setMoveTimer(int seconds);
    QString getMoveSens() const;
    void setMoveSens(const QString& flags);
    // 0 while the parking box is off.
    int getStopTimer() const;
    void setStopTimer(int seconds);
    void setDefault();

private slots:
    void slot_stateChanged_checkBox_Parking(int state);

private:
    void applyParking(bool on);

    Ui::ZRK_Designer_Widget_AltNav_Period* ui;
    int m_defaultMoveTimer = 0;
    int m_minStopTimer = 0;
    int m_defaultStopTimer = 0;
    int m_rememberedStop = 0;
};

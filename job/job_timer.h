#pragma once
// A timer control: Enabled, Interval in milliseconds and a text Tag, firing on the
// user-interface thread. As with the form controls it stands for, an interval of 0 never
// fires, and giving a running timer a new interval starts its count again.

#include <QObject>
#include <QString>
#include <QTimer>

namespace torvane {

class JobTimer : public QObject {
    Q_OBJECT
public:
    explicit JobTimer(QObject* parent = nullptr);

    bool Enabled() const { return enabled_; }
    void setEnabled(bool enabled);
    int Interval() const { return interval_; }
    void setInterval(int milliseconds);

    QString Tag;

signals:
    void Timer();

private:
    void rearm();

    QTimer timer_;
    bool enabled_ = true;
    int interval_ = 0;
};

}  // namespace torvane

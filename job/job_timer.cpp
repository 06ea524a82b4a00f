#include "job/job_timer.h"

namespace torvane {

JobTimer::JobTimer(QObject* parent) : QObject(parent) {
    timer_.setTimerType(Qt::PreciseTimer);
    connect(&timer_, &QTimer::timeout, this, &JobTimer::Timer);
}

void JobTimer::setEnabled(bool enabled) {
    enabled_ = enabled;
    rearm();
}

void JobTimer::setInterval(int milliseconds) {
    interval_ = milliseconds;
    rearm();
}

void JobTimer::rearm() {
    timer_.stop();
    if (enabled_ && interval_ > 0)
        timer_.start(interval_);
}

}  // namespace torvane

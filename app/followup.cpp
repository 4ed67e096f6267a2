// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/followup.h"

namespace {

constexpr double shortestSpan = 0.2; // seconds
constexpr int delayMilliseconds = 300;

} // namespace

FollowUp::FollowUp(QObject *parent) : QObject(parent), timer(this), page(-1), isFollowing(false)
{
    timer.setSingleShot(true);
    timer.setInterval(delayMilliseconds);
    connect(&timer, SIGNAL(timeout()), this, SLOT(expire()));
}

void FollowUp::sampled(int sampledPage, double seconds)
{
    if (isFollowing) {
        return;
    }
    if (seconds < shortestSpan) {
        page = sampledPage;
        timer.start();
    } else if (page == sampledPage) {
        timer.stop();
    }
}

void FollowUp::expire()
{
    isFollowing = true;
    Q_EMIT due(page);
    isFollowing = false;
}

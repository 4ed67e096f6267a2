// SPDX-License-Identifier: GPL-3.0-or-later
#ifndef APP_FOLLOWUP_H
#define APP_FOLLOWUP_H

#include <QTimer>

/// Asks for one more refresh of a page whose CPU figures span too little time to mean anything: two samples
/// within a jiffy show a core as fully busy and a sleeping process at 33 %.
class FollowUp : public QObject
{
    Q_OBJECT

public:
    explicit FollowUp(QObject *parent);

    /// Called with each refresh of a page that shows CPU figures; `seconds` of machine time lie between its
    /// two CPU samples. If that is too short, due() follows, unless a longer sample of the page comes first.
    void sampled(int page, double seconds);

Q_SIGNALS:
    /// The page is to be refreshed, if it is still shown. That refresh is never followed by another.
    void due(int page);

private Q_SLOTS:
    void expire();

private:
    QTimer timer;
    int page;
    bool isFollowing; ///< the refresh that due() asked for is under way
};

#endif

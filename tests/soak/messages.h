// SPDX-License-Identifier: GPL-3.0-or-later
#ifndef TESTS_SOAK_MESSAGES_H
#define TESTS_SOAK_MESSAGES_H

#include <QStringList>
#include <QtGlobal>

/// Collects the warnings and worse that are logged as long as it lives. One at a time.
class LoggedMessages
{
public:
    LoggedMessages()
    {
        all().clear();
        previous = qInstallMessageHandler(keep);
    }
    ~LoggedMessages() { qInstallMessageHandler(previous); }
    LoggedMessages(const LoggedMessages &) = delete;
    LoggedMessages &operator=(const LoggedMessages &) = delete;

    QString text() const { return all().join(QLatin1Char('\n')); }

private:
    static QStringList &all()
    {
        static QStringList messages;
        return messages;
    }
    static void keep(QtMsgType type, const QMessageLogContext &, const QString &message)
    {
        // The offscreen platform says this of itself.
        if (type != QtDebugMsg && type != QtInfoMsg && !message.startsWith(QLatin1String("This plugin"))) {
            all() << message;
        }
    }

    QtMessageHandler previous;
};

#endif

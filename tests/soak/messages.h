// SPDX-License-Identifier: GPL-3.0-or-later
#ifndef TESTS_SOAK_MESSAGES_H
#define TESTS_SOAK_MESSAGES_H

#include <QStringList>
#include <QtGlobal>

/// Collects the warnings and worse that are logged as long as it lives; what is for information goes its way.
/// One at a time.
class LoggedMessages
{
public:
    LoggedMessages()
    {
        all().clear();
        previous() = qInstallMessageHandler(keep);
    }
    ~LoggedMessages() { qInstallMessageHandler(previous()); }
    LoggedMessages(const LoggedMessages &) = delete;
    LoggedMessages &operator=(const LoggedMessages &) = delete;

    QString text() const { return all().join(QLatin1Char('\n')); }

private:
    static QStringList &all()
    {
        static QStringList messages;
        return messages;
    }
    static QtMessageHandler &previous()
    {
        static QtMessageHandler handler = nullptr;
        return handler;
    }
    static void keep(QtMsgType type, const QMessageLogContext &context, const QString &message)
    {
        if (type == QtDebugMsg || type == QtInfoMsg) {
            previous()(type, context, message);
        } else if (!message.startsWith(
                       QLatin1String("This plugin"))) { // the offscreen platform says it of itself
            all() << message;
        }
    }
};

#endif

// SPDX-License-Identifier: GPL-3.0-or-later
#ifndef TESTS_DESKTOP_ASSISTIVE_H
#define TESTS_DESKTOP_ASSISTIVE_H

#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusObjectPath>
#include <QList>
#include <QProcess>
#include <QString>
#include <QTemporaryDir>
#include <QVariant>

#include <functional>
#include <memory>
#include <optional>

/// Address of an object on the bus of assistive technology, as AT-SPI transfers it.
struct AccessibleReference
{
    QString service;
    QDBusObjectPath path;
};

/// What assistive technology sees of one object of a program (AT-SPI 2).
class Accessible
{
public:
    Accessible(const QDBusConnection &connection, const AccessibleReference &reference);

    QString name() const { return property("org.a11y.atspi.Accessible", "Name").toString(); }
    /// As AT-SPI names it in English, for instance "progress bar".
    QString role() const;
    bool isShowing() const;
    QList<Accessible> children() const;
    /// Names of the objects that label this one.
    QStringList labels() const;
    /// Of the value interface; none if the object doesn't have it.
    std::optional<double> value() const;
    /// The first descendant with this role and name; an empty name matches any.
    std::optional<Accessible> find(const QString &role, const QString &name) const;
    /// Calls a method; the first value of the reply, invalid on an error.
    QVariant call(const char *interface, const char *method, const QVariantList &arguments = {}) const;

private:
    QVariant property(const char *interface, const char *name) const;

    QDBusConnection bus;
    AccessibleReference object;
};

/// A session bus with the services of assistive technology, for programs started with environment().
class AssistiveBus
{
public:
    AssistiveBus() = default;
    AssistiveBus(const AssistiveBus &) = delete;
    AssistiveBus &operator=(const AssistiveBus &) = delete;
    ~AssistiveBus();

    /// False if a package is missing or the bus does not start.
    bool start();
    QMap<QString, QString> environment() const;
    /// The program with this name once it has registered; empty after `deadline` milliseconds.
    std::optional<Accessible> application(const QString &name, int deadline) const;

private:
    QTemporaryDir runtimeFolder;
    std::unique_ptr<QProcess> daemon;
    QString address;
    std::optional<QDBusConnection> bus;
};

#endif

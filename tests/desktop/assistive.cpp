// SPDX-License-Identifier: GPL-3.0-or-later
#include "assistive.h"

#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QDBusVariant>
#include <QElapsedTimer>
#include <QFile>
#include <QStandardPaths>
#include <QThread>

namespace {

constexpr char registryService[] = "org.a11y.atspi.Registry";
constexpr char accessible[] = "org.a11y.atspi.Accessible";
constexpr int showingState = 25; ///< ATSPI_STATE_SHOWING
constexpr uint labelledBy = 2;   ///< ATSPI_RELATION_LABELLED_BY

/// An array of pairs of bus name and object path.
QList<AccessibleReference> readReferences(const QDBusArgument &array)
{
    QList<AccessibleReference> references;
    array.beginArray();
    while (!array.atEnd()) {
        AccessibleReference reference;
        array.beginStructure();
        array >> reference.service >> reference.path;
        array.endStructure();
        references.append(reference);
    }
    array.endArray();
    return references;
}

/// From an array of pairs of relation and objects.
QList<AccessibleReference> readLabels(const QDBusArgument &array)
{
    QList<AccessibleReference> labels;
    array.beginArray();
    while (!array.atEnd()) {
        uint relation = 0;
        array.beginStructure();
        array >> relation;
        const QList<AccessibleReference> objects = readReferences(array);
        array.endStructure();
        labels += relation == labelledBy ? objects : QList<AccessibleReference>();
    }
    array.endArray();
    return labels;
}

} // namespace

Accessible::Accessible(const QDBusConnection &connection, const AccessibleReference &reference)
    : bus(connection), object(reference)
{}

QVariant Accessible::call(const char *interface, const char *method, const QVariantList &arguments) const
{
    QDBusMessage message = QDBusMessage::createMethodCall(object.service, object.path.path(),
                                                          QLatin1String(interface), QLatin1String(method));
    message.setArguments(arguments);
    return bus.call(message).arguments().value(0);
}

QVariant Accessible::property(const char *interface, const char *name) const
{
    const QVariantList arguments{QLatin1String(interface), QLatin1String(name)};
    return call("org.freedesktop.DBus.Properties", "Get", arguments).value<QDBusVariant>().variant();
}

QString Accessible::role() const
{
    return call(accessible, "GetRoleName").toString();
}

bool Accessible::isShowing() const
{
    const auto words = qdbus_cast<QList<uint>>(call(accessible, "GetState"));
    return !words.isEmpty() && (words.first() >> showingState & 1U) != 0;
}

QList<Accessible> Accessible::children() const
{
    const QVariant reply = call(accessible, "GetChildren");
    QList<Accessible> found;
    for (const AccessibleReference &child : readReferences(reply.value<QDBusArgument>())) {
        found.append(Accessible(bus, child));
    }
    return found;
}

QStringList Accessible::labels() const
{
    const QVariant reply = call(accessible, "GetRelationSet");
    QStringList names;
    for (const AccessibleReference &label : readLabels(reply.value<QDBusArgument>())) {
        names.append(Accessible(bus, label).name());
    }
    return names;
}

std::optional<double> Accessible::value() const
{
    const QVariant current = property("org.a11y.atspi.Value", "CurrentValue");
    return current.isValid() ? std::optional<double>(current.toDouble()) : std::nullopt;
}

std::optional<Accessible> Accessible::find(const QString &role, const QString &name) const
{
    for (const Accessible &child : children()) {
        if (child.role() == role && (name.isEmpty() || child.name() == name)) {
            return child;
        }
        if (const auto found = child.find(role, name)) {
            return found;
        }
    }
    return std::nullopt;
}

AssistiveBus::~AssistiveBus()
{
    if (daemon) {
        daemon->terminate();
        daemon->waitForFinished();
    }
}

bool AssistiveBus::start()
{
    if (QStandardPaths::findExecutable(QStringLiteral("dbus-daemon")).isEmpty() ||
        !QFile::exists(QStringLiteral("/usr/libexec/at-spi-bus-launcher"))) {
        return false;
    }
    QProcessEnvironment variables = QProcessEnvironment::systemEnvironment();
    variables.insert(QStringLiteral("XDG_RUNTIME_DIR"), runtimeFolder.path()); // gets the socket of the bus
    daemon = std::make_unique<QProcess>();
    daemon->setProcessEnvironment(variables);
    daemon->start(QStringLiteral("dbus-daemon"), {"--session", "--nofork", "--print-address"});
    if (!daemon->waitForReadyRead(10000)) {
        return false;
    }
    address = QString::fromLatin1(daemon->readLine()).trimmed();
    const QDBusConnection session = QDBusConnection::connectToBus(address, QStringLiteral("session"));
    const QDBusMessage reply = session.call(
        QDBusMessage::createMethodCall(QStringLiteral("org.a11y.Bus"), QStringLiteral("/org/a11y/bus"),
                                       QStringLiteral("org.a11y.Bus"), QStringLiteral("GetAddress")));
    const QString assistive = reply.arguments().value(0).toString();
    if (assistive.isEmpty()) {
        return false;
    }
    bus = QDBusConnection::connectToBus(assistive, QStringLiteral("assistive"));
    return bus->isConnected() &&
           bus->interface()->startService(QString::fromLatin1(registryService)).isValid();
}

QMap<QString, QString> AssistiveBus::environment() const
{
    return {{"DBUS_SESSION_BUS_ADDRESS", address}, {"QT_LINUX_ACCESSIBILITY_ALWAYS_ON", "1"}};
}

std::optional<Accessible> AssistiveBus::application(const QString &name, int deadline) const
{
    const Accessible registry(*bus, {registryService, QDBusObjectPath("/org/a11y/atspi/accessible/root")});
    QElapsedTimer timer;
    for (timer.start(); timer.elapsed() < deadline; QThread::msleep(50)) {
        for (const Accessible &application : registry.children()) {
            if (application.name() == name) {
                return application;
            }
        }
    }
    return std::nullopt;
}

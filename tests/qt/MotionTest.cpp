// Whether things shall move is asked of the desktop; here a desktop that answers stands on a bus of its own.
#include "Motion.hpp"

#include <gtest/gtest.h>

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusVariant>
#include <QDBusVirtualObject>
#include <QProcess>
#include <QStandardPaths>
#include <QThread>

namespace ordwise::test {
namespace {

// Answers what a settings portal does, the value within two variants.
class Portal : public QDBusVirtualObject {
public:
    QVariant answer;

    [[nodiscard]] QString introspect(const QString&) const override { return {}; }
    bool handleMessage(const QDBusMessage& message, const QDBusConnection& connection) override {
        if (message.member() != QLatin1String("Read")) return false;
        const QVariant inner = QVariant::fromValue(QDBusVariant(answer));
        return connection.send(message.createReply(QVariant::fromValue(QDBusVariant(inner))));
    }
};

TEST(Motion, is_asked_of_the_desktop) {
    const QString daemon = QStandardPaths::findExecutable(QStringLiteral("dbus-daemon"));
    if (daemon.isEmpty()) GTEST_SKIP() << "there is no dbus-daemon here";
    QProcess bus;
    bus.start(daemon, {QStringLiteral("--session"), QStringLiteral("--nofork"), QStringLiteral("--print-address")});
    ASSERT_TRUE(bus.waitForReadyRead(10000));
    const QString address = QString::fromLatin1(bus.readLine().trimmed());

    const QDBusConnection client = QDBusConnection::connectToBus(address, QStringLiteral("motion client"));
    ASSERT_TRUE(client.isConnected());
    EXPECT_EQ(animationsByPortal(client), std::nullopt) << "no desktop answers";

    QThread thread;  // the question blocks this one
    Portal portal;
    portal.moveToThread(&thread);
    thread.start();
    QDBusConnection server = QDBusConnection::connectToBus(address, QStringLiteral("motion portal"));
    ASSERT_TRUE(server.registerVirtualObject(QStringLiteral("/org/freedesktop/portal/desktop"), &portal));
    ASSERT_TRUE(server.registerService(QStringLiteral("org.freedesktop.portal.Desktop")));
    const std::pair<QVariant, std::optional<bool>> answers[] = {
        {true, true}, {false, false}, {QStringLiteral("yes"), std::nullopt}};
    for (const auto& [said, understood] : answers) {
        portal.answer = said;
        EXPECT_EQ(animationsByPortal(client), understood) << said.toString().toStdString();
    }

    thread.quit();
    thread.wait();
    QDBusConnection::disconnectFromBus(QStringLiteral("motion portal"));
    QDBusConnection::disconnectFromBus(QStringLiteral("motion client"));
    bus.kill();
    bus.waitForFinished();
}

}  // namespace
}  // namespace ordwise::test

// The real program is ended by a signal, in the middle of whatever it does, and its settings are kept.
#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

#include <csignal>

namespace ordwise::test {
namespace {

class SessionEnd : public testing::Test {
protected:
    QTemporaryDir home;
    QProcess program;

    [[nodiscard]] QString settingsFile() const { return home.filePath(QStringLiteral("ordwise/settings.ini")); }

    void write(const QString& path, const QByteArray& bytes) {
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly)) << path.toStdString();
        file.write(bytes);
    }

    void start(const QStringList& arguments = {}) {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        for (const char* folder : {"HOME", "XDG_CONFIG_HOME", "XDG_DATA_HOME"})
            environment.insert(QString::fromLatin1(folder), home.path());
        environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));
        program.setProcessEnvironment(environment);
        ASSERT_TRUE(QDir(home.path()).mkpath(QStringLiteral("ordwise")));
        write(settingsFile(), "[Ordwise]\nRoundVar=4\n");
        program.start(QStringLiteral(ORDWISE_DESK), arguments);
        ASSERT_TRUE(program.waitForStarted());
        // The folder of saved problems is the last thing that the start leaves on the disk.
        const QString folder = home.filePath(QStringLiteral("ordwise/Saved Problems"));
        ASSERT_TRUE(QTest::qWaitFor([&] { return QDir(folder).exists(); }, 20000));
    }

    void endBy(int signal) {
        ASSERT_EQ(::kill(static_cast<pid_t>(program.processId()), signal), 0);
        ASSERT_TRUE(program.waitForFinished(20000)) << "still running after signal " << signal;
        EXPECT_EQ(program.exitStatus(), QProcess::NormalExit) << "signal " << signal;
        EXPECT_EQ(program.exitCode(), 0);
        QFile file(settingsFile());
        ASSERT_TRUE(file.open(QIODevice::ReadOnly));
        const QByteArray settings = file.readAll();
        EXPECT_TRUE(settings.contains("RoundVar=4\n")) << settings.toStdString();
        EXPECT_EQ(settings.count('='), 11) << settings.toStdString();
    }
};

TEST_F(SessionEnd, keeps_the_settings_whichever_signal_ends_it) {
    for (const int signal : {SIGTERM, SIGHUP, SIGINT}) {
        start();
        endBy(signal);
        ASSERT_FALSE(HasFailure());
        QDir(home.filePath(QStringLiteral("ordwise"))).removeRecursively();
    }
}

// The letters of a polynomial are asked for again and again until they have values.
TEST_F(SessionEnd, keeps_the_settings_while_a_question_waits_for_an_answer) {
    const QString problem = home.filePath(QStringLiteral("a.hvx"));
    write(problem, "Evaluating Polynomials BB 2x+3 BB  BB  BB  BB  BB  BB  BB -1 BB -1 BB 0 BB 103\r\n");
    start({problem});
    QTest::qWait(500);
    endBy(SIGTERM);
}

}  // namespace
}  // namespace ordwise::test

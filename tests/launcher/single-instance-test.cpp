#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

namespace {

const int kTimeoutMs = 10000;

// The guard's id comes from the executable's path, so each "bundle" gets its
// own copy of the probe. The probe prints whether another instance holds the
// guard; with "hold" it keeps its own until it is killed.
TEST(SingleInstance, OnlyTheSamePathSeesALiveHolder)
{
    QTemporaryDir sandbox;
    ASSERT_TRUE(sandbox.isValid() && QDir().mkpath(sandbox.filePath("tmp")));
    for (const QString folder : {"a.app", "b.app"}) {
        ASSERT_TRUE(QDir().mkpath(sandbox.filePath(folder)));
        ASSERT_TRUE(QFile::copy(SINGLE_INSTANCE_PROBE, sandbox.filePath(folder + "/probe")));
    }
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("TMPDIR", sandbox.filePath("tmp"));
    const auto start = [&](QProcess& probe, const QString& folder, const QStringList& args) {
        probe.setProcessEnvironment(environment);
        probe.start(sandbox.filePath(folder + "/probe"), args);
        const bool answered = probe.waitForStarted(kTimeoutMs) && probe.waitForReadyRead(kTimeoutMs);
        return answered ? probe.readLine().trimmed() : QByteArray();
    };
    const auto probeOnce = [&](const QString& folder) {
        QProcess probe;
        const QByteArray answer = start(probe, folder, {});
        EXPECT_TRUE(probe.waitForFinished(kTimeoutMs));
        return answer;
    };

    QProcess holder;
    ASSERT_EQ(start(holder, "a.app", {"hold"}), "running=0");
    EXPECT_EQ(probeOnce("a.app"), "running=1");
    EXPECT_EQ(probeOnce("b.app"), "running=0");

    holder.kill();
    ASSERT_TRUE(holder.waitForFinished(kTimeoutMs));
    EXPECT_EQ(probeOnce("a.app"), "running=0");

    environment.insert("TMPDIR", sandbox.filePath("missing"));
    EXPECT_EQ(probeOnce("a.app"), "running=0");
}

}  // namespace

#include <gtest/gtest.h>
#include <QDir>
#include <QProcess>
#include <QTemporaryDir>

// The guard's id comes from the executable's path, so each "bundle" gets its own copy of the probe.
TEST(SingleInstance, OnlyTheSamePathSeesALiveHolder)
{
    QTemporaryDir sandbox;
    for (const QString folder : {"a", "b"})
        ASSERT_TRUE(QDir(sandbox.path()).mkdir(folder) && QFile::copy(SINGLE_INSTANCE_PROBE, sandbox.filePath(folder + "/probe")));
    QProcess holder, a, b, after;
    const auto start = [&](QProcess& probe, const QString& folder, const QStringList& args = {}) {
        probe.setEnvironment(QProcess::systemEnvironment() << "TMPDIR=" + sandbox.path());
        probe.start(sandbox.filePath(folder + "/probe"), args);
        return probe.waitForReadyRead(10000) ? probe.readLine().trimmed() : QByteArray();
    };
    ASSERT_EQ(start(holder, "a", {"hold"}), "running=0");
    EXPECT_EQ(start(a, "a"), "running=1");
    EXPECT_EQ(start(b, "b"), "running=0");
    EXPECT_TRUE((holder.kill(), holder.waitForFinished(10000)));
    EXPECT_EQ(start(after, "a"), "running=0");
}

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

namespace {

const int kProcessTimeoutMs = 10000;

class SingleInstanceTest : public ::testing::Test {
protected:
    void SetUp() override
    {
        ASSERT_TRUE(sandbox.isValid());
        ASSERT_TRUE(QDir().mkpath(sandbox.filePath("tmp")));
        environment = QProcessEnvironment::systemEnvironment();
        environment.insert("TMPDIR", sandbox.filePath("tmp"));
    }

    // The guard's id comes from the executable's path, so each "bundle" gets
    // its own copy of the probe.
    QString probeIn(const QString& folder)
    {
        const QString path = sandbox.filePath(folder + "/probe");
        if (!QFile::exists(path)) {
            EXPECT_TRUE(QDir().mkpath(sandbox.filePath(folder)));
            EXPECT_TRUE(QFile::copy(SINGLE_INSTANCE_PROBE, path));
        }
        return path;
    }

    QByteArray startProbe(QProcess& process, const QString& path, const QStringList& args)
    {
        process.setProcessEnvironment(environment);
        process.start(path, args);
        if (!process.waitForStarted(kProcessTimeoutMs) || !process.waitForReadyRead(kProcessTimeoutMs))
            return QByteArray();
        return process.readLine().trimmed();
    }

    QByteArray probeOnce(const QString& path)
    {
        QProcess probe;
        const QByteArray answer = startProbe(probe, path, {});
        EXPECT_TRUE(probe.waitForFinished(kProcessTimeoutMs));
        return answer;
    }

    void stopHolder(QProcess& holder)
    {
        holder.closeWriteChannel();
        EXPECT_TRUE(holder.waitForFinished(kProcessTimeoutMs));
    }

    QTemporaryDir sandbox;
    QProcessEnvironment environment;
};

TEST_F(SingleInstanceTest, OnlyACopyFromTheSamePathSeesTheHolder)
{
    QProcess holder;
    ASSERT_EQ(startProbe(holder, probeIn("a.app"), {"hold"}), "running=0");

    EXPECT_EQ(probeOnce(probeIn("a.app")), "running=1");
    EXPECT_EQ(probeOnce(probeIn("b.app")), "running=0");

    stopHolder(holder);
    EXPECT_EQ(probeOnce(probeIn("a.app")), "running=0");
}

TEST_F(SingleInstanceTest, NeitherAKilledHolderNorAnUnusableTempFolderBlocks)
{
    QProcess holder;
    ASSERT_EQ(startProbe(holder, probeIn("a.app"), {"hold"}), "running=0");
    holder.kill();
    ASSERT_TRUE(holder.waitForFinished(kProcessTimeoutMs));
    EXPECT_EQ(probeOnce(probeIn("a.app")), "running=0");

    environment.insert("TMPDIR", sandbox.filePath("missing"));
    EXPECT_EQ(probeOnce(probeIn("a.app")), "running=0");
}

}  // namespace

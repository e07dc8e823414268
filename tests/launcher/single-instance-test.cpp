#include <gtest/gtest.h>
#include <unistd.h>

#include <QCryptographicHash>
#include <QDir>
#include <QProcess>
#include <QTemporaryDir>

namespace {

const int kTimeoutMs = 10000;

// The guard's id comes from the executable's path, so each "bundle" holds its
// own copy of the probe. Files of the lock's name planted beforehand, empty as
// a copy killed while it created its lock would leave one, stop nothing: not
// in the shared temporary folder, nor in the folder where the lock lives.
TEST(SingleInstance, OnlyTheSameBundlePathSeesALiveHolder)
{
    QTemporaryDir sandbox;
    for (const QString folder : {"a", "b", ".Drovia"})
        ASSERT_TRUE(QDir(sandbox.path()).mkdir(folder));
    for (const QString folder : {"a", "b"})
        ASSERT_TRUE(QFile::copy(SINGLE_INSTANCE_PROBE, sandbox.filePath(folder + "/probe")));
    const QByteArray id = (sandbox.filePath("a/probe") + "\n" + QString::number(getuid())).toUtf8();
    const QString lock_name =
        "qtsingleapp-probe-" + QCryptographicHash::hash(id, QCryptographicHash::Sha1).toHex() + ".lock";
    for (const QString folder : {"", ".Drovia/"})
        ASSERT_TRUE(QFile(sandbox.filePath(folder + lock_name)).open(QIODevice::WriteOnly));

    const auto start = [&](QProcess& probe, const QString& folder, const QStringList& arguments = {}) {
        QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
        env.insert("HOME", sandbox.path());
        env.insert("TMPDIR", sandbox.path());
        env.remove("XDG_RUNTIME_DIR");
        probe.setProcessEnvironment(env);
        probe.start(sandbox.filePath(folder + "/probe"), arguments);
        return probe.waitForReadyRead(kTimeoutMs) ? probe.readLine().trimmed() : QByteArray();
    };
    QProcess holder;
    QProcess same_path;
    QProcess other_path;
    QProcess after_the_holder;
    ASSERT_EQ(start(holder, "a", {"hold"}), "running=0");
    EXPECT_EQ(start(same_path, "a"), "running=1");
    EXPECT_EQ(start(other_path, "b"), "running=0");
    holder.kill();
    EXPECT_TRUE(holder.waitForFinished(kTimeoutMs));
    EXPECT_EQ(start(after_the_holder, "a"), "running=0");
}

}  // namespace

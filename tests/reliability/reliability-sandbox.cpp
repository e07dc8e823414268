#include "reliability-sandbox.h"

#include <QDir>
#include <QProcess>

#include <random>

namespace {

const char kBulkFolder[] = "/Contents/Resources/bulk/";

// Random letters: incompressible enough that unpacking takes real time.
QByteArray BulkContent(std::mt19937& random, int size)
{
    QByteArray bytes(size, ' ');
    for (char& c : bytes)
        c = static_cast<char>(' ' + random() % 95);
    return bytes;
}

bool AddBulkFiles(const QString& bundle_root, int count, int file_size, unsigned seed)
{
    std::mt19937 random(seed);
    for (int i = 0; i < count; ++i) {
        if (!writeFile(bundle_root + kBulkFolder + QString::number(i), BulkContent(random, file_size)))
            return false;
    }
    return true;
}

}  // namespace

bool mountNamespaceAvailable()
{
    static const bool available = QProcess::execute(QStringLiteral("unshare"), {"-m", "true"}) == 0;
    return available;
}

void ReliabilitySandbox::shipLargePackage(int build, const QString& label, int count, int file_size)
{
    shipInBundle(build, label);
    const QString stage = sandbox.filePath("large-stage-" + label);
    QDir(stage).removeRecursively();
    ASSERT_TRUE(QDir().mkpath(stage));
    ASSERT_EQ(QProcess::execute("bsdtar", {"-xf", packagePath(), "-C", stage}), 0);
    ASSERT_TRUE(AddBulkFiles(stage, count, file_size, static_cast<unsigned>(build)));
    ASSERT_EQ(QProcess::execute(MAKE_PACKAGE, {stage, packagePath()}), 0);
}

void ReliabilitySandbox::resetUserInstallation(int build, const QString& label, int count)
{
    ASSERT_TRUE(QDir(home + "/.Drovia").removeRecursively());
    installForUser(build, label);
    ASSERT_TRUE(AddBulkFiles(userPath("Drovia.app"), count, 1024, static_cast<unsigned>(build)));
}

QMap<QString, QString> ReliabilitySandbox::runScript(const QStringList& prefix, const QByteArray& script,
                                                     const QProcessEnvironment& env)
{
    const QString path = sandbox.filePath("reliability.sh");
    EXPECT_TRUE(writeFile(path, script));
    QProcess process;
    process.setProcessEnvironment(env);
    process.setWorkingDirectory(sandbox.path());
    process.start(prefix.first(), prefix.mid(1) + QStringList{"sh", path});
    return finish(process);
}

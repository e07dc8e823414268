#include "service-fixture.h"
#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>
#include <QCoreApplication>

void ServiceTest::SetUp()
{
    saved_home = qgetenv("HOME");
    ASSERT_TRUE(home.isValid() && qputenv("HOME", Home().toUtf8()));
}

void ServiceTest::TearDown()
{
    qputenv("HOME", saved_home);
    if (bundle_lock >= 0)
        close(bundle_lock);
}

// Found on its own rather than through the service, which must find the same.
QString ServiceTest::BundleResources()
{
    return QDir::cleanPath(QCoreApplication::applicationDirPath() + "/../Resources");
}

bool ServiceTest::Write(const char* name, const std::string& bytes)
{
    return !bytes.empty() && WriteBytes(BundleResources() + name, bytes);
}

void ServiceTest::UseBundle()
{
    const QString lock_path = QDir::cleanPath(BundleResources() + "/../../.test-lock");
    bundle_lock = open(lock_path.toUtf8().constData(), O_CREAT | O_RDWR | O_CLOEXEC, 0644);
    ASSERT_TRUE(bundle_lock >= 0 && flock(bundle_lock, LOCK_EX) == 0);
    QDir(BundleResources()).removeRecursively();
    ASSERT_TRUE(QDir().mkpath(BundleResources()));
}

#include "service-fixture.h"

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

#include <QDir>
#include <QFile>

#include <cstdlib>

#include "cloud-service.h"
#include "test-archive.h"

void ServiceTest::SetUp()
{
    ASSERT_TRUE(home.isValid());
    saved_home = qgetenv("HOME");
    SetHome(Home());
}

void ServiceTest::TearDown()
{
    qputenv("HOME", saved_home);
    if (bundle_lock >= 0)
        close(bundle_lock);
}

void ServiceTest::SetHome(const QString& path)
{
    ASSERT_TRUE(qputenv("HOME", path.toUtf8()));
}

QString ServiceTest::BundleResources() const
{
    return ToQString(Service::GetRootDroviaResourceInstallPath());
}

void ServiceTest::UseBundle()
{
    const QString lock_path = ToQString(Service::GetRootDroviaInstallPath()) + "/.test-lock";
    bundle_lock = open(lock_path.toUtf8().constData(), O_CREAT | O_RDWR | O_CLOEXEC, 0644);
    ASSERT_GE(bundle_lock, 0);
    ASSERT_EQ(flock(bundle_lock, LOCK_EX), 0);
    QDir(BundleResources()).removeRecursively();
    ASSERT_TRUE(QDir().mkpath(BundleResources()));
}

void ServiceTest::WriteBundleVersion(const std::string& info)
{
    ASSERT_TRUE(WriteBytes(BundleResources() + "/INFO", info));
}

void ServiceTest::WritePackage(const std::string& archive_bytes)
{
    ASSERT_FALSE(archive_bytes.empty());
    ASSERT_TRUE(WriteBytes(BundleResources() + "/package/drovia.vpk", archive_bytes));
}

QString ToQString(const ustring& text)
{
    return QString::fromUtf8(text.c_str_utf8());
}

std::string VersionFile(const std::string& lines)
{
    return "[Version]\n" + lines + "\n";
}

size_t CountOf(const std::string& text, const std::string& part)
{
    size_t count = 0;
    for (size_t at = text.find(part); at != std::string::npos; at = text.find(part, at + 1))
        ++count;
    return count;
}

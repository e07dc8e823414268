#ifndef SERVICE_FIXTURE_H
#define SERVICE_FIXTURE_H

#include <gtest/gtest.h>

#include <QByteArray>
#include <QDir>
#include <QString>
#include <QTemporaryDir>

#include <string>

#include "mac/mac-service.h"
#include "test-archive.h"

using ExposedService = MacService;  // the name the reliability tests know it by

// Every test gets a home folder of its own, with a name that is not ASCII.
// The bundle is the folder the test executable sits in
// (Drovia.app/Contents/MacOS); tests that write its version file or package
// lock it first, as test processes run side by side.
class ServiceTest : public ::testing::Test {
protected:
    void SetUp() override;
    void TearDown() override;

    // Locks the bundle and empties its resource folder.
    void UseBundle();
    void WriteBundleVersion(const std::string& info)
    {
        ASSERT_TRUE(WriteBytes(BundleResources() + "/INFO", info));
    }
    void WritePackage(const std::string& archive)
    {
        ASSERT_FALSE(archive.empty());
        ASSERT_TRUE(WriteBytes(BundleResources() + "/package/drovia.vpk", archive));
    }

    QString Home() const { return home.path(); }
    QString UserApp() const { return Home() + "/.Drovia/Drovia.app"; }
    QString UserClient() const { return UserApp() + "/Contents/MacOS/cloud-ui"; }
    static QString BundleResources();

    QTemporaryDir home{QDir::tempPath() + QString::fromUtf8("/J\xC3\xB6rg \xC3\x9C-XXXXXX")};
    LogCapture log;

private:
    QByteArray saved_home;
    int bundle_lock = -1;
};

// A version file whose group "Version" holds the given lines.
inline std::string VersionFile(const std::string& lines)
{
    return "[Version]\n" + lines + "\n";
}

#endif  // SERVICE_FIXTURE_H

#ifndef SERVICE_FIXTURE_H
#define SERVICE_FIXTURE_H
#include <gtest/gtest.h>
#include <QDir>
#include <QTemporaryDir>
#include <string>
#include "mac/mac-service.h"
#include "test-archive.h"

using ExposedService = MacService;  // the name the reliability tests know it by

// Each test gets a home folder of its own, named in non-ASCII. The bundle is the folder the
// test executable sits in; tests that write its files lock it, as test processes run side by side.
class ServiceTest : public ::testing::Test {
protected:
    void SetUp() override;
    void TearDown() override;
    void UseBundle();  // locks the bundle and empties its resource folder
    void WriteBundleVersion(const std::string& info) { ASSERT_TRUE(Write("/INFO", info)); }
    void WritePackage(const std::string& archive) { ASSERT_TRUE(Write("/package/drovia.vpk", archive)); }
    QString Home() const { return home.path(); }
    QString UserApp() const { return Home() + "/.Drovia/Drovia.app"; }
    QString UserClient() const { return UserApp() + "/Contents/MacOS/cloud-ui"; }
    static QString BundleResources();

    QTemporaryDir home{QDir::tempPath() + QString::fromUtf8("/J\xC3\xB6rg \xC3\x9C-XXXXXX")};

private:
    bool Write(const char* name, const std::string& bytes);
    QByteArray saved_home;
    int bundle_lock = -1;
};

inline std::string VersionFile(const std::string& lines) { return "[Version]\n" + lines + "\n"; }
#endif  // SERVICE_FIXTURE_H

#ifndef SERVICE_FIXTURE_H
#define SERVICE_FIXTURE_H

#include <gtest/gtest.h>

#include <QByteArray>
#include <QString>
#include <QTemporaryDir>

#include <string>

#include "mac/mac-service.h"
#include "test-log.h"
#include "ustring.h"

// A MacService whose state the tests may read.
class ExposedService : public MacService {
public:
    using Service::source_build_version;
    using Service::source_major_version;
    using Service::target_icon_overlay_version;
    using Service::target_major_version;
    using Service::timeout;
    using Service::user_app_path;
};

// Every test gets a home folder of its own. The bundle is the folder the
// test executable sits in (Drovia.app/Contents/MacOS); tests that write its
// version file or package lock it first, as test processes run side by side.
class ServiceTest : public ::testing::Test {
protected:
    void SetUp() override;
    void TearDown() override;

    void SetHome(const QString& path);
    // Locks the bundle and empties its resource folder.
    void UseBundle();
    void WriteBundleVersion(const std::string& info);
    void WritePackage(const std::string& archive_bytes);

    QString Home() const { return home.path(); }
    QString UserApp() const { return Home() + "/.Drovia/Drovia.app"; }
    QString UserClient() const { return UserApp() + "/Contents/MacOS/cloud-ui"; }
    QString BundleResources() const;

    QTemporaryDir home;
    LogCapture log;

private:
    QByteArray saved_home;
    int bundle_lock = -1;
};

QString ToQString(const ustring& text);
// A version file whose group "Version" holds the given lines.
std::string VersionFile(const std::string& lines);
size_t CountOf(const std::string& text, const std::string& part);

#endif  // SERVICE_FIXTURE_H

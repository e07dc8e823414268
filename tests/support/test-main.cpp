// main() of every suite that links test_support. The toolkit reads HOME, so
// it points into a scratch folder before the application object exists: the
// tests never see the real home folder.
#include <gtest/gtest.h>

#include <QApplication>
#include <QTemporaryDir>

#include "files.h"
#include "log.h"
#include "strtable.h"

QString LogCapture::path;

int main(int argc, char** argv)
{
    ::testing::InitGoogleTest(&argc, argv);
    if (::testing::GTEST_FLAG(list_tests))  // listing needs no scratch home
        return RUN_ALL_TESTS();
    QTemporaryDir scratch;
    LogCapture::path = scratch.filePath("test.log");
    const QString levels = scratch.filePath("levels");
    // The C locale whatever the caller's, as a user's may be, and no display.
    const bool ready = qputenv("HOME", scratch.path().toUtf8()) && qputenv("LC_ALL", "C") &&
                       qputenv("QT_QPA_PLATFORM", "offscreen") &&
                       WriteBytes(levels, "service_debug=7\nextractor_debug=7\nlauncher_debug=7\n") &&
                       Logger::Initialize(Logger::TYPE_FILE, LogCapture::path.toUtf8().constData(),
                                          levels.toUtf8().constData(), 50) == 0;
    if (!ready)
        return 1;
    QApplication application(argc, argv);
    StrTable::InitStrTable();
    return RUN_ALL_TESTS();
}

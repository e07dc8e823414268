#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QTemporaryDir>

#include <cstdlib>

#include "log.h"
#include "strtable.h"
#include "test-archive.h"

// The toolkit reads HOME, so it points into a scratch folder before the
// application object exists; tests never see the real home folder.
int main(int argc, char** argv)
{
    testing::InitGoogleTest(&argc, argv);
    QTemporaryDir scratch;
    if (!scratch.isValid() || setenv("HOME", scratch.path().toUtf8().constData(), 1) != 0)
        return 1;
    QCoreApplication application(argc, argv);
    StrTable::InitStrTable();
    const QString levels = scratch.path() + "/levels";
    LogCapture::path = scratch.path() + "/test.log";
    if (!WriteBytes(levels, "service_debug=7\nextractor_debug=7\n") ||
        Logger::Initialize(Logger::TYPE_FILE, LogCapture::path.toUtf8().constData(),
                           levels.toUtf8().constData(), 50) != 0)
        return 1;
    return RUN_ALL_TESTS();
}

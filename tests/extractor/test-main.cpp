#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QTemporaryDir>

#include <cstdlib>

#include "strtable.h"
#include "test-log.h"

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
    if (!StartTestLog(scratch.path()))
        return 1;
    return RUN_ALL_TESTS();
}

#ifndef QT_TEST_SUPPORT_H
#define QT_TEST_SUPPORT_H

#include <gtest/gtest.h>

#include <QString>
#include <QTemporaryDir>

#include <memory>
#include <ostream>
#include <vector>

inline void PrintTo(const QString& text, std::ostream* out)
{
    *out << '"' << text.toStdString() << '"';
}

// Creates the application object before the first test and destroys it after
// the last, with HOME (where the toolkit keeps caches and settings) pointing
// into a temporary folder. Register with ::testing::AddGlobalTestEnvironment.
template <typename Application>
class ApplicationEnvironment : public ::testing::Environment {
public:
    void SetUp() override
    {
        home_.reset(new QTemporaryDir);
        ASSERT_TRUE(home_->isValid());
        for (const char* name : {"HOME", "XDG_CONFIG_HOME", "XDG_CACHE_HOME", "XDG_RUNTIME_DIR"})
            qputenv(name, home_->path().toLocal8Bit());
        if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
            qputenv("QT_QPA_PLATFORM", "offscreen");
        application_.reset(new Application(argc_, argv_));
    }
    void TearDown() override
    {
        application_.reset();
        home_.reset();
    }

private:
    char name_[16] = "drovia-test";
    char* argv_[2] = {name_, nullptr};
    int argc_ = 1;
    std::unique_ptr<QTemporaryDir> home_;
    std::unique_ptr<Application> application_;
};

// The language module's debug lines while it lives, each with the line
// number its message context claims.
class MessageCapture {
public:
    using Lines = std::vector<std::pair<int, QString>>;
    MessageCapture() : previous_(qInstallMessageHandler(&MessageCapture::record)) { lines().clear(); }
    ~MessageCapture() { qInstallMessageHandler(previous_); }
    static Lines& lines()
    {
        static Lines captured;
        return captured;
    }

private:
    static void record(QtMsgType type, const QMessageLogContext& context, const QString& text)
    {
        EXPECT_EQ(type, QtDebugMsg);
        EXPECT_STREQ(context.file, "../libcommon/VelmLocale");
        EXPECT_STREQ(context.category, "default");
        lines().emplace_back(context.line, text);
    }

    QtMessageHandler previous_;
};

#endif  // QT_TEST_SUPPORT_H

// The progress dialog on an X server of the test's own while the old client stops: on screen,
// in the user's language from its first text on, and alone: a second launcher leaves at once.
#include <QRegularExpression>
#include <QStandardPaths>
#include <QTest>

#include "files.h"
#include "sandbox.h"

namespace {

using DialogUnderX = LauncherSandbox;

// "0x400007 "Velmora Drovia": ("launcher" "launcher")  400x97+0+0  +0+0" gives 0x400007.
QString DialogWindow(const QString& display)
{
    static const QRegularExpression dialog(
        R"((0x[0-9a-f]+) "Velmora Drovia": \("launcher" [^)]*\)\s+400x\d+)");
    QProcess xwininfo;
    xwininfo.start("xwininfo", {"-display", display, "-root", "-tree"});
    xwininfo.waitForFinished();
    return dialog.match(QString::fromUtf8(xwininfo.readAllStandardOutput())).captured(1);
}

TEST_F(DialogUnderX, ShowsInTheUsersLanguageWhileTheOldClientStops)
{
    for (const char* tool : {"Xvfb", "xwininfo", "import"}) {
        if (QStandardPaths::findExecutable(tool).isEmpty())
            GTEST_SKIP() << tool << " is not installed";
    }
    // On a free display, without the reset when the last client leaves: the window
    // lookups come and go, and a launcher connecting while the server resets is dropped.
    QProcess xvfb;
    xvfb.start("Xvfb", {"-displayfd", "1", "-nolisten", "tcp", "-noreset", "-screen", "0", "800x600x24"});
    ASSERT_TRUE(xvfb.waitForReadyRead());
    const QString display = ":" + QString::fromLatin1(xvfb.readLine().trimmed());
    std::string pixels[2];
    const char* const locales[] = {"C", "de_DE.UTF-8"};
    for (int run = 0; run < 2; ++run) {
        SCOPED_TRACE(locales[run]);
        MoveToNewHome(QString("home-") + locales[run]);
        InstallForUser(ClientBundle(4));
        Ship(5);
        StartClient("ignore-term");  // five seconds of dialog, then SIGKILL
        QProcessEnvironment env = Environment();
        env.insert("QT_QPA_PLATFORM", "xcb");
        env.insert("DISPLAY", display);
        env.insert("LC_ALL", locales[run]);
        QProcess launcher;
        StartLauncher(launcher, env);

        QString window;
        EXPECT_TRUE(QTest::qWaitFor([&] { return !(window = DialogWindow(display)).isEmpty(); }, 15000))
            << "no dialog on screen";
        const QString capture = QString(E2E_ARTIFACT_DIR "/upgrade-dialog-%1").arg(locales[run]);
        const QStringList shot = {"-display", display, "-window", window, capture + ".png"};
        // Listed before the server maps it, the window can be captured only once shown.
        EXPECT_TRUE(QTest::qWaitFor([&] { return QProcess::execute("import", shot) == 0; }));
        EXPECT_EQ(QProcess::execute("import", {"-display", display, "-window", window, "rgb:" + capture}), 0);
        pixels[run] = ReadBytes(capture);
        EXPECT_EQ(RunLauncher(env).exit_code, 0) << "a second launcher";

        EXPECT_TRUE(launcher.waitForFinished(30000) && launcher.exitCode() == 0);
        EXPECT_EQ(InstalledBuild(), "5");
        EXPECT_EQ(RunningBuilds(), QStringList{"5"});
        EXPECT_EQ(LogMessages().count("main: app has already launched, return"), 1);
    }
    xvfb.terminate();
    xvfb.waitForFinished();
    ASSERT_FALSE(pixels[0].empty());
    EXPECT_NE(pixels[0], pixels[1]) << "the German dialog shows the English text";
}

}  // namespace

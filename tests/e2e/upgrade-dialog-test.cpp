// Under a real X server: the progress dialog must be on screen, with its
// title, while an upgrade waits for the old client to exit.
#include <gtest/gtest.h>

#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QRegularExpression>
#include <QStandardPaths>

#include "launcher-sandbox.h"

namespace {

const int kStartTimeoutMs = 10000;
const int kDialogTimeoutMs = 4000;
const char kScreenshot[] = E2E_ARTIFACT_DIR "/upgrade-dialog.png";

// An Xvfb that picks a free display itself and reports it.
class XvfbServer {
public:
    ~XvfbServer()
    {
        if (server.state() == QProcess::NotRunning)
            return;
        server.terminate();
        if (!server.waitForFinished(kStartTimeoutMs)) {
            server.kill();
            server.waitForFinished();
        }
    }

    bool start()
    {
        server.start("Xvfb", {"-displayfd", "1", "-nolisten", "tcp", "-screen", "0", "800x600x24"});
        if (!server.waitForStarted(kStartTimeoutMs) || !server.waitForReadyRead(kStartTimeoutMs))
            return false;
        display = ":" + QString::fromLatin1(server.readLine().trimmed());
        return display.size() > 1;
    }

    QString display;

private:
    QProcess server;
};

QString windowTree(const QString& display)
{
    QProcess xwininfo;
    xwininfo.start("xwininfo", {"-display", display, "-root", "-tree"});
    xwininfo.waitForFinished(kStartTimeoutMs);
    return QString::fromUtf8(xwininfo.readAllStandardOutput());
}

bool missingTool(QString& missing)
{
    for (const char* tool : {"Xvfb", "xwininfo", "import"}) {
        if (QStandardPaths::findExecutable(tool).isEmpty()) {
            missing = tool;
            return true;
        }
    }
    return false;
}

using UpgradeDialog = LauncherSandbox;

TEST_F(UpgradeDialog, IsOnScreenWhileTheOldClientStops)
{
    QString missing;
    if (missingTool(missing))
        GTEST_SKIP() << missing.toStdString() << " is not installed";
    if (!pidNamespaceAvailable())
        GTEST_SKIP() << "unshare cannot create a PID namespace here";
    XvfbServer xvfb;
    ASSERT_TRUE(xvfb.start());
    installForUser(4, "old");
    shipInBundle(5, "new");

    QProcessEnvironment env = environment();
    env.insert("QT_QPA_PLATFORM", "xcb");
    env.insert("DISPLAY", xvfb.display);
    QProcess run;
    startInPidNamespace(run, R"sh(
( trap 'sleep 2; exit 0' TERM; while true; do sleep 1; done ) &
echo "pid=$!" > "$HOME/.Drovia/ui.pid"
"$LAUNCHER" > launcher.out 2>&1
echo "launcher=$?"
while [ ! -s "$HOME/.Drovia/started" ]; do sleep 0.1; done
)sh", env);

    // "0x400007 "Velmora Drovia": ("launcher" "launcher")  400x97+0+0  +0+0"
    const QRegularExpression dialog(QStringLiteral(R"("Velmora Drovia": \("launcher" [^)]*\)\s+400x\d+)"));
    const bool shown = waitUntil([&] { return dialog.match(windowTree(xvfb.display)).hasMatch(); },
                                 kDialogTimeoutMs);
    EXPECT_TRUE(shown) << windowTree(xvfb.display).toStdString();
    if (shown) {
        QFile::remove(kScreenshot);
        EXPECT_EQ(QProcess::execute("import", {"-display", xvfb.display, "-window", "root", kScreenshot}), 0);
        EXPECT_GT(QFileInfo(kScreenshot).size(), 0);
    }

    EXPECT_EQ(finish(run).value("launcher"), "0") << readFile(sandbox.filePath("launcher.out")).toStdString();
    EXPECT_EQ(installedBuild(), "5");
}

}  // namespace

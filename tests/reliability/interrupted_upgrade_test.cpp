// Kills the launcher with SIGKILL at moments spread over the stages of an
// upgrade, runs it again, and requires the per-user bundle to match the
// package and the new client to have started.
#include <QDir>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QProcess>
#include <QThread>

#include <algorithm>
#include <cstdlib>
#include <iostream>
#include <random>

#include "reliability-sandbox.h"

namespace {

const int kDefaultInterruptions = 50;
const unsigned kDelaySeed = 20261123;
const int kBulkFiles = 400;
// The cleanup deletes the old installation, so a bigger one widens its window.
const int kOldBulkFiles = 1500;
const int kBulkFileSize = 4096;
const int kCalibrationPollMicroseconds = 500;
const double kPaceStep = 0.85;

// The old client ends at its next tick once asked to.
const char kStartOldClient[] = R"(
if [ -n "$WITH_CLIENT" ]; then
    ( trap 'exit 0' TERM; while true; do sleep 0.05; done ) &
    echo "pid=$!" > "$HOME/.Drovia/ui.pid"
fi
)";

const char kCalibration[] = R"(
"$LAUNCHER" > /dev/null 2>&1
echo "launcher=$?"
)";

const char kInterruptThenRerun[] = R"sh(
"$LAUNCHER" > /dev/null 2>&1 &
launcher=$!
sleep "$DELAY"
kill -KILL "$launcher" 2> /dev/null
wait "$launcher"
echo "interrupted=$?"
[ -e "$HOME/.Drovia/Drovia.app_tmp" ] && echo "backup_at_kill=1"
grep -h build_version "$HOME/.Drovia/Drovia.app/Contents/Resources/INFO" 2> /dev/null | sed 's/^/info_at_kill=/'
starts() { cat "$HOME/.Drovia/started" 2> /dev/null | wc -l; }
before=$(starts)
echo "starts_before=$before"
"$LAUNCHER" > /dev/null 2>&1
echo "second=$?"
# The namespace ends with this script, and with it a client still starting.
i=0
while [ "$(starts)" -le "$before" ] && [ $i -lt 100 ]; do sleep 0.05; i=$((i + 1)); done
)sh";

enum Stage { STOP, UNPACK, CLEANUP, LAUNCH, STAGE_COUNT };
const char* const kStageNames[] = {"before the backup", "backup made, unpacking", "unpacked, cleaning up",
                                   "cleaned up"};
// Moments per stage; the stop stage is mostly the one-second probe pause.
const int kShare[] = {8, 20, 14, 8};
const int kShareTotal = 50;

struct Timeline {
    double end[STAGE_COUNT] = {};  // seconds from the start of the script
};

// What the file system showed right after the kill.
Stage StageAtKill(const QMap<QString, QString>& results)
{
    const bool backup = results.contains("backup_at_kill");
    const bool new_version = results.value("info_at_kill").endsWith("=5");
    if (backup)
        return new_version ? CLEANUP : UNPACK;
    return new_version ? LAUNCH : STOP;
}

int InterruptionCount()
{
    const char* configured = std::getenv("DROVIA_INTERRUPTIONS");
    return configured ? std::max(kShareTotal, std::atoi(configured)) : kDefaultInterruptions;
}

class InterruptedUpgrade : public ReliabilitySandbox {
protected:
    void SetUp() override
    {
        ReliabilitySandbox::SetUp();
        if (!pidNamespaceAvailable())
            GTEST_SKIP() << "unshare cannot create a PID namespace here";
        shipLargePackage(5, "new", kBulkFiles, kBulkFileSize);
        package = SnapshotOfArchive(packagePath());
        ASSERT_FALSE(package.empty());
    }

    QProcessEnvironment environmentFor(bool with_client, double delay) const
    {
        QProcessEnvironment env = environment();
        if (with_client)
            env.insert("WITH_CLIENT", "1");
        env.insert("DELAY", QString::number(delay, 'f', 3));
        return env;
    }

    Timeline calibrate(bool with_client);
    Stage interruptAt(Stage stage, double delay, bool with_client);

    TreeSnapshot package;
    int stage_hits[STAGE_COUNT] = {};
    int converged = 0;
    int left_backups = 0;
    QStringList failures;
};

// Watches the file system during an uninterrupted run: the backup appears,
// the new version file appears last of the unpacked entries, the backup goes.
Timeline InterruptedUpgrade::calibrate(bool with_client)
{
    resetUserInstallation(4, "old", kOldBulkFiles);
    const QString backup = userPath("Drovia.app_tmp");
    const QString info = userPath("Drovia.app/Contents/Resources/INFO");
    QProcess process;
    QElapsedTimer clock;
    clock.start();
    startInPidNamespace(process, QByteArray(kStartOldClient) + kCalibration, environmentFor(with_client, 0));
    Timeline line;
    Stage stage = STOP;
    while (process.state() != QProcess::NotRunning && stage < LAUNCH) {
        const bool backup_exists = QFileInfo::exists(backup);
        if ((stage == STOP && backup_exists) || (stage == UNPACK && QFileInfo::exists(info)) ||
            (stage == CLEANUP && !backup_exists)) {
            line.end[stage] = clock.elapsed() / 1000.0;
            stage = static_cast<Stage>(stage + 1);
        }
        QThread::usleep(kCalibrationPollMicroseconds);
    }
    EXPECT_EQ(finish(process).value("launcher"), "0");
    line.end[LAUNCH] = clock.elapsed() / 1000.0;
    EXPECT_EQ(stage, LAUNCH) << "every stage should have been seen";
    return line;
}

Stage InterruptedUpgrade::interruptAt(Stage stage, double delay, bool with_client)
{
    resetUserInstallation(4, "old", kOldBulkFiles);
    QFile::remove(userPath("started"));
    QFile::remove(userPath("log/launcher.log"));
    const QMap<QString, QString> results = [&] {
        QProcess process;
        startInPidNamespace(process, QByteArray(kStartOldClient) + kInterruptThenRerun,
                            environmentFor(with_client, delay));
        return finish(process);
    }();
    const Stage seen = StageAtKill(results);
    ++stage_hits[seen];
    const QString where = QString("aimed at \"%1\", killed \"%2\" at %3 s")
                              .arg(kStageNames[stage], kStageNames[seen])
                              .arg(delay, 0, 'f', 3);

    const std::string differences = DescribeDifferences(package, userBundle());
    const int starts_before = results.value("starts_before").toInt();
    const QStringList started = startedClients(starts_before + 1);
    if (results.value("second") == "0" && differences.empty() && started.size() > starts_before &&
        started.count("new") == started.size())
        ++converged;
    else
        failures << where + ": second=" + results.value("second") + " started=" + started.join(',') + "\n" +
                        QString::fromStdString(differences) + "log:\n  " + logMessages().join("\n  ");
    if (!backupFolders().isEmpty())
        ++left_backups;
    return seen;
}

TEST_F(InterruptedUpgrade, EveryInterruptionConvergesOnTheNextRun)
{
    const Timeline with_client = calibrate(true);
    const Timeline without_client = calibrate(false);
    std::cout << "calibration (s): backup at " << with_client.end[STOP] << " with a running client, "
              << without_client.end[STOP] << " without; unpacked at " << without_client.end[UNPACK]
              << ", cleaned at " << without_client.end[CLEANUP] << ", exit at " << without_client.end[LAUNCH]
              << "\n";

    // Each stage gets its share of moments, evenly spread with a random
    // offset inside each slot, so that every run of the test tries the same ones.
    // The runs are not exactly as fast as the calibrated one (the calibration
    // polls, and the machine's load changes), so the delays follow a pace that
    // slows down when a kill came later than aimed and speeds up when earlier.
    std::mt19937 random(kDelaySeed);
    double pace = 1.0;
    std::uniform_real_distribution<double> jitter(0.0, 1.0);
    const int total = InterruptionCount();
    for (int s = STOP; s < STAGE_COUNT; ++s) {
        const Stage stage = static_cast<Stage>(s);
        const bool client = stage == STOP;
        const Timeline& line = client ? with_client : without_client;
        const double begin = stage == STOP ? 0.0 : line.end[stage - 1];
        const int moments = total * kShare[stage] / kShareTotal;
        for (int k = 0; k < moments; ++k) {
            const double planned = begin + (k + jitter(random)) / moments * (line.end[stage] - begin);
            const Stage seen = interruptAt(stage, planned * pace, client);
            if (seen != stage)
                pace *= seen > stage ? kPaceStep : 1 / kPaceStep;
        }
    }

    const int tried = stage_hits[STOP] + stage_hits[UNPACK] + stage_hits[CLEANUP] + stage_hits[LAUNCH];
    std::cout << "interruptions survived: " << converged << " of " << tried << " (state at the kill: ";
    for (int s = STOP; s < STAGE_COUNT; ++s)
        std::cout << (s ? ", " : "") << kStageNames[s] << " " << stage_hits[s];
    std::cout << "); backup folders left after the second run: " << left_backups << "\n";
    EXPECT_EQ(converged, tried) << failures.join("\n").toStdString();
}

}  // namespace

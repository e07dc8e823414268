// Runs the real Launcher and Worker on the bundle it is placed in, with a
// 10 ms timer on the GUI thread, and prints how late the timer got: the
// longest gap between two ticks is the longest time the dialog could not
// repaint or react.
#include <QApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QStringList>
#include <QTimer>

#include <algorithm>
#include <cstdio>
#include <vector>

#include "launcher.h"
#include "strtable.h"

namespace {

const int kTickMs = 10;
const int kPercentiles[] = {50, 99};

void PrintGaps(std::vector<qint64> gaps)
{
    if (gaps.empty()) {
        std::printf("ticks 0\n");
        return;
    }
    std::sort(gaps.begin(), gaps.end());
    std::printf("ticks %zu", gaps.size() + 1);
    for (int percentile : kPercentiles)
        std::printf(" p%d_ms %.3f", percentile, gaps[(gaps.size() - 1) * percentile / 100] / 1e6);
    std::printf(" max_ms %.3f\n", gaps.back() / 1e6);
}

}  // namespace

int main(int argc, char** argv)
{
    QCoreApplication::setLibraryPaths(QStringList(
        QDir::cleanPath(QString::fromLocal8Bit(argv[0]) + QStringLiteral("/../../Frameworks/plugins"))));
    QApplication app(argc, argv);
    StrTable::InitStrTable();

    std::vector<qint64> gaps;
    QElapsedTimer clock;
    QTimer ticker;
    ticker.setTimerType(Qt::PreciseTimer);
    QObject::connect(&ticker, &QTimer::timeout, [&] {
        gaps.push_back(clock.nsecsElapsed());
        clock.restart();
    });

    Launcher* launcher = new Launcher;
    ticker.start(kTickMs);
    clock.start();
    launcher->Run();
    launcher->Start();
    const int status = app.exec();
    delete launcher;
    PrintGaps(gaps);
    return status;
}

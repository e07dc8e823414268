// Prints whether another instance holds the guard; with "hold", keeps its own
// until killed.
#include <cstdio>

#include "qtsingleapplication.h"

int main(int argc, char** argv)
{
    QtSingleApplication app(argc, argv, true);
    std::printf("running=%d\n", app.isRunning() ? 1 : 0);
    std::fflush(stdout);
    const bool hold = argc > 1 && QByteArray(argv[1]) == "hold";
    while (hold && std::getchar() != EOF) {
    }
}

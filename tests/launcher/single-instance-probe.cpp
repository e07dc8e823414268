// Started by the single-instance test: reports whether another instance
// holds the guard and, when asked to, keeps its own guard until stdin closes
// or it is killed.
#include <cstdio>
#include <cstring>

#include "qtsingleapplication.h"

int main(int argc, char** argv)
{
    QtSingleApplication app(argc, argv, true);
    std::printf("running=%d\n", app.isRunning() ? 1 : 0);
    std::fflush(stdout);
    if (argc > 1 && std::strcmp(argv[1], "hold") == 0) {
        while (std::getchar() != EOF) {
        }
    }
    return 0;
}
